// SPDX-License-Identifier: MIT
// The first-launch step: writes the default preferences of a new user.
// Thread: main, like the print settings.
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

/// The paper of new users: the default of the shared print settings. ETIMEDOUT if the printer does not answer
/// within their timeout.
Result<Paper, PrintingStatus> systemDefaultPaper();

/// Writes the defaults in one transaction. Does nothing if any process has written them before. Without a
/// paper, does not write the keys of the paper, and logs an error. If the suite cannot be written, they
/// become its fallback values, so that this process counts like any other of a new user.
void writeFirstLaunchDefaults(UserDefaults &defaults, const DefaultPaperLookup &lookUpDefaultPaper);
