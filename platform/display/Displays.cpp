// SPDX-License-Identifier: MIT
#include "platform/display/Displays.h"

#include "platform/wayland/WaylandConnection.h"

#include <QDir>
#include <QLibraryInfo>

#include <xcb/xcb.h>

namespace {

bool answersX()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    xcb_connection_t *const connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace

void Displays::forgetUnreachable()
{
    if (!answersX())
        qunsetenv("DISPLAY");
    if (!WaylandConnection().isConnected())
        qunsetenv("WAYLAND_DISPLAY");
}

bool Displays::hasWaylandPlugin()
{
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    return qEnvironmentVariableIsSet("QT_PLUGIN_PATH")
        || !plugins.entryList({QStringLiteral("libqwayland*")}).isEmpty();
}

bool Displays::isAny()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")
        || (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && hasWaylandPlugin());
}

bool Displays::keepWindowsAbove()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY");
}
