// SPDX-License-Identifier: MIT
// TextRun is a stretch of a paragraph that is measured in one way: one font, script, direction, or one kind
// of character that no font decides. Thread: any; values.
#pragma once

#include "platform/text_layout/FontLibrary.h"

/// The advance of an attachment: images are not looked at, and a large icon is the usual picture of a file.
inline constexpr double attachmentAdvance = 32; // points

/// The advance of a grapheme cluster where the machine has no usable font, in parts of the point size: about
/// that of a letter of Helvetica.
inline constexpr double fontlessAdvance = 0.55;

/// The attributes of a text that decide widths, made safe: every number finite and within bounds.
struct TextStyle {
    FontChain *fonts = nullptr; ///< null where the machine has none
    QByteArray language; ///< as of canonicalLanguage()
    double pointSize = 12; ///< 0.01 to 10,000
    double tracking = 0; ///< points, -1,000 to 1,000
    double baselineOffset = 0; ///< points, -10,000 to 10,000
};

struct TextRun {
    enum class Kind {
        Text,
        Tab,
        Attachment,
        Invisible, ///< a control character: no advance
    };

    qsizetype start; ///< UTF-16 code units from the start of the paragraph
    qsizetype end;
    Kind kind;
    bool isCut; ///< only its greatest length ends it: the text goes on in the same way
    bool isRightToLeft;
    quint32 script; ///< as of ScriptRun
    FontFace *face; ///< of Text; null where there is none
    TextStyle style;
};
