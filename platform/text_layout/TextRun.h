// SPDX-License-Identifier: MIT
// TextRun is a stretch of a paragraph that is measured in one way: with one font, script and direction, or as
// one kind of character without a font. Cutting a paragraph into runs is left to Itemizer.
// Thread: any; values.
#pragma once

#include "platform/text_layout/FontLibrary.h"

#include <algorithm>
#include <cmath>

/// Makes a document's number safe for arithmetic: clamps it, with NaN as 0.
inline double clampNumber(double value, double min, double max)
{
    return std::clamp(std::isnan(value) ? 0.0 : value, min, max);
}

/// The advance of an attachment, that of a large icon: the size of images is not read.
inline constexpr double attachmentAdvance = 32; // points

/// The advance of a grapheme cluster if the machine has no usable font, as a fraction of the point size:
/// about that of a letter in Helvetica.
inline constexpr double fontlessAdvance = 0.55;

/// Whether a code unit is a control character without an advance: all but the tab.
inline bool isInvisibleControl(char16_t unit)
{
    const bool isControl = unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x2028 || unit == 0x2029;
    return isControl && unit != u'\t';
}

/// The attributes of a text that affect widths. All numbers are finite and in their ranges.
struct TextStyle {
    FontChain *fonts = nullptr; ///< null if the machine has none
    QByteArray language; ///< as of canonicalLanguage()
    double pointSize = 12; ///< 0.01 to 10,000
    double tracking = 0; ///< points, -1,000 to 1,000
    double baselineOffset = 0; ///< points, -10,000 to 10,000
};

struct TextRun {
    enum class Kind {
        Text,
        ExcessMarks, ///< nonspacing marks after so many in their cluster that they are not shaped: no advance
        Tab,
        Attachment,
        Invisible, ///< a control character: no advance
    };

    qsizetype start; ///< UTF-16 code units from the start of the paragraph
    qsizetype end;
    Kind kind;
    bool isCut; ///< ended only by the maximum length: the next run has the same properties
    bool isRightToLeft;
    quint32 script; ///< as of ScriptRun
    FontFace *face; ///< of Text; null if there is none
    TextStyle style;
};
