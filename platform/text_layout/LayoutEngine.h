// SPDX-License-Identifier: MIT
// LayoutEngine lays styled text out in a column, paragraph by paragraph, and yields or counts the lines. It
// depends only on the text's attributes and the machine's fonts, not on a screen or other state of the
// process.
// Thread: one at a time.  Owner: the caller. Expensive to make, since it lists the machine's fonts; it
// becomes faster with use, since it keeps loaded fonts and measured words.
#pragma once

#include "platform/text_layout/LineFiller.h"

#include <functional>

/// One line: the part of the text that it holds, and its place in the column.
struct LineFragment {
    qsizetype start; ///< UTF-16 code units from the start of the text
    qsizetype length; ///< with hanging blanks and the line end
    double left; ///< points from the column's left edge to the line's text
    double width; ///< points, without hanging blanks
    double height; ///< points
};

class LayoutEngine {
public:
    /// All give the same lines. WholeRuns is simple, and the reference in tests. ByWords is faster. ByPairs
    /// is ByWords, but counts the lines of plain paragraphs without shaping.
    enum class Shaping { ByPairs, ByWords, WholeRuns };

    /// Logs a notice if the machine has no usable font; then all graphemes have the same width.
    explicit LayoutEngine(Shaping shaping = Shaping::ByPairs);
    /// fonts: those of an engine of another thread, which need not be listed again.
    explicit LayoutEngine(std::shared_ptr<const FontCatalogue> fonts, Shaping shaping = Shaping::ByPairs);
    [[nodiscard]] const std::shared_ptr<const FontCatalogue> &fonts() const { return m_fonts.catalogue(); }

    using Yield = std::function<void(const LineFragment &)>;

    /// Lays out one paragraph, as of paragraphAt(), and yields its lines in order, at least one. The
    /// paragraph's separator and the characters of isForcedLineBreak() end lines. columnWidth: points; if it
    /// is too small for any text, each grapheme has its own line.
    void layOutParagraph(
        const AttributedString &text, const Paragraph &paragraph, double columnWidth, const Yield &yield);

    /// Called for every line; start, end: UTF-16 code units of the text, as of LineFragment.
    using YieldLine = std::function<void(qsizetype start, qsizetype end)>;

    /// Called after every paragraph, and now and then in long ones. position: the UTF-16 code units laid out
    /// so far.
    using Progress = std::function<void(qsizetype position)>;

    /// The number of lines that layOutParagraph() would yield. yield: called for each, unless empty.
    quint64 countLinesOfParagraph(const AttributedString &text, const Paragraph &paragraph,
        double columnWidth, const YieldLine &yield = {}, const Progress &progress = {});

    /// The sum over all paragraphs; 0 for an empty text.
    quint64 countLines(const AttributedString &text, double columnWidth, const Progress &progress = {});

    /// The sum over the paragraphs that start before end; start is that of a paragraph (UTF-16 code units).
    quint64 countLines(const AttributedString &text, double columnWidth, qsizetype start, qsizetype end,
        const Progress &progress = {});

    /// Loads every font of the machine now. Afterwards, a layout opens no file.
    void loadAllFonts() { m_fonts.loadAll(); }

    /// The files of the fonts that the texts so far needed.
    [[nodiscard]] QByteArrayList fontFilesInUse() const { return m_fonts.loadedFiles(); }

private:
    template <typename Report>
    quint64 fillLines(
        const AttributedString &text, const Paragraph &paragraph, double columnWidth, Report &&report);
    [[nodiscard]] LineFragment describe(const AttributedString &text, const Paragraph &paragraph,
        LineBreaker &breaker, qsizetype start, const LineBreaker::Line &line);
    [[nodiscard]] qsizetype endOf(
        const Paragraph &paragraph, qsizetype start, const LineBreaker::Line &line) const;
    [[nodiscard]] double heightOf(qsizetype start, qsizetype end, qsizetype separator);

    FontLibrary m_fonts;
    MeasuredParagraph m_paragraph;
    LineBreaks m_breaks;
    LineFiller m_filler{m_fonts, m_paragraph.shaper(), m_breaks};
    std::vector<qsizetype> m_lineEnds; // of the paragraph, if its lines are wanted
    bool m_isByPairs;
};
