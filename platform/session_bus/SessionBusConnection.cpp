// SPDX-License-Identifier: MIT
#include "platform/session_bus/SessionBusConnection.h"

#include "platform/logging/LogChannel.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusMessage>

namespace {

constexpr int timeout = 2000; // milliseconds
constexpr int silentBusTimeout = 20;

QString nextName()
{
    static std::atomic<quint64> count = 0;
    return QStringLiteral("com.quillbay.connection.%1").arg(++count);
}

// libdbus remembers the first address for the life of the process, even if nobody answered there. This reads
// the address at every attempt.
QDBusConnection connectToBus(const QString &name)
{
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    return address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                             : QDBusConnection::connectToBus(address, name);
}

} // namespace

SessionBusConnection::SessionBusConnection()
    : m_name(nextName())
{
}

SessionBusConnection::~SessionBusConnection()
{
    QDBusConnection::disconnectFromBus(m_name);
}

SessionBusConnection &SessionBusConnection::shared()
{
    // Never destroyed: observers may outlive any static object.
    static auto *const connection = new SessionBusConnection;
    return *connection;
}

Result<QDBusConnection, QString> SessionBusConnection::connect()
{
    if (!QCoreApplication::instance())
        return QStringLiteral("there is no application object");
    const std::lock_guard guard(m_mutex);
    if (QDBusConnection connection = current(); connection.isConnected())
        return connection;
    QDBusConnection::disconnectFromBus(m_name); // otherwise the lost connection keeps the name
    const QDBusConnection connection = connectToBus(m_name);
    if (connection.isConnected())
        return connection;
    const QString reason = connection.lastError().message();
    QDBusConnection::disconnectFromBus(m_name);
    return reason;
}

void SessionBusConnection::settle()
{
    // Qt sends from a thread of its own, so a process that exits at once would lose its last messages. The
    // bus handles the messages of one connection in order: its answer shows that it has received those
    // before.
    const QDBusMessage ping = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus.Peer"),
        QStringLiteral("Ping"));
    const QDBusConnection connection = current();
    const QDBusMessage reply = connection.call(ping, QDBus::Block, m_isSilent ? silentBusTimeout : timeout);
    const bool timedOut = reply.type() == QDBusMessage::ErrorMessage && connection.isConnected();
    if (timedOut && !m_isSilent)
        LogChannel::standard().error(u"The session bus does not answer");
    m_isSilent = timedOut;
}
