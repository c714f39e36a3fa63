// SPDX-License-Identifier: MIT
// LayoutEngine sets styled text in a column, one paragraph after the other, and yields or counts the lines.
// It reads the text's attributes and the fonts of the machine, nothing else: no screen, no state of the
// process, so that every thread may have an engine of its own.
// Thread: one at a time.  Owner: whoever makes it; dear to make (it lists the machine's fonts), and quicker
// with every text, since it keeps the fonts it has loaded and the words it has measured.
#pragma once

#include "platform/text_layout/LineBreaker.h"
#include "platform/text_layout/LineFragment.h"

#include <functional>

class LayoutEngine {
public:
    /// Both give the same lines. ByWords is the quick one, WholeRuns the plain one that it is tested against.
    enum class Shaping { ByWords, WholeRuns };

    /// Logs one notice where the machine has no usable font; every grapheme is as wide as the others then.
    explicit LayoutEngine(Shaping shaping = Shaping::ByWords);

    using Yield = std::function<void(const LineFragment &)>;

    /// Lays out one paragraph, as of paragraphAt(), and yields its lines in order, at least one. Every line
    /// end ends a line: the paragraph's separator and the characters of isForcedLineBreak(). columnWidth:
    /// points; where it is too small for anything, each grapheme has a line.
    void layOutParagraph(
        const AttributedString &text, const Paragraph &paragraph, double columnWidth, const Yield &yield);

    /// The number of lines that layOutParagraph() would yield; keeps none of them.
    quint64 countLinesOfParagraph(
        const AttributedString &text, const Paragraph &paragraph, double columnWidth);

    /// Told, after every paragraph, the UTF-16 code units laid out so far.
    using Progress = std::function<void(qsizetype position)>;

    /// The sum over all paragraphs; 0 for an empty text.
    quint64 countLines(const AttributedString &text, double columnWidth, const Progress &progress = {});

    /// The sum over those that start from one paragraph's start on and before end (UTF-16 code units).
    quint64 countLines(const AttributedString &text, double columnWidth, qsizetype start, qsizetype end,
        const Progress &progress = {});

    /// The files of the fonts that all texts so far needed.
    [[nodiscard]] QByteArrayList fontFilesInUse() const { return m_fonts.loadedFiles(); }

private:
    template <typename Report>
    quint64 fillLines(
        const AttributedString &text, const Paragraph &paragraph, double columnWidth, Report &&report);
    [[nodiscard]] LineFragment describe(const AttributedString &text, const Paragraph &paragraph,
        LineBreaker &breaker, qsizetype start, const LineBreaker::Line &line);
    [[nodiscard]] double heightOf(qsizetype start, qsizetype end, qsizetype separator);

    FontLibrary m_fonts;
    MeasuredParagraph m_paragraph;
    LineBreaks m_breaks;
};
