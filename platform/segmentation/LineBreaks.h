// SPDX-License-Identifier: MIT
// LineBreaks finds where a paragraph may be broken into lines: by UAX #14 with ICU's root rules, and
// dictionaries for the scripts that need them. It examines little more than the text around the ends of
// lines.
// Thread: one at a time.  Owner: the caller; expensive to make, to be reused for the next paragraph.
#pragma once

#include "platform/segmentation/BreakIterator.h"
#include "platform/segmentation/CodeUnitTable.h"

#include <QStringView>

/// Whether a line always ends after this character (classes BK and NL, LB4 and LB5). Carriage return and line
/// feed also end lines, but never occur inside a paragraph.
inline bool isForcedLineBreak(char16_t unit)
{
    return unit == u'\u000B' || unit == u'\u000C' || unit == u'\u0085' || unit == u'\u2028'
        || unit == u'\u2029';
}

class LineBreaks {
public:
    /// text: the paragraph without its separator; must live until the last call.
    void setParagraph(QStringView text);

    /// The last break opportunity at or before a position (UTF-16 code units from the start of the
    /// paragraph), or -1 if none is known. With ascending positions, all calls together take time
    /// proportional to the length; for an earlier position than before, the result is -1 unless the text
    /// around it is simple.
    [[nodiscard]] qsizetype lastAtOrBefore(qsizetype position);

private:
    // Classes of UAX #14, as far as the text between two of them decides nothing; Other for the rest.
    enum class Class : quint8 {
        Other,
        Space, // U+0020
        Letter, // AL, AI and XX
        Digit, // NU
        Ideograph, // ID, H2 and H3
        Open, // OP
        Close, // CL and CP
        Quote, // QU
        Infix, // IS
        Hyphen, // HY
        Follower, // EX, IN, NS and CJ: like Close, never the first of a line
    };

    [[nodiscard]] static bool areJoined(Class first, Class second);
    [[nodiscard]] static Class classOf(char16_t unit);
    Class classAt(qsizetype position);
    [[nodiscard]] qsizetype startOfEnglishWord(qsizetype position) const;
    bool isSimpleBoundary(qsizetype position);
    bool isJoined(qsizetype position);
    void restartAt(qsizetype boundary);
    void readUpTo(qsizetype position);

    BreakIterator m_iterator{BreakKind::Line};
    QStringView m_text;
    qsizetype m_base = 0; // a boundary, where the text of m_iterator starts
    qsizetype m_last = 0; // the last two boundaries of m_iterator
    qsizetype m_next = 0;
    CodeUnitTable<Class> m_classes{&classOf};
};
