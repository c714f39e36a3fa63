// SPDX-License-Identifier: MIT
// SessionBusConnection is one client of the session bus, with a unique name of its own there. It connects
// when it is first used, and again after the bus was lost; what is sent over it is its users' business.
// Thread: any.  Owner: the process for shared(); otherwise whoever needs a client of their own.
#pragma once

#include "platform/system/Result.h"

#include <QDBusConnection>
#include <QString>

#include <atomic>
#include <mutex>

class SessionBusConnection {
public:
    SessionBusConnection();
    SessionBusConnection(const SessionBusConnection &) = delete;
    SessionBusConnection &operator=(const SessionBusConnection &) = delete;
    /// Disconnects.
    ~SessionBusConnection();

    /// The connection that the code of this process shares, unless it must be told apart on the bus.
    static SessionBusConnection &shared();

    /// Connects unless it is connected. The error is the reason why there is no connection. Waits for the bus
    /// for at most 25 seconds, the timeout of libdbus. Needs a QCoreApplication.
    Result<QDBusConnection, QString> connect();

    /// The connection as it is; not connected before connect() or after the bus was lost.
    [[nodiscard]] QDBusConnection current() const { return QDBusConnection(m_name); }

    /// Waits until the bus has received everything that was sent before. A bus that does not answer costs two
    /// seconds and a line in the log once, then next to nothing until it answers again.
    void settle();

private:
    const QString m_name;
    std::mutex m_mutex; // held while connecting
    std::atomic<bool> m_isSilent = false; // the bus did not answer the last time
};
