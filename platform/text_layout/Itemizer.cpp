// SPDX-License-Identifier: MIT
#include "platform/text_layout/Itemizer.h"

#include <algorithm>

namespace {

TextRun::Kind kindOf(char16_t unit)
{
    if (unit == u'\t')
        return TextRun::Kind::Tab;
    if (unit == attachmentCharacter)
        return TextRun::Kind::Attachment;
    return isInvisibleControl(unit) ? TextRun::Kind::Invisible : TextRun::Kind::Text;
}

BidiRuns::Base baseOf(WritingDirection direction)
{
    switch (direction) {
    case WritingDirection::LeftToRight:
        return BidiRuns::Base::LeftToRight;
    case WritingDirection::RightToLeft:
        return BidiRuns::Base::RightToLeft;
    case WritingDirection::Natural:
        break;
    }
    return BidiRuns::Base::FirstStrongCharacter;
}

// Shaping takes quadratic time in the length of a cluster, so longer ones are cut. Room for a base and the 30
// marks that the Stream-Safe Text Format (UAX #15) allows, and for the longest emoji.
constexpr qsizetype maxClusterLength = 32;

} // namespace

void Itemizer::setParagraph(const AttributedString &text, const Paragraph &paragraph)
{
    m_source = &text;
    m_offset = paragraph.start;
    m_text = paragraph.content(text.string());
    m_position = 0;
    m_isInLongCluster = false;
    m_attributesEnd = 0;
    m_attributesRun = text.isEmpty() ? 0 : text.runIndexAt(paragraph.start);
    m_direction = {};
    m_script = {};
    m_lastFace = nullptr;
    const WritingDirection direction = text.isEmpty()
        ? WritingDirection::Natural
        : text.attributesAt(paragraph.start).paragraphStyle.direction;
    m_bidi.setParagraph(m_text, baseOf(direction));
}

TextStyle Itemizer::resolve(const TextAttributes &attributes)
{
    const StyleKey key{attributes.font, attributes.language};
    const auto known = m_styles.constFind(key);
    if (known != m_styles.cend())
        return *known;
    const FontAttributes font = attributes.font.value_or(FontAttributes{});
    constexpr double maxSize = 10'000;
    TextStyle style;
    style.fonts = m_fonts.chainFor(font, attributes.language);
    style.language = canonicalLanguage(attributes.language);
    if (font.pointSize > 0) // 0 and NaN mean the default size
        style.pointSize = clampNumber(font.pointSize, 0.01, maxSize);
    style.tracking = clampNumber(font.tracking, -1'000, 1'000);
    style.baselineOffset = clampNumber(font.baselineOffset, -maxSize, maxSize);
    constexpr qsizetype maxStyles = 4096;
    if (m_styles.size() >= maxStyles)
        m_styles.clear();
    m_styles.insert(key, style);
    return style;
}

TextStyle Itemizer::styleAt(qsizetype position)
{
    return resolve(m_source->attributesAt(position));
}

void Itemizer::updateRuns()
{
    if (m_position >= m_attributesEnd) {
        AttributedString::Run run = m_source->run(m_attributesRun);
        while (run.start + run.length <= m_offset + m_position)
            run = m_source->run(++m_attributesRun);
        m_attributesEnd = std::min(run.start + run.length - m_offset, m_text.size());
        m_style = resolve(m_source->distinctAttributes()[run.attributesIndex]);
    }
    if (m_position >= m_direction.end)
        m_direction = m_bidi.runAt(m_position);
    if (m_position >= m_script.end)
        m_script = m_scripts.runAt(m_text, m_position, m_script.script);
}

qsizetype Itemizer::textEnd(qsizetype limit, qsizetype maxLength, FontFace *&face)
{
    const char16_t *units = m_text.utf16();
    const bool isAsciiSimple = m_style.fonts && m_style.fonts->isPrimaryForAscii();
    FontFace *const primary = m_style.fonts ? m_style.fonts->primary() : nullptr;
    const qsizetype softLimit = std::min(limit, m_position + maxLength);
    qsizetype end = m_position;
    while (end < softLimit && kindOf(units[end]) == TextRun::Kind::Text) {
        FontFace *own = primary;
        qsizetype clusterEnd = end + 1;
        const bool isAlone = m_standsAlone.at(units[end])
            && (clusterEnd >= m_text.size() || m_standsAlone.at(units[clusterEnd]));
        // Clusters are cut at changes of attributes or direction, and at the maximum length.
        if (!isAlone)
            clusterEnd = graphemeClusterEnd(m_text.first(std::min(limit, end + maxClusterLength)), end);
        if (m_style.fonts && (!isAlone || !isAsciiSimple || units[end] > u'~'))
            own = m_style.fonts->faceFor(m_text.sliced(end, clusterEnd - end), m_lastFace);
        if (end == m_position)
            face = own;
        else if (own != face)
            break;
        m_lastFace = own;
        m_isInLongCluster = clusterEnd - end >= maxClusterLength;
        end = clusterEnd;
        if (m_isInLongCluster)
            break;
    }
    return end;
}

qsizetype Itemizer::excessMarksEnd(qsizetype limit) const
{
    qsizetype end = m_position;
    while (end < limit) {
        const char32_t character = codePointAt(m_text, end);
        if (!isNonspacing(character))
            break;
        end += character > 0xFFFF ? 2 : 1;
    }
    return std::min(end, limit);
}

TextRun Itemizer::next(qsizetype maxLength)
{
    updateRuns();
    TextRun run{};
    run.start = m_position;
    run.kind = kindOf(m_text.utf16()[m_position]);
    run.isRightToLeft = m_direction.isRightToLeft;
    run.script = m_script.script;
    run.style = m_style;
    const qsizetype limit = std::min({m_attributesEnd, m_direction.end, m_script.end});
    run.end = m_position + 1;
    const qsizetype excessEnd = m_isInLongCluster ? excessMarksEnd(limit) : m_position;
    if (excessEnd > m_position) {
        run.kind = TextRun::Kind::ExcessMarks;
        run.end = excessEnd;
    }
    m_isInLongCluster = false;
    if (run.kind == TextRun::Kind::Text)
        run.end = textEnd(limit, maxLength, run.face);
    while (run.kind == TextRun::Kind::Invisible && run.end < std::min(limit, m_position + maxLength)
        && kindOf(m_text.utf16()[run.end]) == TextRun::Kind::Invisible)
        ++run.end;
    run.isCut = run.kind == TextRun::Kind::Text && run.end < limit && run.end - run.start >= maxLength;
    m_position = run.end;
    return run;
}
