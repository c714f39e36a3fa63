// SPDX-License-Identifier: MIT
// The checks of the user's desktop. Each asks the real thing, by the code that Quillbay's programs use: it
// has a document read, has words counted, sends the provider a message.
// Thread: any, one check at a time; a check may block, which Examination bounds.
#pragma once

#include "doctor/Finding.h"

#include <chrono>
#include <vector>

struct Check {
    const char *name; ///< for programs, such as "session-bus"
    /// The names of earlier checks: if one of them is broken, this one is left out.
    std::vector<const char *> needs;
    Finding (*run)();
    std::chrono::milliseconds timeout{2000};
};

/// In the order in which they are reported.
const std::vector<Check> &allChecks();

// What the programs themselves need.
Finding checkVersions();
Finding checkLocale();
Finding checkPreferences();
Finding checkSandbox();

// What the counts of lines depend on.
Finding checkFonts();
Finding checkPaper();

// What the windows need of the session.
Finding checkDisplay();
Finding checkSessionBus();
Finding checkCountingService();
Finding checkWindows();
Finding checkStayingAbove();
Finding checkSelection();
Finding checkNotifications();
Finding checkTray();

Finding checkFileManagers();

// What watched files need.
Finding checkWatches();
Finding checkSpeech();
