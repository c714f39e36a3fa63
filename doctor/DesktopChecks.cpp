// SPDX-License-Identifier: MIT
// The checks of the display: windows, selections, the tray.
#include "doctor/Checks.h"
#include "platform/display/Displays.h"
#include "platform/display/XDisplay.h"
#include "platform/pasteboard/Selection.h"
#include "platform/session_bus/SessionBusState.h"
#include "platform/wayland/WaylandConnection.h"

#include <algorithm>
#include <array>

namespace {

QString xDisplayName()
{
    return qEnvironmentVariable("DISPLAY");
}

Finding waylandFinding(const QString &text)
{
    if (!Displays::hasWaylandPlugin())
        return brokenFinding(
            text + u' ' + Doctor::tr("Windows need an X display, or Qt's plugin for Wayland."),
            Doctor::tr("Install the package xwayland, or else qt6-wayland, and log in again."));
    return limitedFinding(text + u' '
            + Doctor::tr("Windows use Wayland directly, where they cannot choose their place or stay above "
                         "others."),
        Doctor::tr("Install Xwayland (package xwayland), log out and in again."));
}

} // namespace

Finding checkDisplay()
{
    const bool hasWayland = WaylandConnection().isConnected();
    if (xDisplayName().isEmpty()) {
        if (hasWayland)
            return waylandFinding(Doctor::tr("DISPLAY is not set."));
        return brokenFinding(Doctor::tr("There is no display for windows."),
            Doctor::tr("Run this in a terminal of your desktop. \"quillbay count\" needs no display."));
    }
    const QString name = Doctor::tr("the X display %1").arg(xDisplayName());
    if (readXDisplay())
        return goodFinding(hasWayland ? Doctor::tr("Windows appear on %1 of a Wayland session.").arg(name)
                                      : Doctor::tr("Windows appear on %1.").arg(name));
    const QString fault = Doctor::tr("DISPLAY names %1, which cannot be opened.").arg(name);
    return hasWayland ? waylandFinding(fault)
                      : brokenFinding(fault, Doctor::tr("Run this in a terminal of your desktop."));
}

Finding checkStayingAbove()
{
    const std::optional<XDisplay> display = readXDisplay();
    if (!display) // the finding of the display says why
        return noteFinding(Doctor::tr("Windows do not stay above others."));
    if (!display->hasWindowManager)
        return limitedFinding(
            Doctor::tr("There is no window manager: windows do not stay above others and cannot be moved."),
            Doctor::tr("Start a window manager, such as openbox or xfwm4."));
    const QString manager =
        display->windowManager.isEmpty() ? Doctor::tr("The window manager") : display->windowManager;
    if (!display->keepsWindowsAbove)
        return limitedFinding(Doctor::tr("%1 does not keep windows above others.").arg(manager),
            Doctor::tr("Use another window manager, or one of its rules for the windows of \"Quillbay\"."));
    return goodFinding(Doctor::tr("%1 keeps Quillbay's windows above others.").arg(manager));
}

Finding checkSelection()
{
    using Cause = SelectionFailure::Cause;
    constexpr quint64 maxBytes = 1 << 20;
    const Result<Pasteboard, SelectionFailure> selection =
        readSelection(SelectionName::Primary, SelectionContent::Text, maxBytes);
    constexpr std::array readable{Cause::NothingSelected, Cause::OtherContent, Cause::TooLarge};
    if (selection || std::find(readable.begin(), readable.end(), selection.error().cause) != readable.end())
        return goodFinding(Doctor::tr("The text that is selected in other programs can be read."));
    const QString cause = causeText(selection.error());
    if (selection.error().cause == Cause::NoAnswer || selection.error().cause == Cause::Refused)
        return noteFinding(Doctor::tr("The selection cannot be read now: %1.").arg(cause),
            Doctor::tr("Select text in another program and run this again."));
    return limitedFinding(Doctor::tr("Selections cannot be counted: %1.").arg(cause),
        Doctor::tr("Copy the text and count it with \"quillbay selection --clipboard\", or save it and watch "
                   "the file."));
}

Finding checkTray()
{
    const std::optional<XDisplay> display = readXDisplay();
    if ((display && display->showsTrayIcons)
        || isOnSessionBus(QStringLiteral("org.kde.StatusNotifierWatcher")))
        return goodFinding(Doctor::tr("The desktop has a tray for icons."));
    return noteFinding(Doctor::tr(
        "The desktop has no tray for icons. Quillbay needs none: every watched file has a window."));
}
