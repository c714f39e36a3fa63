// SPDX-License-Identifier: MIT
// DistributedNotificationCenter tells every process of the user's session that something has happened: a
// name, nothing more. Who wants to know uses NotificationObserver. Thread: any.
#pragma once

#include <QString>

/// A notification is a signal on the session bus, described in docs/dbus/. It needs a QCoreApplication.
/// Without one, or without a bus, notifications reach nobody, and the log gets one line for as long as that
/// lasts.
class DistributedNotificationCenter {
public:
    /// Reaches every observer of this name that there is at the call, in this process too, on the observers'
    /// own event loops and in the order of the posts of this thread. When it returns, the notification is
    /// with the bus: the process may end. It takes one round trip to the bus, and never more than two
    /// seconds. name: a D-Bus member name: letters, digits and underscores, no digit first, at most 255.
    static void post(const QString &name);
};
