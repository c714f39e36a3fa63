// SPDX-License-Identifier: MIT
// The service provider: the program behind the windows of statistics, started by the session bus.
#include "front_end/ProviderApplication.h"
#include "platform/system/PrivateMemory.h"
#include "platform/views/widgets/ApplicationActivitySource.h"
#include "platform/views/widgets/DesktopAppearance.h"
#include "platform/views/widgets/WidgetDesktop.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <cstdlib>

namespace {

// The exit statuses, besides 0 when nothing is left to show.
constexpr int notServing = 1; // no display, or the services cannot be offered
constexpr int wrongUsage = 2;
constexpr int lostDisplay = 3;

bool isRunning = false;

/// Qt calls exit() in the middle of the event loop when the X server dies. Uses _Exit(): the destructors of
/// static objects would run beside threads that still work, and some of those objects are destroyed already.
void exitWithoutDisplay()
{
    if (isRunning)
        std::_Exit(lostDisplay); // Qt has said why
}

/// Only X11 (Xwayland, too) lets windows choose their place and stay above others on every desktop. What the
/// user says himself holds.
void choosePlatform()
{
    if (qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

} // namespace

int main(int argumentCount, char **arguments)
{
    keepMemoryPrivate();
    if (argumentCount > 1) {
        std::fputs("quillbay-service-provider: takes no arguments. The session bus starts it for the command "
                   "quillbay.\n",
            stderr);
        return wrongUsage;
    }
    if (!hasDisplay()) {
        std::fputs("quillbay-service-provider: there is no display to show windows on (DISPLAY and "
                   "WAYLAND_DISPLAY are not set)\n",
            stderr);
        return notServing;
    }
    choosePlatform();
    QApplication application(argumentCount, arguments);
    QApplication::setApplicationDisplayName(QStringLiteral("Quillbay"));
    QApplication::setDesktopFileName(QStringLiteral("com.quillbay.Quillbay"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("com.quillbay.Quillbay")));
    QApplication::setQuitOnLastWindowClosed(false); // ProviderApplication knows when
    const DesktopAppearance appearance;
    WidgetDesktop desktop;
    ApplicationActivity activity(false);
    const ApplicationActivitySource activitySource(activity);
    ProviderApplication provider({.desktop = desktop, .applicationActivity = activity});
    if (!provider.start())
        return notServing;
    std::atexit(exitWithoutDisplay);
    isRunning = true;
    const int status = QApplication::exec();
    isRunning = false;
    return status;
}
