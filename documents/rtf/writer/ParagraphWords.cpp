// SPDX-License-Identifier: MIT
#include "documents/rtf/writer/ParagraphWords.h"

#include "documents/rtf/writer/ExactValues.h"
#include "documents/rtf/writer/NearestNumber.h"

namespace {

/// More than word processors take of one paragraph; the others are only said exactly.
constexpr size_t mostTabWords = 64;

/// Words in twentieths of a point, and whether all of them are exact.
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

/// The first line's, counted from the other lines' as RTF does.
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
    for (size_t i = 0; i < style.tabStops.size() && i < mostTabWords; ++i) {
        const NearestNumber position = nearestNumber(style.tabStops[i].position, twipsPerPoint);
        lengths.append(tabWord(style.tabStops[i].alignment), position.number);
        lengths.isExact = lengths.isExact && position.isExact;
    }
    if (style.tabStops.size() > mostTabWords)
        lengths.isExact = false;
}

} // namespace

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
