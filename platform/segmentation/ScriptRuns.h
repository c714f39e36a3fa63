// SPDX-License-Identifier: MIT
// The scripts of a text (UAX #24), in the form that shaping needs.
// Thread: any.
#pragma once

#include <QStringView>

/// The code for characters that scripts share, 'Zyyy'.
inline constexpr quint32 sharedScript = 0x5A797979;

/// A stretch in one script. Characters that scripts share (spaces, digits, marks) belong to the script before
/// them, or after them at the start of a text.
struct ScriptRun {
    qsizetype end; ///< UTF-16 code units from the start of the text
    quint32 script; ///< ISO 15924 code, its four letters from the highest byte to the lowest
};

/// The run that starts at a position (0 to the length - 1). before: the script of the previous run, or 0 at
/// the start of the text. Takes time proportional to the run.
ScriptRun scriptRunAt(QStringView text, qsizetype position, quint32 before);
