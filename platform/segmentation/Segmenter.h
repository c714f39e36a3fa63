// SPDX-License-Identifier: MIT
// Segmenter yields the words and the sentences of a text; which of them count is decided elsewhere.
// Thread: one at a time.  Owner: whoever makes it; dear to make, so kept for the next text.
#pragma once

#include "platform/segmentation/BreakIterator.h"

#include <QStringView>

/// Whether a segment between two word boundaries is a word: it holds a letter, digit or ideograph (a code
/// point that is Alphabetic but no mark, a decimal digit, or a letter number). Others are the gaps between
/// words.
bool isWord(QStringView segment);

/// The yield functions get a view into the text and return whether to go on.
class Segmenter {
public:
    /// UAX #29 word segments for which isWord() holds.
    template <typename Yield>
    void forEachWord(QStringView text, Yield &&yield)
    {
        forEachSegment(
            m_words, text, [&](QStringView segment) { return !isWord(segment) || yield(segment); });
    }

    /// UAX #29 sentence segments: they cover the text, white space behind a sentence included.
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

    // Two iterators, so that the words of a sentence can be looked at while its neighbours are still to come.
    BreakIterator m_words{BreakKind::Word};
    BreakIterator m_sentences{BreakKind::Sentence};
};
