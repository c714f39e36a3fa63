// SPDX-License-Identifier: MIT
// SessionBusClient is one client of the session bus, with a unique name of its own there.
// Thread: that of the connections; its calls may wait for the bus.  Owner: ServiceChannel. Used inside this
// folder only.
#pragma once

#include <QDBusConnection>
#include <QString>

/// Connects when it is first used, and again after the bus has gone.
class SessionBusClient {
public:
    SessionBusClient();
    SessionBusClient(const SessionBusClient &) = delete;
    SessionBusClient &operator=(const SessionBusClient &) = delete;
    ~SessionBusClient();

    [[nodiscard]] bool isConnected() const { return bus().isConnected(); }
    /// Whether there is a connection now. Gives up after 25 seconds, as the bus library does.
    bool connect();
    /// The connection as it is, perhaps none; lastError() of it tells why.
    [[nodiscard]] const QDBusConnection &bus() const { return m_bus; }

private:
    QString m_name;
    QDBusConnection m_bus;
};
