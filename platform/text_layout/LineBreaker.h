// SPDX-License-Identifier: MIT
// LineBreaker breaks one paragraph into lines, each with as much text as fits: a line ends at the last break
// opportunity before the overflow, or within a word only if the word alone is wider than the column. Advances
// come from MeasuredParagraph.
// Thread: one at a time.  Owner: LayoutEngine, for one paragraph.
#pragma once

#include "platform/segmentation/LineBreaks.h"
#include "platform/text_layout/MeasuredParagraph.h"

/// Where the tabs of a paragraph lead. Refers to the paragraph style, which must outlive it.
class TabStops {
public:
    /// Uses an interval of 28 points if the style gives no valid one.
    explicit TabStops(const ParagraphStyle &style);

    /// The first stop after a position (points from the column's leading edge, finite): of the style's stops,
    /// then of the multiples of its interval.
    [[nodiscard]] TabStop nextAfter(double position) const;

private:
    const std::vector<TabStop> &m_stops;
    double m_interval;
};

/// Where the lines of a paragraph start and end, in points from the column's leading edge, in ranges that are
/// safe for arithmetic.
struct LineEdges {
    /// Sums of advances are not exact: text that fits exactly must fit, and a position this close to a tab
    /// stop is at it.
    static constexpr double tolerance = 1e-6;

    /// width: of the column; points, any number.
    LineEdges(const ParagraphStyle &style, double width);

    double firstIndent;
    double indent;
    double columnWidth;
    double end; ///< negative if the tail indent is wider than the column
};

class LineBreaker {
public:
    /// paragraph, breaks and style outlive the breaker and are set to the paragraph. columnWidth: points, any
    /// number.
    LineBreaker(
        MeasuredParagraph &paragraph, LineBreaks &breaks, const ParagraphStyle &style, double columnWidth);

    struct Line {
        qsizetype end; ///< UTF-16 code units from the start of the paragraph
        bool isForced; ///< ended by a forced break
    };

    /// The line at a position (0 to the length - 1), which is 0 or the end of the previous line.
    Line next(qsizetype start);

    /// The part of the column that a line fills.
    struct Extent {
        double leading; ///< points from the column's leading edge
        double width; ///< points, without hanging blanks
    };
    /// To be called before next() moves on.
    [[nodiscard]] Extent extentOf(qsizetype start, const Line &line);

    /// Points from the column's leading edge to where lines must end; negative if the tail indent is wider
    /// than the column.
    [[nodiscard]] double lineEnd() const { return m_edges.end; }
    [[nodiscard]] double columnWidth() const { return m_edges.columnWidth; }

private:
    // The place of a line's next character: advances are summed from the last tab on.
    struct Pen {
        double base = 0; // where the text after the last tab starts
        double flow = 0; // the advance of that text
        double content = 0; // the same without blanks at the end
        bool hasContent = false; // whether there is text other than blanks
        double endOfEarlierContent = 0; // of the text before the last tab, without blanks at the end
        double alignedAt = 0; // the tab stop to which the text is aligned
        TabAlignment alignment = TabAlignment::Left;

        [[nodiscard]] double positionAfter(double advance, double lineEnd) const;
        [[nodiscard]] double contentEnd(double lineEnd) const;
    };

    struct Obstacle {
        qsizetype position;
        enum class Kind { NoRoom, ForcedBreak, End } kind;
        qsizetype lastTabEnd; // after the last tab before it, or the line's start
    };

    [[nodiscard]] Pen penAtStart(qsizetype start) const;
    [[nodiscard]] Obstacle findObstacle(qsizetype start);
    void movePastTab(Pen &pen, qsizetype tab);
    [[nodiscard]] double advanceToDecimalSeparator(qsizetype start);
    [[nodiscard]] qsizetype opportunityBefore(const Obstacle &obstacle, qsizetype start);
    [[nodiscard]] double growthWhenBrokenAt(qsizetype start, qsizetype end);
    [[nodiscard]] bool fitsWhenBrokenAt(qsizetype start, qsizetype end);
    [[nodiscard]] Line breakWithinWord(qsizetype start, qsizetype obstacle);
    [[nodiscard]] Pen penAt(qsizetype start, qsizetype end);
    void measureUpTo(qsizetype position);

    MeasuredParagraph &m_paragraph;
    LineBreaks &m_breaks;
    TabStops m_tabStops;
    LineEdges m_edges;
    bool m_startsWithinWord = false; // of the next line
};
