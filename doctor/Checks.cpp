// SPDX-License-Identifier: MIT
#include "doctor/Checks.h"

using namespace std::chrono_literals;

const std::vector<Check> &allChecks()
{
    // On a busy machine, starting a program takes seconds.
    constexpr auto startTimeout = 10s;
    static const std::vector<Check> checks{
        {"versions", {}, checkVersions},
        {"locale", {}, checkLocale},
        {"preferences", {}, checkPreferences},
        {"sandbox", {}, checkSandbox, startTimeout},
        {"fonts", {}, checkFonts, startTimeout},
        {"paper", {}, checkPaper},
        {"display", {}, checkDisplay, startTimeout},
        {"session-bus", {}, checkSessionBus},
        {"counting-service", {"session-bus"}, checkCountingService, startTimeout},
        {"windows", {"session-bus", "display"}, checkWindows, startTimeout},
        {"staying-above", {"display"}, checkStayingAbove},
        {"selection", {"display"}, checkSelection, 5s},
        {"notifications", {"session-bus"}, checkNotifications},
        {"tray", {"session-bus", "display"}, checkTray},
        {"file-managers", {}, checkFileManagers},
        {"watching", {}, checkWatches},
        {"speech", {}, checkSpeech},
    };
    return checks;
}
