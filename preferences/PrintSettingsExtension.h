// SPDX-License-Identifier: MIT
// Extensions of PrintSettings: the papers to choose from, and the paper of the preferences.
// Thread: main.
#pragma once

#include "preferences/QBYPaper.h"

#include <vector>

class PrintSettings;

namespace QBYExtension {

/// The paper of those who have chosen none.
inline QString paperNameWithoutChoice()
{
    return QStringLiteral("Letter");
}

/// The current printer's papers in its own order; the built-in catalogue if there is no printer or it does
/// not answer.
std::vector<QBYPaper> getAllPaperObjects(PrintSettings &printSettings);

/// The first of those papers with exactly that name; absent if there is none.
std::optional<QBYPaper> paperObjectForPaperName(PrintSettings &printSettings, const QString &paperName);

/// The paper that the preferences name; "Letter" if they name none.
///
/// If the printer lacks that paper, its default paper becomes the preference, which is announced, and the
/// result; absent if the default paper has no name. If the printer does not answer, nothing is stored, and
/// the result is absent unless the built-in catalogue has the paper. If the preference cannot be read, it
/// counts as none, and nothing is stored either.
std::optional<QBYPaper> currentPaperObject(PrintSettings &printSettings);

} // namespace QBYExtension
