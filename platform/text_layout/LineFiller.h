// SPDX-License-Identifier: MIT
// LineFiller counts the lines of a plain paragraph by adding up the advances of pairs of characters, without
// shaping the text. Its lines are those of LineBreaker; what it cannot be sure of is left to that.
// Thread: one at a time.  Owner: LayoutEngine.
#pragma once

#include "platform/text_layout/LineBreaker.h"
#include "platform/text_layout/PairAdvances.h"

#include <map>
#include <optional>

class LineFiller {
public:
    /// measured: for fonts and shaping; its paragraph is not touched. breaks: is set to each paragraph.
    LineFiller(MeasuredParagraph &measured, LineBreaks &breaks);

    /// The number of lines of a paragraph that is not empty. Absent if it must be laid out by LineBreaker: it
    /// has more than one style or font, a script that joins letters, or a line of which rounding decides.
    /// ends: unless null, gets the end of every line (UTF-16 code units from the start of the paragraph).
    std::optional<quint64> countLines(const AttributedString &text, const Paragraph &paragraph,
        double columnWidth, std::vector<qsizetype> *ends = nullptr);

private:
    // Neighbours that may form ligatures, with the character before them, whose advance depends on them.
    struct Chain {
        static constexpr qsizetype maxLength = 30;

        qsizetype start = 0;
        qsizetype end = 0;
        const CachedWord *shaped = nullptr; // from start on, with the character after end
        [[nodiscard]] bool holds(qsizetype at) const { return at >= start && at < end; }
    };

    // The text after the last tab of a line, or after its start.
    struct Stretch {
        qsizetype start;
        double base; // points, where it starts
        double flow = 0; // font units, its advance so far
        double fitting = 0; // a flow that fits for certain
        double overflowing = 0; // a flow that does not, for certain
        qsizetype weightless = 0; // characters without an advance, as far as known
    };

    [[nodiscard]] bool selectStyle(const TextAttributes &attributes, quint32 script);
    [[nodiscard]] PairAdvances *pairsFor(const TextStyle &style, quint32 script);
    [[nodiscard]] std::optional<quint32> findScript() const;

    LineBreaker::Line nextLine(qsizetype start);
    [[nodiscard]] std::optional<qsizetype> findObstacle(qsizetype start, Stretch &stretch);
    qsizetype addBlocks(qsizetype at, Stretch &stretch) const;
    qsizetype addPlain(qsizetype at, Stretch &stretch) const;
    [[nodiscard]] bool addOne(qsizetype start, qsizetype &at, Stretch &stretch);
    void skipBlanks(qsizetype start, qsizetype &at, Stretch &stretch);
    [[nodiscard]] bool movePastTab(qsizetype start, qsizetype at, Stretch &stretch);
    [[nodiscard]] Stretch stretchAt(qsizetype start, double base);
    [[nodiscard]] bool fitsWhenBrokenAt(qsizetype start, qsizetype end, const Stretch &stretch);
    [[nodiscard]] LineBreaker::Line breakWithinWord(qsizetype start, qsizetype obstacle) const;
    void checkSafePlaces(qsizetype end);
    [[nodiscard]] static bool isTooLong(qsizetype start, qsizetype at, const Stretch &stretch);

    [[nodiscard]] quint8 classAt(qsizetype at) const { return m_classes[m_units[at]]; }
    /// As of PairAdvances::advances().
    [[nodiscard]] int knownPair(qsizetype at) const
    {
        const quint8 next = at + 1 < m_length ? classAt(at + 1) : PairAdvances::endClass;
        return m_advances[static_cast<size_t>(classAt(at)) << 8 | next];
    }
    int pair(qsizetype at)
    {
        const int advance = knownPair(at);
        return advance != PairAdvances::unknown ? advance : measurePair(at);
    }
    int measurePair(qsizetype at);
    double advance(qsizetype at);
    [[nodiscard]] bool isJoined(qsizetype at)
    {
        return at >= 0 && at + 1 < m_length && pair(at) == PairAdvances::joined;
    }
    [[nodiscard]] bool isInChain(qsizetype at) { return isJoined(at - 1) || isJoined(at); }
    void loadChain(qsizetype at);
    [[nodiscard]] bool isUnsafe(qsizetype at);

    MeasuredParagraph &m_measured;
    LineBreaks &m_breaks;
    std::map<std::tuple<FontChain *, quint32, bool>, std::unique_ptr<PairAdvances>> m_tables;
    WordCache m_chains{size_t{1} << 10};

    // The style of the last paragraph.
    struct Selection {
        std::optional<FontAttributes> font;
        QString language;
        quint32 script = 0;
        PairAdvances *pairs = nullptr; // null if nothing is selected
        double pointsPerUnit = 0;
        double tracking = 0; // font units
    };
    Selection m_selection;

    // The paragraph.
    const char16_t *m_units = nullptr;
    qsizetype m_length = 0;
    const quint8 *m_classes = nullptr;
    const int *m_advances = nullptr;
    std::optional<LineEdges> m_edges;
    std::optional<TabStops> m_tabStops;
    Chain m_chain;
    bool m_startsWithinWord = false; // of the next line
    qsizetype m_lastSafePlace = 0;
    bool m_hasGivenUp = false;
};
