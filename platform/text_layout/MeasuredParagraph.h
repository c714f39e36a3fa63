// SPDX-License-Identifier: MIT
// MeasuredParagraph gives the advance of every code unit of a paragraph. It measures as the line breaker
// proceeds and discards what is before the present line, so that it holds a line or two, not the paragraph.
// Thread: one at a time.  Owner: LayoutEngine.
#pragma once

#include "platform/text_layout/Itemizer.h"
#include "platform/text_layout/Shaper.h"

#include <deque>
#include <vector>

/// Positions are UTF-16 code units from the start of the paragraph, advances points.
class MeasuredParagraph {
public:
    /// isByWords: shape single words, with a cache, where that gives the same advances.
    MeasuredParagraph(FontLibrary &fonts, bool isByWords)
        : m_itemizer(fonts)
        , m_isByWords(isByWords)
    {
    }

    /// text: must live until the next setParagraph().
    void setParagraph(const AttributedString &text, const Paragraph &paragraph);

    [[nodiscard]] QStringView text() const { return m_text; }
    [[nodiscard]] bool isRightToLeft() const { return m_itemizer.isParagraphRightToLeft(); }

    /// Measures another stretch from measuredEnd() on, unless that is the paragraph's end.
    void measureMore();
    [[nodiscard]] qsizetype measuredEnd() const { return m_base + static_cast<qsizetype>(m_advances.size()); }

    // For code units from the last line's start to measuredEnd() - 1.
    [[nodiscard]] double advance(qsizetype position) const { return m_advances[index(position)]; }
    [[nodiscard]] quint8 flags(qsizetype position) const { return m_flags[index(position)]; }
    /// The run that contains a code unit.
    [[nodiscard]] const TextRun &runAt(qsizetype position) const;

    /// Starts a line: discards what is before it and measures its first characters without it. A line that
    /// starts within a word, because the word did not fit, keeps the advances of the whole word.
    void startLineAt(qsizetype position, bool isWithinWord);

    /// By how much the advances from lineStart to end - 1 grow (or shrink, if negative) when the line ends at
    /// end. Excludes blanks at the end, which hang.
    [[nodiscard]] double changeWhenLineEndsAt(qsizetype lineStart, qsizetype end);

    /// The advance of a hyphen in the font of a code unit.
    [[nodiscard]] double hyphenAdvanceAt(qsizetype position);

    [[nodiscard]] TextStyle styleOfSeparator(qsizetype position) { return m_itemizer.styleAt(position); }

    /// For those who measure without a paragraph.
    [[nodiscard]] Shaper &shaper() { return m_shaper; }

private:
    [[nodiscard]] size_t index(qsizetype position) const { return static_cast<size_t>(position - m_base); }
    void append(double advance, int flags);
    void appendFontless(const TextRun &run);
    void appendShaped(TextRun run);
    void discardBefore(qsizetype position);
    /// The nearest code unit, from a position on or before it, at which shaping may be split.
    [[nodiscard]] qsizetype safePositionFrom(qsizetype position) const;
    [[nodiscard]] qsizetype safePositionBefore(qsizetype position, qsizetype min) const;

    Itemizer m_itemizer;
    Shaper m_shaper;
    bool m_isByWords;
    QStringView m_text;
    qsizetype m_base = 0; // of the first code unit that is held
    std::vector<double> m_advances;
    std::vector<quint8> m_flags;
    std::deque<TextRun> m_runs; // of the code units that are held
    std::vector<float> m_shapedAdvances; // buffers for the shaper
    std::vector<quint8> m_shapedFlags;
};
