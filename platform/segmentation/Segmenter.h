// SPDX-License-Identifier: MIT
// Segmenter yields the words and the sentences of a text; which of them count is left to the caller.
// Thread: one at a time.  Owner: the caller; expensive to make, to be reused for the next text.
#pragma once

#include "platform/segmentation/BreakIterator.h"

#include <QStringView>

/// Whether a character makes a word: Alphabetic but not a mark, a decimal digit, or a letter number.
bool isLetterOrDigit(char32_t character);

/// A, I, O and X in both cases: words of their own in English.
bool isEnglishWordOfOneLetter(char16_t unit);

/// Whether a segment between two word boundaries is a word: it contains a letter, digit or ideograph, for
/// which isLetterOrDigit() holds. Other segments are gaps between words.
bool isWord(QStringView segment);

/// The yield functions get a view into the text and return whether to continue.
class Segmenter {
public:
    /// UAX #29 word segments for which isWord() holds.
    template <typename Yield>
    void forEachWord(QStringView text, Yield &&yield)
    {
        forEachSegment(
            m_words, text, [&](QStringView segment) { return !isWord(segment) || yield(segment); });
    }

    /// UAX #29 sentence segments, which cover the whole text, including white space after a sentence.
    template <typename Yield>
    void forEachSentence(QStringView text, Yield &&yield)
    {
        forEachSegment(m_sentences, text, yield);
    }

private:
    template <typename Yield>
    static void forEachSegment(BreakIterator &boundaries, QStringView text, Yield &&yield)
    {
        boundaries.setText(text);
        qsizetype start = 0;
        for (qsizetype end = boundaries.next(); end >= 0; end = boundaries.next()) {
            if (!yield(text.sliced(start, end - start)))
                return;
            start = end;
        }
    }

    // Two iterators: callers iterate over the words of a sentence while they iterate over sentences.
    BreakIterator m_words{BreakKind::Word};
    BreakIterator m_sentences{BreakKind::Sentence};
};
