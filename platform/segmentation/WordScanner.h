// SPDX-License-Identifier: MIT
// WordScanner counts the words of a text in one pass, a window at a time, by the masks of its characters. It
// finds the same words as Segmenter, which it is much faster than, and leaves only what depends on
// dictionaries to ICU. Which words count is left to the caller.
// Thread: one at a time.  Owner: the code that counts; to be reused for the next text.
#pragma once

#include "platform/segmentation/BreakIterator.h"
#include "platform/segmentation/TextMasks.h"
#include "platform/segmentation/WordTrace.h"

#include <QStringView>

#include <optional>

class WordScanner {
public:
    /// text: must live, unchanged, until the last next(). trace: unless null, gets every word of the text;
    /// must live as long.
    void setText(QStringView text, WordTrace *trace = nullptr);

    /// Goes on to the next window; false after the last one. All calls together take time proportional to
    /// the length of the text.
    bool next();

    /// The window: its masks, with the facts about words, and its ends in the text.
    [[nodiscard]] TextMasks &masks() { return m_masks; }
    [[nodiscard]] qsizetype start() const { return m_start; }
    [[nodiscard]] qsizetype end() const { return m_start + m_masks.length(); }

    /// The words found since the window before. A word belongs to the window of its first letter.
    [[nodiscard]] quint64 words() const { return m_words; }
    /// Those of them, or of windows before, that are one UTF-16 code unit and no English word.
    [[nodiscard]] quint64 loneUnits() const { return m_loneUnits; }

    /// Whether cutting the text at a position from start() on changes its words in a way that the masks do
    /// not show.
    [[nodiscard]] bool isInsideWord(qsizetype position) const
    {
        return position < end() ? m_masks.test(TextMasks::WordFact::Inside, position - m_start)
                                : position < m_hardUntil;
    }

private:
    /// What the end of a word of masks means for the next one; each is one bit.
    struct Carry {
        quint64 joining = 0; ///< the last character, extenders aside, joins the next letter or number
        quint64 letter = 0;
        quint64 number = 0;
        quint64 letterMiddle = 0; ///< the same behind a character that joins letters
        quint64 numberMiddle = 0;
        quint64 joiningUnit = 0; ///< the last code unit
        quint64 hangulUnit = 0;
        quint64 loneLetter = 0; ///< the last code unit starts a word
        quint64 loneNumber = 0;
        quint64 loneHangul = 0;
        quint64 loneLetterMiddle = 0; ///< the last characters are such a one and one that joins letters
        quint64 loneNumberMiddle = 0;
        bool isUnlettered = false; ///< hasLetter or hasLetterBehindMiddle may be false
        bool hasLetter = false; ///< the open segment is a word
        bool hasLetterBehindMiddle = false;
    };

    /// The classes of one word of masks, between two positions.
    struct Word;

    struct Run {
        qsizetype end;
        bool isHard;
    };

    void scanWindow(qsizetype length);
    [[nodiscard]] qsizetype scanFromBoundary(qsizetype position, qsizetype length);
    [[nodiscard]] qsizetype hardEnd(qsizetype hard, qsizetype length) const;
    void markHebrewQuotes();
    [[nodiscard]] bool isBoundary(qsizetype position) const;
    [[nodiscard]] qsizetype lastBoundary(qsizetype from, qsizetype to) const;
    [[nodiscard]] qsizetype firstBoundary(qsizetype from, qsizetype to) const;
    [[nodiscard]] Run restOfRun(qsizetype position) const;

    void countSoft(qsizetype from, qsizetype to);
    void countWord(const Word &word);
    void countUnlettered(const Word &word, quint64 starts, quint64 across, quint64 extended);
    void countLoneUnits(const Word &word, quint64 starts, quint64 hangulStarts);
    void startHard(qsizetype start, qsizetype end);
    [[nodiscard]] qsizetype hardSegmentEnd();
    void countHard(qsizetype from, qsizetype to);
    void countSegment();
    void markInside(qsizetype from, qsizetype to);

    std::optional<BreakIterator> m_iterator; // made when first needed
    QStringView m_text;
    TextMasks m_masks;
    qsizetype m_start = 0;
    qsizetype m_softUntil = 0; // known to be free of what only ICU can segment
    qsizetype m_hardUntil = 0; // where the text of m_iterator ends
    qsizetype m_hardStart = 0;
    qsizetype m_segmentStart = 0;
    qsizetype m_segmentEnd = 0;
    WordTrace *m_trace = nullptr;
    Carry m_carry;
    quint64 m_words = 0;
    quint64 m_loneUnits = 0;
    quint64 m_openLoneUnits = 0; // modulo 2^64: a word is taken off again where it goes on
};
