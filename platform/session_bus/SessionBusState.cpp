// SPDX-License-Identifier: MIT
#include "platform/session_bus/SessionBusState.h"

#include "platform/session_bus/SessionBusConnection.h"

#include <QDBusMessage>

namespace {

constexpr int answerTimeout = 2000; // milliseconds

/// Asks the bus itself. The answer to anything but a reply is an invalid value.
QVariant askBus(const QString &method, const QVariantList &arguments)
{
    const Result<QDBusConnection, QString> bus = SessionBusConnection::shared().connect();
    if (!bus)
        return {};
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments(arguments);
    const QDBusMessage reply = bus.value().call(call, QDBus::Block, answerTimeout);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant();
}

} // namespace

std::optional<QString> sessionBusFault()
{
    const Result<QDBusConnection, QString> bus = SessionBusConnection::shared().connect();
    if (!bus)
        return bus.error();
    if (!askBus(QStringLiteral("GetId"), {}).isValid())
        return QStringLiteral("the session bus does not answer");
    return std::nullopt;
}

bool isOnSessionBus(const QString &busName)
{
    return askBus(QStringLiteral("NameHasOwner"), {busName}).toBool();
}

bool canSessionBusStart(const QString &busName)
{
    return askBus(QStringLiteral("ListActivatableNames"), {}).toStringList().contains(busName);
}
