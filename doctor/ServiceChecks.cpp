// SPDX-License-Identifier: MIT
// The checks of the session bus and of the programs that it starts.
#include "doctor/Checks.h"
#include "platform/pasteboard/Pasteboard.h"
#include "platform/services/ServiceInterface.h"
#include "platform/services/ServiceMessageSender.h"
#include "platform/session_bus/SessionBusState.h"
#include "platform/styled_text/AttributedString.h"
#include "presentation/ServiceCounter.h"
#include "presentation/WordCounterServiceProtocol.h"

namespace {

QString remedyForService(const QString &busName)
{
    if (!canSessionBusStart(busName))
        return Doctor::tr(
            "The bus does not know the service %1. Install the package quillbay again; after an "
            "installation to another place, log out and in again.")
            .arg(busName);
    return Doctor::tr("Log out and in again. If that does not help, look for \"quillbay\" in the output of "
                      "\"journalctl --user --since today\".");
}

} // namespace

Finding checkSessionBus()
{
    if (const std::optional<QString> fault = sessionBusFault())
        return brokenFinding(Doctor::tr("There is no session bus, so no window can open: %1.").arg(*fault),
            Doctor::tr("Run this in a terminal of your desktop. \"quillbay count\" needs no bus."));
    return goodFinding(Doctor::tr("The session bus answers."));
}

Finding checkCountingService()
{
    const auto stats = ServiceCounter().countText(AttributedString(QStringLiteral("One two three.")));
    if (!stats)
        return brokenFinding(Doctor::tr("Texts in windows are not counted: %1.").arg(stats.error()),
            remedyForService(WordCounterServiceProtocol::serviceName()));
    if (stats.value().numberOfWords != 3)
        return brokenFinding(Doctor::tr("The counting service counts %1 words in \"One two three.\"")
                                 .arg(stats.value().numberOfWords),
            Doctor::tr("Install the package quillbay again."));
    return goodFinding(Doctor::tr("The counting service counts three words in \"One two three.\""));
}

Finding checkWindows()
{
    // As the commands do. Without a file to watch, the provider refuses, and exits unless it has windows.
    exportSessionEnvironment();
    const std::optional<ServiceMessageFailure> failure =
        sendServiceMessage(QStringLiteral("watchTheTextFileService"), Pasteboard(Pasteboard::Forms()));
    if (failure && failure->cause != ServiceMessageFailure::Cause::Refused)
        return brokenFinding(
            Doctor::tr("The program with the windows does not start: %1.").arg(causeText(*failure)),
            remedyForService(ServiceInterface::busName()));
    return goodFinding(Doctor::tr("The program with the windows starts."));
}

Finding checkNotifications()
{
    const QString server = QStringLiteral("org.freedesktop.Notifications");
    if (isOnSessionBus(server) || canSessionBusStart(server))
        return goodFinding(Doctor::tr("The desktop shows notifications."));
    return limitedFinding(
        Doctor::tr("The desktop shows no notifications: an error is invisible where Quillbay was not started "
                   "in a terminal."),
        Doctor::tr("Install a notification server, such as the package dunst."));
}
