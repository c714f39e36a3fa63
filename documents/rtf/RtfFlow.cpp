// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfFlow.h"

#include <utility>

namespace {

/// Real documents have a few hundred.
constexpr qsizetype maxDistinctAttributes = 100'000;
constexpr size_t maxTotalTabStops = 2'000'000;

/// Code units to collect before they are appended to the builder.
constexpr qsizetype maxPieceLength = 65'536;

constexpr QChar paragraphEnd = u'\n';

} // namespace

TextAttributes RtfAttributes::attributesOf(const RtfFormat &format) const
{
    const QString family = m_fonts.family(format.character.fontNumber);
    return {format.character.font(family), format.paragraph->style, format.character.language, nullptr};
}

bool RtfAttributes::admit(const TextAttributes &attributes)
{
    const size_t hash = qHash(attributes);
    if (m_admitted.contains(hash))
        return true;
    const size_t tabStopCount = m_tabStopCount + attributes.paragraphStyle.tabStops.size();
    if (m_admitted.size() >= maxDistinctAttributes || tabStopCount > maxTotalTabStops)
        return false;
    m_admitted.insert(hash);
    m_tabStopCount = tabStopCount;
    return true;
}

QString &RtfFlow::bufferFor(const RtfFormat &format)
{
    insertRequiredSpace();
    if (std::exchange(m_needsNewParagraph, false) && !isEmpty() && last() != paragraphEnd)
        m_pending.append(paragraphEnd);
    if (!m_hasFormat || !m_format.hasSameAttributes(format)) {
        flush();
        TextAttributes attributes = m_attributes.attributesOf(format);
        if (m_attributes.admit(attributes))
            m_current = std::move(attributes);
        m_format = format;
        m_hasFormat = true;
    } else if (m_pending.size() >= maxPieceLength) {
        flush();
    }
    return m_pending;
}

void RtfFlow::flush()
{
    insertRequiredSpace();
    if (m_pending.isEmpty())
        return;
    m_builder.append(m_pending, m_current);
    m_lastFlushed = m_pending.back();
    m_pending.resize(0); // keeps the capacity
    if (m_requiredSpaceAt)
        m_requiredSpaceAt = 0;
}

void RtfFlow::requireSpace()
{
    insertRequiredSpace();
    m_requiredSpaceAt = m_pending.size();
}

void RtfFlow::insertRequiredSpace()
{
    if (!m_requiredSpaceAt || *m_requiredSpaceAt == m_pending.size())
        return;
    const qsizetype at = *std::exchange(m_requiredSpaceAt, std::nullopt);
    const QChar before = at > 0 ? m_pending[at - 1] : m_lastFlushed;
    if (!before.isNull() && !before.isSpace() && !m_pending[at].isSpace())
        m_pending.insert(at, u' ');
}

void RtfFlow::appendAttachment(const RtfFormat &format, const std::shared_ptr<const Attachment> &attachment)
{
    QString &text = bufferFor(format);
    TextAttributes attributes = m_current;
    attributes.attachment = attachment;
    if (!attachment || !m_attributes.admit(attributes)) {
        text.append(attachmentCharacter);
        return;
    }
    flush();
    m_builder.append(QStringView(&attachmentCharacter, 1), attributes);
    m_lastFlushed = attachmentCharacter;
}

void RtfFlow::append(RtfFlow &other)
{
    if (other.isEmpty())
        return;
    if (!isEmpty() && last() != paragraphEnd)
        m_pending.append(paragraphEnd);
    flush();
    m_builder.append(other.takeText());
}

AttributedString RtfFlow::takeText()
{
    flush();
    return m_builder.build();
}
