// SPDX-License-Identifier: MIT
// The process's own connection to the session bus, for notifications alone, so that it can be made again
// after a loss without touching what other code does on the bus. Thread: any.  Used inside this folder only.
#pragma once

#include <QDBusConnection>
#include <QString>

#include <optional>

namespace SessionBusConnection {

/// The path and the interface of every notification, as docs/dbus/ describes them.
QString path();
QString interface();

/// Connects where there is no connection. Absent where that fails; the log gets one line for that until it
/// has worked again.
std::optional<QDBusConnection> connected();

/// The connection as it is, perhaps none.
QDBusConnection current();

/// Returns when the bus has taken in everything that was sent before. Does not wait for a bus that hangs: at
/// most two seconds the first time, and next to nothing until it answers again.
void settle(QDBusConnection &connection);

} // namespace SessionBusConnection
