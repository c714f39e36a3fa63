// SPDX-License-Identifier: MIT
#include "platform/session_bus/DistributedNotificationCenter.h"

#include "platform/logging/LogChannel.h"
#include "platform/session_bus/SessionBusConnection.h"

#include <QDBusMessage>

void DistributedNotificationCenter::post(const QString &name)
{
    auto connection = SessionBusConnection::connected();
    if (!connection)
        return;
    const QDBusMessage signal =
        QDBusMessage::createSignal(SessionBusConnection::path(), SessionBusConnection::interface(), name);
    if (!connection->send(signal)) {
        LogChannel::standard().error(u"Notification {} cannot be posted", {publicly(name)});
        return;
    }
    SessionBusConnection::settle(*connection);
}
