// SPDX-License-Identifier: MIT
#include "command/FirstLaunchStep.h"

#include "command/FileNames.h"
#include "preferences/QBYUserDefaultsController.h"

#include <cstdio>

void runFirstLaunchStep()
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    const auto unstored = QBYUserDefaultsController::unstoredDefaults();
    if (!unstored)
        return;
    std::fprintf(stderr,
        "quillbay: %s: cannot be written (%s), so the default rules apply; make the folder "
        "writable to set your own\n",
        printableName(unstored->file.toUtf8()).constData(),
        printableName(unstored->reason.toUtf8()).constData());
}
