// SPDX-License-Identifier: MIT
#include "platform/session_bus/SessionBusClient.h"

#include <atomic>

namespace {

QString nextName()
{
    static std::atomic<quint64> count = 0;
    return QStringLiteral("com.quillbay.connection.%1").arg(++count);
}

// libdbus keeps the address that it finds first for as long as the process lives, even one at which nobody
// answered, so the address is read here at every attempt.
QDBusConnection newConnection(const QString &name)
{
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    return address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                             : QDBusConnection::connectToBus(address, name);
}

} // namespace

SessionBusClient::SessionBusClient()
    : m_name(nextName())
    , m_bus(m_name)
{
}

SessionBusClient::~SessionBusClient()
{
    QDBusConnection::disconnectFromBus(m_name);
}

bool SessionBusClient::connect()
{
    if (m_bus.isConnected())
        return true;
    QDBusConnection::disconnectFromBus(m_name); // a lost one keeps its name otherwise
    m_bus = newConnection(m_name);
    return m_bus.isConnected();
}
