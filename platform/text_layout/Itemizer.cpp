// SPDX-License-Identifier: MIT
#include "platform/text_layout/Itemizer.h"

#include "platform/segmentation/GraphemeClusters.h"
#include "platform/text_layout/Bounds.h"

#include <algorithm>

namespace {

TextRun::Kind kindOf(char16_t unit)
{
    if (unit == u'\t')
        return TextRun::Kind::Tab;
    if (unit == attachmentCharacter)
        return TextRun::Kind::Attachment;
    const bool isControl = unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x2028 || unit == 0x2029;
    return isControl ? TextRun::Kind::Invisible : TextRun::Kind::Text;
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

// Ten times what the normal form for streams (UAX #15) has room for.
constexpr qsizetype longestCluster = 300;

} // namespace

void Itemizer::setParagraph(const AttributedString &text, const Paragraph &paragraph)
{
    m_source = &text;
    m_offset = paragraph.start;
    m_text = paragraph.content(text.string());
    m_position = 0;
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
    constexpr double largest = 10'000;
    TextStyle style;
    style.fonts = m_fonts.chainFor(font, attributes.language);
    style.language = canonicalLanguage(attributes.language);
    if (font.pointSize > 0) // a size of 0, as one that is no number, asks for the usual size
        style.pointSize = bounded(font.pointSize, 0.01, largest);
    style.tracking = bounded(font.tracking, -1'000, 1'000);
    style.baselineOffset = bounded(font.baselineOffset, -largest, largest);
    constexpr qsizetype mostStyles = 4096;
    if (m_styles.size() >= mostStyles)
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
        m_script = scriptRunAt(m_text, m_position, m_script.script);
}

qsizetype Itemizer::textEnd(qsizetype limit, qsizetype longest, FontFace *&face)
{
    constexpr char16_t firstMark = 0x300;
    const char16_t *units = m_text.utf16();
    const bool isAsciiSimple = m_style.fonts && m_style.fonts->isPrimaryForAscii();
    FontFace *const primary = m_style.fonts ? m_style.fonts->primary() : nullptr;
    const qsizetype softLimit = std::min(limit, m_position + longest);
    qsizetype end = m_position;
    while (end < softLimit && kindOf(units[end]) == TextRun::Kind::Text) {
        FontFace *own = primary;
        qsizetype clusterEnd = end + 1;
        const bool isAlone = clusterEnd >= m_text.size() || units[clusterEnd] < firstMark;
        if (!isAsciiSimple || units[end] > u'~' || !isAlone) {
            // A cluster that attributes or directions cut is measured in parts, and so is one of absurd
            // length: shapers take the square of it.
            clusterEnd = graphemeClusterEnd(m_text.first(std::min(limit, end + longestCluster)), end);
            if (m_style.fonts)
                own = m_style.fonts->faceFor(m_text.sliced(end, clusterEnd - end), m_lastFace);
        }
        if (end == m_position)
            face = own;
        else if (own != face)
            break;
        m_lastFace = own;
        end = clusterEnd;
    }
    return end;
}

TextRun Itemizer::next(qsizetype longest)
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
    if (run.kind == TextRun::Kind::Text)
        run.end = textEnd(limit, longest, run.face);
    while (run.kind == TextRun::Kind::Invisible && run.end < std::min(limit, m_position + longest)
        && kindOf(m_text.utf16()[run.end]) == TextRun::Kind::Invisible)
        ++run.end;
    run.isCut = run.kind == TextRun::Kind::Text && run.end < limit && run.end - run.start >= longest;
    m_position = run.end;
    return run;
}
