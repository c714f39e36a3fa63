// SPDX-License-Identifier: MIT
// Where sentences end, decided at their full stops and other terminators by the classes of the characters
// around (UAX #29, SB4 to SB11, as in ICU's root rules). Finds the same sentences as Segmenter, without ICU.
// Thread: any.
#pragma once

#include <QStringView>

struct SentenceStep {
    bool isEnd; ///< a sentence ends at position; otherwise it goes on
    qsizetype position; ///< after the terminator; nothing before it ends a sentence
};

/// text: one paragraph, or more. sentence: where the sentence starts. terminator: the position of a character
/// of class Terminator or LineSeparator, at or after it, in UTF-16 code units. Paragraph separators end
/// sentences, and are part of none. Asked in ascending order, at no position before the one of the last step,
/// all steps of a text together take time proportional to its length.
SentenceStep sentenceStepAt(QStringView text, qsizetype sentence, qsizetype terminator);
