// SPDX-License-Identifier: MIT
#include "documents/rtf/writer/FormatWords.h"

#include "documents/Lengths.h"
#include "documents/rtf/RtfLanguage.h"
#include "documents/rtf/writer/ExactValues.h"
#include "documents/rtf/writer/RtfEscapes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr int minBoldWeight = 550; // halfway between regular and bold

/// A length in the units in which RTF counts it.
struct NearestNumber {
    int number = 0; ///< 16 bits with a sign, the range that RTF 1.9.1 guarantees
    bool isExact = false;
};

/// NaN becomes 0.
NearestNumber nearestNumber(double points, double unitsPerPoint)
{
    const double units = std::isnan(points) ? 0 : std::round(points * unitsPerPoint);
    const auto number = static_cast<int>(std::clamp<double>(units, INT16_MIN, INT16_MAX));
    return {number, number / unitsPerPoint == points};
}

/// Word processors accept no more in a paragraph. Further stops appear in the exact value only.
constexpr size_t maxTabWords = 64;

/// Control words for lengths in twips, and whether all of them are exact.
class LengthWords {
public:
    void append(const char *word, double points, double pointsWithoutWord)
    {
        if (points == pointsWithoutWord)
            return;
        const NearestNumber nearest = nearestNumber(points, twipsPerPoint);
        append(word, nearest.number);
        isExact = isExact && nearest.isExact;
    }
    void append(const char *word, int number) { words.append(word).append(QByteArray::number(number)); }

    QByteArray words;
    bool isExact = true;
};

const char *alignmentWord(TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::Natural:
        return "";
    case TextAlignment::Left:
        return "\\ql";
    case TextAlignment::Right:
        return "\\qr";
    case TextAlignment::Center:
        return "\\qc";
    case TextAlignment::Justified:
        return "\\qj";
    }
    return "";
}

const char *directionWord(WritingDirection direction)
{
    switch (direction) {
    case WritingDirection::Natural:
        return "";
    case WritingDirection::LeftToRight:
        return "\\ltrpar";
    case WritingDirection::RightToLeft:
        return "\\rtlpar";
    }
    return "";
}

const char *tabWord(TabAlignment alignment)
{
    switch (alignment) {
    case TabAlignment::Left:
        return "\\tx";
    case TabAlignment::Center:
        return "\\tqc\\tx";
    case TabAlignment::Right:
        return "\\tqr\\tx";
    case TabAlignment::Decimal:
        return "\\tqdec\\tx";
    }
    return "\\tx";
}

/// RTF counts the indent of the first line from that of the other lines.
void appendHeadIndents(LengthWords &lengths, const ParagraphStyle &style)
{
    lengths.append("\\li", style.headIndent, 0);
    const int head = nearestNumber(style.headIndent, twipsPerPoint).number;
    const double difference = style.firstLineHeadIndent - style.headIndent;
    const int first = nearestNumber(difference, twipsPerPoint).number;
    if (first != 0)
        lengths.append("\\fi", first);
    if (static_cast<double>(head + first) / twipsPerPoint != style.firstLineHeadIndent)
        lengths.isExact = false;
}

void appendTabStops(LengthWords &lengths, const ParagraphStyle &style)
{
    for (size_t i = 0; i < style.tabStops.size() && i < maxTabWords; ++i) {
        const NearestNumber position = nearestNumber(style.tabStops[i].position, twipsPerPoint);
        lengths.append(tabWord(style.tabStops[i].alignment), position.number);
        lengths.isExact = lengths.isExact && position.isExact;
    }
    if (style.tabStops.size() > maxTabWords)
        lengths.isExact = false;
}

} // namespace

qsizetype FontWords::indexOf(const QString &family)
{
    const auto found = m_indices.constFind(family);
    if (found != m_indices.cend())
        return *found;
    const qsizetype index = m_indices.size();
    m_groups.append("{\\f").append(QByteArray::number(index)).append("\\fnil\\fcharset0 ");
    appendRtfName(m_groups, family);
    m_groups.append(";}\n");
    m_indices.insert(family, index);
    return index;
}

QByteArray FontWords::wordsFor(const FontAttributes &font)
{
    const NearestNumber size = nearestNumber(font.pointSize, halfPointsPerPoint);
    const NearestNumber tracking = nearestNumber(font.tracking, twipsPerPoint);
    const NearestNumber offset = nearestNumber(font.baselineOffset, halfPointsPerPoint);
    QByteArray words = "\\f" + QByteArray::number(indexOf(font.family)) + "\\fs"
        + QByteArray::number(std::max(size.number, 1));
    if (font.weight >= minBoldWeight)
        words += "\\b";
    if (font.slant != FontSlant::Upright)
        words += "\\i";
    if (tracking.number != 0)
        words += "\\expndtw" + QByteArray::number(tracking.number);
    if (offset.number > 0)
        words += "\\up" + QByteArray::number(offset.number);
    else if (offset.number < 0)
        words += "\\dn" + QByteArray::number(-offset.number);
    const bool isExact = size.isExact && size.number > 0 && tracking.isExact && offset.isExact
        && (font.weight == regularFontWeight || font.weight == boldFontWeight)
        && font.slant != FontSlant::Oblique;
    return isExact ? words : words + m_exactValues.fontWord(font);
}

QByteArray FontWords::wordsFor(const QString &language)
{
    const auto found = m_languageWords.constFind(language);
    if (found != m_languageWords.cend())
        return *found;
    const int lcid = lcidOfLanguage(language);
    QByteArray words = lcid == 0 ? QByteArray() : "\\lang" + QByteArray::number(lcid);
    if (languageOfLcid(lcid) != language)
        words += m_exactValues.languageWord(language);
    m_languageWords.insert(language, words);
    return words;
}

QByteArray FontWords::wordsFor(const std::optional<FontAttributes> &font, const QString &language)
{
    QByteArray words = "\\plain";
    if (font)
        words += wordsFor(*font);
    if (!language.isEmpty())
        words += wordsFor(language);
    return words;
}

QByteArray FontWords::table() const
{
    return m_groups.isEmpty() ? QByteArray() : "{\\fonttbl\n" + m_groups + "}\n";
}

QByteArray paragraphWords(const ParagraphStyle &style, ExactValues &exactValues)
{
    LengthWords lengths;
    lengths.words.append("\\pard")
        .append(alignmentWord(style.alignment))
        .append(directionWord(style.direction));
    appendHeadIndents(lengths, style);
    lengths.append("\\ri", style.tailIndent, 0);
    appendTabStops(lengths, style);
    lengths.append("\\pardeftab", style.defaultTabInterval, ParagraphStyle{}.defaultTabInterval);
    lengths.append("\\slleading", style.lineSpacing, 0);
    lengths.append("\\sb", style.paragraphSpacingBefore, 0);
    lengths.append("\\sa", style.paragraphSpacing, 0);
    return lengths.isExact ? lengths.words : lengths.words + exactValues.paragraphWord(style);
}

QByteArray defaultTabWord()
{
    return "\\deftab"
        + QByteArray::number(nearestNumber(ParagraphStyle{}.defaultTabInterval, twipsPerPoint).number);
}
