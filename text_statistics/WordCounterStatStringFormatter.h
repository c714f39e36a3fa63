// SPDX-License-Identifier: MIT
// WordCounterStatStringFormatter makes the text that shows one statistic; counting and choosing a style are
// left to others.
// Thread: any.
#pragma once

#include <QString>
#include <QtGlobal>

/// In every operation style 0 is the long form ("•Word Count: 7"), any other style the short one ("•Words:
/// 7"). Counts appear as signed decimal numbers without grouping: counts of 2^63 or more appear as negative
/// numbers.
class WordCounterStatStringFormatter {
public:
    static QString formattedWordCountStringForStyle(qint64 style, quint64 wordCount);
    /// Characters without white space.
    static QString formattedCharacterCountStringForStyle(qint64 style, quint64 characterCount);
    static QString formattedCharacterCountIncludingWhitespaceStringForStyle(
        qint64 style, quint64 characterCountIncludingWhitespace);
    static QString formattedSentencesCountStringForStyle(qint64 style, quint64 sentencesCount);
    /// Lines as laid out on paper.
    static QString formattedLineCountStringForStyle(qint64 style, quint64 lineCount);
    static QString formattedHardLineBreakCountStringForStyle(qint64 style, quint64 hardLineBreakCount);
    static QString formattedParagraphCountStringForStyle(qint64 style, quint64 paragraphCount);
    static QString formattedIndentedParagraphCountStringForStyle(
        qint64 style, quint64 indentedParagraphCount);
};
