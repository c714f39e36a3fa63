// SPDX-License-Identifier: MIT
#include "text_statistics/WordCounterStatStringFormatter.h"

#include <QCoreApplication>

namespace {

QString labelWithCount(qint64 style, const char *longTemplate, const char *shortTemplate, quint64 count)
{
    const QString text = QCoreApplication::translate(
        "WordCounterStatStringFormatter", style == 0 ? longTemplate : shortTemplate);
    return text.arg(static_cast<qint64>(count));
}

} // namespace

QString WordCounterStatStringFormatter::formattedWordCountStringForStyle(qint64 style, quint64 wordCount)
{
    return labelWithCount(style, QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Word Count: %1"),
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Words: %1"), wordCount);
}

QString WordCounterStatStringFormatter::formattedCharacterCountStringForStyle(
    qint64 style, quint64 characterCount)
{
    return labelWithCount(style, QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Character Count: %1"),
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Characters: %1"), characterCount);
}

QString WordCounterStatStringFormatter::formattedCharacterCountIncludingWhitespaceStringForStyle(
    qint64 style, quint64 characterCountIncludingWhitespace)
{
    return labelWithCount(style,
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Including Whitespace Count: %1"),
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Chars (+Whitespace): %1"),
        characterCountIncludingWhitespace);
}

QString WordCounterStatStringFormatter::formattedSentencesCountStringForStyle(
    qint64 style, quint64 sentencesCount)
{
    return labelWithCount(style, QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Sentence Count: %1"),
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Sentences: %1"), sentencesCount);
}

QString WordCounterStatStringFormatter::formattedLineCountStringForStyle(qint64 style, quint64 lineCount)
{
    return labelWithCount(style, QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Line Count: %1"),
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Lines: %1"), lineCount);
}

QString WordCounterStatStringFormatter::formattedHardLineBreakCountStringForStyle(
    qint64 style, quint64 hardLineBreakCount)
{
    return labelWithCount(style,
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Hard Line Break Count: %1"),
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Lines (Hard Break): %1"), hardLineBreakCount);
}

QString WordCounterStatStringFormatter::formattedParagraphCountStringForStyle(
    qint64 style, quint64 paragraphCount)
{
    return labelWithCount(style, QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Paragraph Count: %1"),
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Paragraphs: %1"), paragraphCount);
}

QString WordCounterStatStringFormatter::formattedIndentedParagraphCountStringForStyle(
    qint64 style, quint64 indentedParagraphCount)
{
    return labelWithCount(style,
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Indented Paragraph Count: %1"),
        QT_TRANSLATE_NOOP("WordCounterStatStringFormatter", "•Indented Paragraphs: %1"),
        indentedParagraphCount);
}
