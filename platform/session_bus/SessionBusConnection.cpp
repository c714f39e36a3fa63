// SPDX-License-Identifier: MIT
#include "platform/session_bus/SessionBusConnection.h"

#include "platform/logging/LogChannel.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusMessage>

#include <atomic>
#include <mutex>

namespace {

constexpr int timeout = 2000; // milliseconds
constexpr int silentBusTimeout = 20;

const QString &connectionName()
{
    static const QString name = QStringLiteral("com.quillbay.notifications");
    return name;
}

// libdbus keeps the address that it finds first for as long as the process lives, even one at which nobody
// answered, so the address is read here at every attempt.
QDBusConnection newConnection()
{
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    return address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName())
                             : QDBusConnection::connectToBus(address, connectionName());
}

} // namespace

QString SessionBusConnection::path()
{
    return QStringLiteral("/com/quillbay/DistributedNotificationCenter");
}

QString SessionBusConnection::interface()
{
    return QStringLiteral("com.quillbay.DistributedNotificationCenter");
}

QDBusConnection SessionBusConnection::current()
{
    return QDBusConnection(connectionName());
}

std::optional<QDBusConnection> SessionBusConnection::connected()
{
    static std::mutex mutex;
    static bool isLogged = false;
    const std::lock_guard guard(mutex);
    QString reason = QStringLiteral("there is no application object");
    if (QCoreApplication::instance()) {
        if (QDBusConnection connection = current(); connection.isConnected())
            return connection;
        QDBusConnection::disconnectFromBus(connectionName()); // a lost one keeps its name otherwise
        const QDBusConnection connection = newConnection();
        if (connection.isConnected()) {
            isLogged = false;
            return connection;
        }
        reason = connection.lastError().message();
        QDBusConnection::disconnectFromBus(connectionName());
    }
    if (!std::exchange(isLogged, true))
        LogChannel::standard().error(
            u"No session bus, so notifications reach nobody: {}", {publicly(reason)});
    return std::nullopt;
}

void SessionBusConnection::settle(QDBusConnection &connection)
{
    static std::atomic<bool> isSilent = false;
    // Qt sends from a thread of its own, so that a process that ends at once would take its last signals with
    // it. The bus handles the messages of one connection in their order: its answer to this one says that it
    // has handled those before.
    const QDBusMessage ping = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus.Peer"),
        QStringLiteral("Ping"));
    const QDBusMessage reply = connection.call(ping, QDBus::Block, isSilent ? silentBusTimeout : timeout);
    const bool timedOut = reply.type() == QDBusMessage::ErrorMessage && connection.isConnected();
    if (timedOut && !isSilent)
        LogChannel::standard().error(u"The session bus does not answer");
    isSilent = timedOut;
}
