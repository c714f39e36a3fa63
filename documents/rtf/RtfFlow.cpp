// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfFlow.h"

#include <utility>

namespace {

/// Documents in earnest have some hundreds.
constexpr qsizetype mostDistinctAttributes = 100'000;
constexpr size_t mostTabStopsOfAll = 2'000'000;

/// Code units that are kept back to be appended at once.
constexpr qsizetype longestPiece = 65'536;

constexpr QChar paragraphEnd = u'\n';

} // namespace

TextAttributes RtfAttributes::of(const RtfFormat &format) const
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
    if (m_admitted.size() >= mostDistinctAttributes || tabStopCount > mostTabStopsOfAll)
        return false;
    m_admitted.insert(hash);
    m_tabStopCount = tabStopCount;
    return true;
}

QString &RtfFlow::under(const RtfFormat &format)
{
    insertSpaceBetweenParts();
    if (std::exchange(m_isSeparated, false) && !isEmpty() && last() != paragraphEnd)
        m_pending.append(paragraphEnd);
    if (!m_hasFormat || !m_format.looksLike(format)) {
        flush();
        TextAttributes attributes = m_attributes.of(format);
        if (m_attributes.admit(attributes))
            m_current = std::move(attributes);
        m_format = format;
        m_hasFormat = true;
    } else if (m_pending.size() >= longestPiece) {
        flush();
    }
    return m_pending;
}

void RtfFlow::flush()
{
    insertSpaceBetweenParts();
    if (m_pending.isEmpty())
        return;
    m_builder.append(m_pending, m_current);
    m_lastFlushed = m_pending.back();
    m_pending.resize(0); // keeps the room
    if (m_partsMeetAt)
        m_partsMeetAt = 0;
}

void RtfFlow::standApart()
{
    insertSpaceBetweenParts();
    m_partsMeetAt = m_pending.size();
}

void RtfFlow::insertSpaceBetweenParts()
{
    if (!m_partsMeetAt || *m_partsMeetAt == m_pending.size())
        return;
    const qsizetype at = *std::exchange(m_partsMeetAt, std::nullopt);
    const QChar before = at > 0 ? m_pending[at - 1] : m_lastFlushed;
    if (!before.isNull() && !before.isSpace() && !m_pending[at].isSpace())
        m_pending.insert(at, u' ');
}

void RtfFlow::appendAttachment(const RtfFormat &format, const std::shared_ptr<const Attachment> &attachment)
{
    QString &text = under(format);
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
    m_builder.append(other.take());
}

AttributedString RtfFlow::take()
{
    flush();
    return m_builder.build();
}
