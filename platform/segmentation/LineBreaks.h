// SPDX-License-Identifier: MIT
// LineBreaks answers where a paragraph may be broken into lines: UAX #14 by ICU's root rules, dictionaries
// for the scripts that need them. Asked near the end of every line, it looks at little else.
// Thread: one at a time.  Owner: whoever makes it; dear to make, kept for the next paragraph.
#pragma once

#include "platform/segmentation/BreakIterator.h"

#include <QStringView>

/// Whether a line ends behind this character wherever it stands (classes BK and NL, LB4 and LB5). Carriage
/// return and line feed end lines too, but never stand inside a paragraph.
bool isForcedLineBreak(char16_t unit);

class LineBreaks {
public:
    /// The paragraph, without its separator, must live until the last question.
    void setParagraph(QStringView text);

    /// The last opportunity at or before a position (UTF-16 code units from the start of the paragraph), or
    /// -1 where none is known. Questions should ascend: all together take time proportional to the length.
    /// One that goes back is answered where the text around it is simple, or else with -1.
    [[nodiscard]] qsizetype lastAtOrBefore(qsizetype position);

private:
    void restartAt(qsizetype boundary);
    void readUpTo(qsizetype position);

    BreakIterator m_iterator{BreakKind::Line};
    QStringView m_text;
    qsizetype m_base = 0; // where the text of m_iterator starts, itself a boundary
    qsizetype m_last = 0; // the last two boundaries that it gave
    qsizetype m_next = 0;
};
