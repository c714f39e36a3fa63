// SPDX-License-Identifier: MIT
// QBYWordCounterStats is the record of the eight statistics of one text, in the order in which they travel.
// Thread: any; a value.
#pragma once

#include <QtGlobal>

struct QBYWordCounterStats {
    quint64 numberOfWords = 0;
    quint64 numberOfCharacters = 0; ///< UTF-16 code units without white space
    quint64 numberOfCharactersIncludingWhitespace = 0; ///< UTF-16 code units
    quint64 numberOfSentences = 0;
    quint64 numberOfLines = 0; ///< as laid out on paper
    quint64 numberOfHardLineBreaks = 0;
    quint64 numberOfParagraphs = 0;
    quint64 numberOfIndentedParagraphs = 0;

    bool operator==(const QBYWordCounterStats &) const = default;

    QBYWordCounterStats &operator+=(const QBYWordCounterStats &other)
    {
        numberOfWords += other.numberOfWords;
        numberOfCharacters += other.numberOfCharacters;
        numberOfCharactersIncludingWhitespace += other.numberOfCharactersIncludingWhitespace;
        numberOfSentences += other.numberOfSentences;
        numberOfLines += other.numberOfLines;
        numberOfHardLineBreaks += other.numberOfHardLineBreaks;
        numberOfParagraphs += other.numberOfParagraphs;
        numberOfIndentedParagraphs += other.numberOfIndentedParagraphs;
        return *this;
    }
};
