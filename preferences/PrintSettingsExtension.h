// SPDX-License-Identifier: MIT
// What the product asks of print settings: the papers to choose from, and the one that the preferences name.
// Thread: main.
#pragma once

#include "preferences/QBYPaper.h"

#include <vector>

class PrintSettings;

namespace QBYExtension {

/// The current printer's papers in its own order; the built-in catalogue where there is no printer, or while
/// it is not answering.
std::vector<QBYPaper> getAllPaperObjects(PrintSettings &printSettings);

/// The first of those papers with exactly that name; absent if there is none.
std::optional<QBYPaper> paperObjectForPaperName(PrintSettings &printSettings, const QString &paperName);

/// The paper that the preferences name, "Letter" where they name none.
///
/// If the printer lacks it, the printer's default paper becomes the preference, which is announced, and the
/// result; absent if that has no name. While the printer is not answering nobody knows what it lacks: then
/// nothing is stored, and the result is absent unless the built-in catalogue has the paper. Nor is anything
/// stored where the preference cannot be read, which counts as none for this call.
std::optional<QBYPaper> currentPaperObject(PrintSettings &printSettings);

} // namespace QBYExtension
