// SPDX-License-Identifier: MIT
// MeasuredParagraph gives the advance of every code unit of a paragraph, measured as the line breaker gets
// there and forgotten behind it: what it holds is a line or two, not the paragraph.
// Thread: one at a time.  Owner: LayoutEngine.
#pragma once

#include "platform/text_layout/Itemizer.h"
#include "platform/text_layout/Shaper.h"

#include <deque>
#include <vector>

/// Positions are UTF-16 code units from the start of the paragraph, advances points.
class MeasuredParagraph {
public:
    /// isByWords: shape single words, out of a cache, where that gives the same advances.
    MeasuredParagraph(FontLibrary &fonts, bool isByWords)
        : m_itemizer(fonts)
        , m_isByWords(isByWords)
    {
    }

    /// The text must live until the next setParagraph().
    void setParagraph(const AttributedString &text, const Paragraph &paragraph);

    [[nodiscard]] QStringView text() const { return m_text; }
    [[nodiscard]] bool isRightToLeft() const { return m_itemizer.isParagraphRightToLeft(); }

    /// Measures a stretch further than measuredEnd(), unless that is the paragraph's end.
    void measureMore();
    [[nodiscard]] qsizetype measuredEnd() const { return m_base + static_cast<qsizetype>(m_advances.size()); }

    // Of units from the last line start to measuredEnd() - 1.
    [[nodiscard]] double advance(qsizetype position) const { return m_advances[index(position)]; }
    [[nodiscard]] quint8 flags(qsizetype position) const { return m_flags[index(position)]; }
    /// The run of a unit.
    [[nodiscard]] const TextRun &runAt(qsizetype position) const;

    /// Says that a line starts here: what stands before it is no longer asked for, and what follows is
    /// measured without it. A line that starts within a word, for want of room, keeps the advances of the
    /// whole word.
    void startLineAt(qsizetype position, bool isWithinWord);

    /// What the advances from lineStart to end - 1 grow by (or shrink, if negative) when the line ends at
    /// end. Blanks at the end are left out, since they hang.
    [[nodiscard]] double changeWhenLineEndsAt(qsizetype lineStart, qsizetype end);

    /// The advance of a hyphen in the font of a unit.
    [[nodiscard]] double hyphenAdvanceAt(qsizetype position);

    [[nodiscard]] TextStyle styleOfSeparator(qsizetype position) { return m_itemizer.styleAt(position); }

private:
    [[nodiscard]] size_t index(qsizetype position) const { return static_cast<size_t>(position - m_base); }
    void append(double advance, int flags);
    void appendFontless(const TextRun &run);
    void appendShaped(TextRun run);
    void forgetBefore(qsizetype position);
    /// The next unit from a position on, at most farthest, before which shaping may be cut.
    [[nodiscard]] qsizetype safePositionFrom(qsizetype position) const;
    [[nodiscard]] qsizetype safePositionBefore(qsizetype position, qsizetype least) const;

    Itemizer m_itemizer;
    Shaper m_shaper;
    bool m_isByWords;
    QStringView m_text;
    qsizetype m_base = 0; // of the first unit that is held
    std::vector<double> m_advances;
    std::vector<quint8> m_flags;
    std::deque<TextRun> m_runs; // of the units that are held
    std::vector<float> m_shapedAdvances; // scratch
    std::vector<quint8> m_shapedFlags;
};
