// SPDX-License-Identifier: MIT
// LineFiller counts the lines of a paragraph by adding up the advances of pairs of characters, without
// shaping the text. Its lines are those of LineBreaker; what it cannot be sure of is left to that. Thread:
// one at a time.  Owner: LayoutEngine.
#pragma once

#include "platform/text_layout/LineBreaker.h"
#include "platform/text_layout/PairText.h"

#include <functional>

class LineFiller {
public:
    /// breaks: is set to each paragraph.
    LineFiller(FontLibrary &fonts, Shaper &shaper, LineBreaks &breaks);

    using Report = std::function<void(qsizetype lineEnd)>;

    /// The number of lines of a paragraph that is not empty. Absent if it must be laid out by LineBreaker: it
    /// has characters that change with their neighbours, or a line of which rounding decides.
    /// ends: unless null, gets the end of every line (UTF-16 code units from the start of the paragraph).
    /// report: called with each of them, unless empty; also where the result is absent.
    std::optional<quint64> countLines(const AttributedString &text, const Paragraph &paragraph,
        double columnWidth, std::vector<qsizetype> *ends = nullptr, const Report &report = {});

private:
    // The text after the last tab of a line, or after its start.
    struct Stretch {
        qsizetype start;
        double origin; // points, where it starts
        double base; // points, where its part in the current run starts
        double flow = 0; // font units, the advance of that part so far
        double fitting = 0; // a flow that fits for certain
        double overflowing = 0; // a flow that does not, for certain
        qsizetype weightless = 0; // characters without an advance, as far as known
    };

    std::optional<quint64> fillLines(
        const Paragraph &paragraph, std::vector<qsizetype> *ends, const Report &report);
    LineBreaker::Line nextLine(qsizetype start);
    [[nodiscard]] std::optional<qsizetype> findObstacle(qsizetype start, Stretch &stretch);
    qsizetype addPlain(qsizetype at, Stretch &stretch) const;
    qsizetype addSpaced(qsizetype at, Stretch &stretch) const;
    [[nodiscard]] bool addOne(qsizetype start, qsizetype &at, Stretch &stretch);
    void skipBlanks(qsizetype start, qsizetype &at, Stretch &stretch);
    [[nodiscard]] bool movePastTab(qsizetype start, qsizetype at, Stretch &stretch);
    void measureRoom(Stretch &stretch);
    [[nodiscard]] bool fitsWhenBrokenAt(qsizetype start, qsizetype end, const Stretch &stretch);
    [[nodiscard]] LineBreaker::Line breakWithinWord(qsizetype start, qsizetype obstacle) const;
    void checkSafePlaces(qsizetype end);
    [[nodiscard]] static bool isTooLong(qsizetype start, qsizetype at, const Stretch &stretch);

    PairText m_text;
    LineBreaks &m_breaks;
    std::optional<LineEdges> m_edges;
    std::optional<TabStops> m_tabStops;
    bool m_startsWithinWord = false; // of the next line
    qsizetype m_lastSafePlace = 0;
    bool m_hasGivenUp = false; // for a reason other than m_text's
};
