// SPDX-License-Identifier: MIT
// WordTrace puts together where words start and end, from what WordScanner finds out about their characters.
// It decides nothing itself, and counts nothing.
// Thread: one at a time.  Owner: the code that wants the words of a text.
#pragma once

#include <QtGlobal>

#include <functional>

class WordTrace {
public:
    /// start, end: UTF-16 code units from the start of the text.
    using Yield = std::function<void(qsizetype start, qsizetype end)>;

    /// yield: called for every word, in the order of the text.
    explicit WordTrace(Yield yield)
        : m_yield(std::move(yield))
    {
    }

    /// What the scanner knows of 64 code units; a bit for each.
    struct Bits {
        quint64 starts; ///< the first code unit of a segment that may be a word
        quint64 continuing; ///< one that belongs to the segment open before it
        quint64 extenders; ///< one that belongs to the character before it
        quint64 lettered; ///< makes its segment a word
    };
    /// position: of the first bit, in the text. Called in ascending order.
    void addBits(qsizetype position, const Bits &bits);

    /// A word that was found in another way, behind everything that was added before.
    void addWord(qsizetype start, qsizetype end);

    /// To be called at the end of the text.
    void finish() { closeSegment(); }

private:
    void closeSegment();

    Yield m_yield;
    qsizetype m_start = 0;
    qsizetype m_end = 0; // of the segment, as far as known; m_start if none is open
    bool m_isWord = false;
};
