// SPDX-License-Identifier: MIT
#include "platform/session_bus/UserNotification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

namespace {

constexpr int notificationTimeout = 2'000; // milliseconds
constexpr int expiryOfServer = -1;

} // namespace

bool showUserNotification(const QString &summary, const QString &body)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"), QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("Notify"));
    const uint replacesNothing = 0;
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("com.quillbay.Quillbay")}};
    // The body may hold markup; what stands in it is to be read as it is.
    call.setArguments({QStringLiteral("Quillbay"), replacesNothing, QStringLiteral("com.quillbay.Quillbay"),
        summary, body.toHtmlEscaped(), QStringList(), hints, expiryOfServer});
    // The bus drops a call to a server that it first has to start when the caller leaves: wait for the
    // answer.
    return bus.call(call, QDBus::Block, notificationTimeout).type() == QDBusMessage::ReplyMessage;
}
