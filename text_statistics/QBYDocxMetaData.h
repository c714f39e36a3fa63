// SPDX-License-Identifier: MIT
// QBYDocxMetaData is the statistics record of a Word document. Its counts are declared in another order than
// those of QBYWordCounterStats.
// Thread: any; a value.
#pragma once

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
};
