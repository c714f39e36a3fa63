// SPDX-License-Identifier: MIT
#include "platform/shortcuts/ServiceCall.h"

#include "platform/session_bus/SessionBusConnection.h"

#include <QDBusMessage>

Result<QVariantList, QString> callService(
    const DesktopService &service, const char *method, const QVariantList &arguments)
{
    constexpr int timeout = 3'000; // milliseconds
    const Result<QDBusConnection, QString> bus = SessionBusConnection::shared().connect();
    if (!bus)
        return bus.error();
    QDBusMessage message =
        QDBusMessage::createMethodCall(QString::fromLatin1(service.name), QString::fromLatin1(service.path),
            QString::fromLatin1(service.interface), QString::fromLatin1(method));
    message.setArguments(arguments);
    const QDBusMessage reply = bus.value().call(message, QDBus::Block, timeout);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return QString::fromLatin1(service.name) + QStringLiteral(": ") + reply.errorMessage();
    return reply.arguments();
}
