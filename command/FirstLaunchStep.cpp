// SPDX-License-Identifier: MIT
#include "command/FirstLaunchStep.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"
#include "platform/defaults/FaultText.h"
#include "preferences/QBYUserDefaultsController.h"

void runFirstLaunchStep()
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    const auto unstored = QBYUserDefaultsController::unstoredDefaults();
    if (!unstored)
        return;
    reportError(
        CommandText::tr("%1: cannot be written (%2), so the default rules apply; make the folder writable to "
                        "set your own")
            .arg(QString::fromUtf8(printableName(unstored->file.toUtf8())), faultText(unstored->reason)));
}
