// SPDX-License-Identifier: MIT
// LineBreaker fills the lines of one paragraph, each with as much as fits: it ends a line at the last
// opportunity before what does not fit, and within a word only where the word alone is wider than the column.
// Thread: one at a time.  Owner: LayoutEngine, for the time of one paragraph.
#pragma once

#include "platform/segmentation/LineBreaks.h"
#include "platform/text_layout/MeasuredParagraph.h"
#include "platform/text_layout/TabStops.h"

class LineBreaker {
public:
    /// The first three must outlive it and be set to the paragraph. columnWidth: points, any number.
    LineBreaker(
        MeasuredParagraph &paragraph, LineBreaks &breaks, const ParagraphStyle &style, double columnWidth);

    struct Line {
        qsizetype end; ///< UTF-16 code units from the start of the paragraph
        bool isForced; ///< it ends in a character that ends lines
    };

    /// The line that starts at a position (0 to the length - 1), which is 0 or the end of the last line.
    Line next(qsizetype start);

    /// What a line fills of its column.
    struct Extent {
        double leading; ///< points from the column's leading edge
        double width; ///< points, without the blanks that hang at the end
    };
    /// To be asked before the next line.
    [[nodiscard]] Extent extentOf(qsizetype start, const Line &line);

    /// Points between the column's leading edge and where lines must end; negative where the tail indent is
    /// greater than the column.
    [[nodiscard]] double lineEnd() const { return m_lineEnd; }
    [[nodiscard]] double columnWidth() const { return m_columnWidth; }

private:
    // Where the next character of a line goes: advances add up from the last tab on.
    struct Pen {
        double base = 0; // of the text behind the last tab
        double flow = 0; // its advance so far
        double content = 0; // the same, without the blanks at its end
        bool hasContent = false; // other than blanks
        double endOfEarlierContent = 0; // of what stands before the last tab, without its blanks
        double alignedAt = 0; // the stop that the text is aligned to
        TabAlignment alignment = TabAlignment::Left;

        [[nodiscard]] double positionAfter(double advance, double lineEnd) const;
        [[nodiscard]] double contentEnd(double lineEnd) const;
    };

    struct Obstacle {
        qsizetype position;
        enum class Kind { NoRoom, ForcedBreak, End } kind;
        qsizetype lastTabEnd; // behind the last tab before it, or the line's start
    };

    [[nodiscard]] Pen penAtStart(qsizetype start) const;
    [[nodiscard]] Obstacle findObstacle(qsizetype start);
    void moveBehindTab(Pen &pen, qsizetype tab);
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
    double m_firstIndent;
    double m_indent;
    double m_columnWidth;
    double m_lineEnd;
    bool m_startsWithinWord = false; // the next line
};
