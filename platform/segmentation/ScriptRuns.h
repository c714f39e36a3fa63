// SPDX-License-Identifier: MIT
// The scripts of a text (UAX #24), as a shaper wants them.
// Thread: any.
#pragma once

#include <QStringView>

/// A stretch in one script. Characters that many scripts share (spaces, digits, marks) belong to the script
/// before them, at the start of a text to the one behind them.
struct ScriptRun {
    qsizetype end; ///< UTF-16 code units from the start of the text
    quint32 script; ///< ISO 15924 code, its four letters from the highest byte down; 'Zyyy' if there is none
};

/// The run that starts at a position (0 to the length - 1). before: the script of the run that ends there, or
/// 0 at the start of the text. Takes time in proportion to the run.
ScriptRun scriptRunAt(QStringView text, qsizetype position, quint32 before);
