// SPDX-License-Identifier: MIT
#include "platform/session_bus/DistributedNotificationCenter.h"

#include "platform/logging/LogChannel.h"
#include "platform/session_bus/SessionBusConnection.h"

#include <QDBusMessage>

#include <atomic>
#include <optional>
#include <utility>

namespace {

// The path and the interface of every notification, as docs/dbus/ describes them.

QString notificationPath()
{
    return QStringLiteral("/com/quillbay/DistributedNotificationCenter");
}

QString notificationInterface()
{
    return QStringLiteral("com.quillbay.DistributedNotificationCenter");
}

/// Absent without a bus; the log gets one line for that until there is one again.
std::optional<QDBusConnection> connectedBus()
{
    static std::atomic<bool> isLogged = false;
    const Result<QDBusConnection, QString> connection = SessionBusConnection::shared().connect();
    if (connection) {
        isLogged = false;
        return connection.value();
    }
    if (!isLogged.exchange(true))
        LogChannel::standard().error(
            u"No session bus; notifications are not delivered: {}", {publicly(connection.error())});
    return std::nullopt;
}

} // namespace

void DistributedNotificationCenter::post(const QString &name)
{
    const std::optional<QDBusConnection> bus = connectedBus();
    if (!bus)
        return;
    if (!bus->send(QDBusMessage::createSignal(notificationPath(), notificationInterface(), name))) {
        LogChannel::standard().error(u"Cannot post notification {}", {publicly(name)});
        return;
    }
    SessionBusConnection::shared().settle();
}

NotificationObserver::NotificationObserver(QString name, QObject *parent)
    : QObject(parent)
    , m_name(std::move(name))
{
    std::optional<QDBusConnection> bus = connectedBus();
    if (!bus)
        return;
    bus->connect({}, notificationPath(), notificationInterface(), m_name, this, SLOT(deliver()));
    SessionBusConnection::shared().settle();
}

NotificationObserver::~NotificationObserver()
{
    SessionBusConnection::shared().current().disconnect(
        {}, notificationPath(), notificationInterface(), m_name, this, SLOT(deliver()));
}

void NotificationObserver::deliver()
{
    Q_EMIT posted();
}
