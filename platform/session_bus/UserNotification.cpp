// SPDX-License-Identifier: MIT
#include "platform/session_bus/UserNotification.h"

#include "platform/session_bus/SessionBusConnection.h"

#include <QDBusMessage>
#include <QVariantMap>

namespace {

constexpr int notificationTimeout = 2'000; // milliseconds
constexpr int defaultExpiry = -1; // the server decides

} // namespace

bool showUserNotification(const QString &summary, const QString &body)
{
    const Result<QDBusConnection, QString> bus = SessionBusConnection::shared().connect();
    if (!bus)
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"), QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("Notify"));
    const uint replacesNothing = 0;
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("com.quillbay.Quillbay")}};
    // Servers may interpret markup in the body.
    call.setArguments({QStringLiteral("Quillbay"), replacesNothing, QStringLiteral("com.quillbay.Quillbay"),
        summary, body.toHtmlEscaped(), QStringList(), hints, defaultExpiry});
    // If the bus has to start the server first, it drops the call of a caller that disconnects meanwhile, so
    // wait for the answer.
    return bus.value().call(call, QDBus::Block, notificationTimeout).type() == QDBusMessage::ReplyMessage;
}
