// SPDX-License-Identifier: MIT
// PairText gives the advances of a paragraph's characters where they are sums over pairs, ligatures included.
// Where they are not, it fails. Filling lines with them is left to LineFiller.
// Thread: one at a time.  Owner: LineFiller.
#pragma once

#include "platform/text_layout/PairRuns.h"

/// Positions are UTF-16 code units from the start of the paragraph. Functions that name a position make its
/// run the current one, except where they say that they expect it to be.
class PairText {
public:
    PairText(FontLibrary &fonts, Shaper &shaper)
        : m_runs(fonts, shaper)
        , m_shaper(shaper)
    {
    }

    /// As of PairRuns.
    bool setParagraph(const AttributedString &text, const Paragraph &paragraph, bool isOneRun);

    /// Whether the advance of some character could not be given. What came after it is worthless.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }
    void fail() { m_hasFailed = true; }

    [[nodiscard]] const char16_t *units() const { return m_units; }
    [[nodiscard]] qsizetype length() const { return m_length; }

    /// The run that contains a position becomes the current one.
    const PairRun &enter(qsizetype position)
    {
        if (position < m_run.start || position >= m_run.end)
            enterOther(position);
        return m_run;
    }
    [[nodiscard]] const PairRun &run() const { return m_run; }

    // For positions in the current run.
    [[nodiscard]] const quint8 *classes() const { return m_classes; }
    /// As of PairAdvances.
    [[nodiscard]] const int *advances() const { return m_advances; }
    [[nodiscard]] quint8 classAt(qsizetype at) const { return m_classes[m_units[at]]; }
    [[nodiscard]] int knownPair(qsizetype at) const
    {
        const quint8 next = at + 1 < m_run.end ? classAt(at + 1) : PairAdvances::endClass;
        return m_advances[PairAdvances::indexOf(classAt(at), next)];
    }
    /// Font units, without tracking.
    double advance(qsizetype at)
    {
        const int own = knownPair(at);
        const bool isPlain = own < PairAdvances::limit && !m_chain.holds(at)
            && (at == m_run.start || knownPair(at - 1) < PairAdvances::limit)
            && (at + 1 >= m_run.end || knownPair(at + 1) < PairAdvances::limit);
        return isPlain ? own : advanceInChain(at);
    }
    /// Whether advance() of this character is that of a ligature or of the character before one.
    [[nodiscard]] bool isInShapedChain(qsizetype at) const { return m_chain.holds(at); }
    /// To be called at the start of a line: whether that is inside of a possible ligature.
    bool startsInChain(qsizetype at)
    {
        enter(at);
        if (m_hasFailed || !isJoined(at - 1))
            return false;
        loadChain(at);
        return true;
    }

    /// Whether isUnsafe() is false, and that follows from the pairs around the place.
    [[nodiscard]] bool isPlainlySafe(qsizetype at) const
    {
        return at >= m_run.start + 2 && at + 1 < m_run.end && knownPair(at - 2) < PairAdvances::limit
            && knownPair(at - 1) < PairAdvances::limit && knownPair(at) < PairAdvances::limit
            && !m_run.pairs->isUnsafe(classAt(at - 1), classAt(at));
    }
    /// Whether the text on both sides of a place must be measured again if a line ends there.
    [[nodiscard]] bool isUnsafe(qsizetype at);
    /// The same, for a place that cannot be inside of a ligature or beside one; otherwise it fails.
    [[nodiscard]] bool isUnsafeKerning(qsizetype at);
    /// By how much the advance of a character grows if a line ends after it. Points.
    [[nodiscard]] double growthAtLineEnd(qsizetype at);
    /// The advance of a stretch. Points.
    [[nodiscard]] double advanceBetween(qsizetype start, qsizetype end);

    /// Tells that earlier positions are not needed any more.
    void discardBefore(qsizetype position) { m_runs.discardBefore(position); }

private:
    // Neighbours that may form ligatures, with the character before them, whose advance depends on them.
    struct Chain {
        static constexpr qsizetype maxLength = 30;

        qsizetype start = 0;
        qsizetype end = 0;
        const CachedWord *shaped = nullptr; // from start on, with the character after end
        [[nodiscard]] bool holds(qsizetype at) const { return at >= start && at < end; }
    };

    int pair(qsizetype at)
    {
        const int advance = knownPair(at);
        return advance != PairAdvances::unknown ? advance : measurePair(at);
    }
    void enterOther(qsizetype position);
    int measurePair(qsizetype at);
    double advanceInChain(qsizetype at);
    [[nodiscard]] bool isJoined(qsizetype at)
    {
        return at >= m_run.start && at + 1 < m_run.end && pair(at) == PairAdvances::joined;
    }
    [[nodiscard]] bool isInChain(qsizetype at) { return isJoined(at - 1) || isJoined(at); }
    void loadChain(qsizetype at);

    PairRuns m_runs;
    Shaper &m_shaper;
    WordCache m_chains{size_t{1} << 10, size_t{1} << 14};
    const char16_t *m_units = nullptr;
    qsizetype m_length = 0;
    PairRun m_run; // the current one
    const quint8 *m_classes = nullptr;
    const int *m_advances = nullptr;
    Chain m_chain;
    bool m_hasFailed = false;
};
