// SPDX-License-Identifier: MIT
// QBYDocxMetaData is the statistics record of a Word document; whoever reads the document makes it, from the
// document's text.
// Thread: any; a value.
#pragma once

#include "text_statistics/QBYWordCounterStats.h"

#include <QtGlobal>

struct QBYDocxMetaData {
    quint64 numberOfWords = 0;
    quint64 numberOfCharacters = 0;
    quint64 numberOfCharactersWithWhitespace = 0;
    quint64 numberOfLines = 0;
    quint64 numberOfSentences = 0;
    quint64 numberOfParagraphs = 0;
    quint64 numberOfHardLineBreaks = 0;
    quint64 numberOfIndentedParagraphs = 0;

    /// The record of the document with this text; counts: those of the text, made by the rules of any text.
    /// The figures that the document itself carries are the estimates of the program that saved it.
    static QBYDocxMetaData ofText(const QBYWordCounterStats &counts)
    {
        return {
            .numberOfWords = counts.numberOfWords,
            .numberOfCharacters = counts.numberOfCharacters,
            .numberOfCharactersWithWhitespace = counts.numberOfCharactersIncludingWhitespace,
            .numberOfLines = counts.numberOfLines,
            .numberOfSentences = counts.numberOfSentences,
            .numberOfParagraphs = counts.numberOfParagraphs,
            .numberOfHardLineBreaks = counts.numberOfHardLineBreaks,
            .numberOfIndentedParagraphs = counts.numberOfIndentedParagraphs,
        };
    }
};
