// SPDX-License-Identifier: MIT
// The first-launch step: the preferences of a user who has never had any.
// Thread: main, as the print settings are.
#pragma once

#include "platform/defaults/UserDefaults.h"
#include "platform/printing/Paper.h"
#include "platform/system/Result.h"

#include <functional>

/// Why the printing system could not name its default paper; never 0.
struct PrintingStatus {
    int code;
};

using DefaultPaperLookup = std::function<Result<Paper, PrintingStatus>()>;

/// The paper that new users get: the default of the shared print settings. ETIMEDOUT where a printer does not
/// answer within their limit.
Result<Paper, PrintingStatus> systemDefaultPaper();

/// Writes the defaults in one transaction, unless they have been written before, by this process or by any
/// other: then it changes nothing. Without a paper its keys stay unwritten, and the standard log says so.
void writeFirstLaunchDefaults(UserDefaults &defaults, const DefaultPaperLookup &lookUpDefaultPaper);
