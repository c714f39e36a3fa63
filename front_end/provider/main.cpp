// SPDX-License-Identifier: MIT
// The service provider: the program behind the windows of statistics, started by the session bus.
#include "front_end/provider/ProviderApplication.h"
#include "platform/processes/PrivateMemory.h"
#include "platform/views/widgets/ApplicationActivitySource.h"
#include "platform/views/widgets/DesktopAppearance.h"
#include "platform/views/widgets/WidgetDesktop.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>

namespace {

constexpr int wrongUsage = 2;

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
        return 1;
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
    return provider.start() ? QApplication::exec() : 1;
}
