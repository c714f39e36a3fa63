// SPDX-License-Identifier: MIT
// The scripts of a text (UAX #24), in the form that shaping needs.
// Thread: any; ScriptRuns one at a time.
#pragma once

#include "platform/segmentation/CodeUnitTable.h"

#include <QStringView>

/// The code for characters that scripts share, 'Zyyy'.
inline constexpr quint32 sharedScript = 0x5A797979;

/// The script of a character, its four letters from the highest byte to the lowest (ISO 15924).
quint32 scriptOf(char32_t character);

/// A stretch in one script. Characters that scripts share (spaces, digits, marks) belong to the script before
/// them, or after them at the start of a text.
struct ScriptRun {
    qsizetype end; ///< UTF-16 code units from the start of the text
    quint32 script; ///< as of scriptOf()
};

class ScriptRuns {
public:
    /// The run that starts at a position (0 to the length - 1). before: the script of the previous run, or 0
    /// at the start of the text. Takes time proportional to the run.
    ScriptRun runAt(QStringView text, qsizetype position, quint32 before);

private:
    CodeUnitTable<quint32> m_scripts{[](char16_t unit) { return scriptOf(unit); }};
};
