// SPDX-License-Identifier: MIT
#include "text_statistics/WordCounterStatStringFormatter.h"

namespace {

QString labelWithCount(qint64 style, QStringView longLabel, QStringView shortLabel, quint64 count)
{
    const QStringView label = style == 0 ? longLabel : shortLabel;
    return u'\u2022' + label.toString() + QStringLiteral(": ") + QString::number(static_cast<qint64>(count));
}

} // namespace

QString WordCounterStatStringFormatter::formattedWordCountStringForStyle(qint64 style, quint64 wordCount)
{
    return labelWithCount(style, u"Word Count", u"Words", wordCount);
}

QString WordCounterStatStringFormatter::formattedCharacterCountStringForStyle(
    qint64 style, quint64 characterCount)
{
    return labelWithCount(style, u"Character Count", u"Characters", characterCount);
}

QString WordCounterStatStringFormatter::formattedCharacterCountIncludingWhitespaceStringForStyle(
    qint64 style, quint64 characterCountIncludingWhitespace)
{
    return labelWithCount(
        style, u"Including Whitespace Count", u"Chars (+Whitespace)", characterCountIncludingWhitespace);
}

QString WordCounterStatStringFormatter::formattedSentencesCountStringForStyle(
    qint64 style, quint64 sentencesCount)
{
    return labelWithCount(style, u"Sentence Count", u"Sentences", sentencesCount);
}

QString WordCounterStatStringFormatter::formattedLineCountStringForStyle(qint64 style, quint64 lineCount)
{
    return labelWithCount(style, u"Line Count", u"Lines", lineCount);
}

QString WordCounterStatStringFormatter::formattedHardLineBreakCountStringForStyle(
    qint64 style, quint64 hardLineBreakCount)
{
    return labelWithCount(style, u"Hard Line Break Count", u"Lines (Hard Break)", hardLineBreakCount);
}

QString WordCounterStatStringFormatter::formattedParagraphCountStringForStyle(
    qint64 style, quint64 paragraphCount)
{
    return labelWithCount(style, u"Paragraph Count", u"Paragraphs", paragraphCount);
}

QString WordCounterStatStringFormatter::formattedIndentedParagraphCountStringForStyle(
    qint64 style, quint64 indentedParagraphCount)
{
    return labelWithCount(style, u"Indented Paragraph Count", u"Indented Paragraphs", indentedParagraphCount);
}
