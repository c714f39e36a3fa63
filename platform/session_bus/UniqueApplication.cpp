// SPDX-License-Identifier: MIT
#include "platform/session_bus/UniqueApplication.h"

#include "platform/logging/LogChannel.h"
#include "platform/session_bus/SessionBusConnection.h"

#include <QDBusMessage>

#include <utility>

namespace {

// The names of the platform data: that of freedesktop.org, and that of programs which know only X11.
QString tokenKey()
{
    return QStringLiteral("activation-token");
}

QString startupIdentifierKey()
{
    return QStringLiteral("desktop-startup-id");
}

QVariantMap platformDataOf(const UniqueApplication::Request &request)
{
    if (request.activationToken.isEmpty())
        return {};
    const QString token = QString::fromUtf8(request.activationToken);
    return {{tokenKey(), token}, {startupIdentifierKey(), token}};
}

QByteArray tokenIn(const QVariantMap &platformData)
{
    const QString token = platformData.value(tokenKey()).toString();
    return (token.isEmpty() ? platformData.value(startupIdentifierKey()).toString() : token).toUtf8();
}

QStringList urisOf(const QList<QUrl> &files)
{
    QStringList uris;
    for (const QUrl &file : files)
        uris.append(QString::fromLatin1(file.toEncoded()));
    return uris;
}

} // namespace

UniqueApplication::UniqueApplication(QString busName, int timeout)
    : m_busName(std::move(busName))
    , m_timeout(timeout)
{
}

UniqueApplication::~UniqueApplication()
{
    QDBusConnection bus = SessionBusConnection::shared().current();
    if (!bus.isConnected() || bus.objectRegisteredAt(objectPath()) != this)
        return;
    bus.unregisterService(m_busName);
    bus.unregisterObject(objectPath());
}

QString UniqueApplication::objectPath() const
{
    return u'/' + QString(m_busName).replace(u'.', u'/');
}

UniqueApplication::Role UniqueApplication::start(const Request &request)
{
    const Result<QDBusConnection, QString> connection = SessionBusConnection::shared().connect();
    if (!connection)
        return Role::Alone;
    QDBusConnection bus = connection.value();
    // The object comes before the name: a request may be waiting for it.
    bus.registerObject(objectPath(), this, QDBusConnection::ExportScriptableSlots);
    // The first process may exit just now. Two such processes in a row are no coincidence.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (bus.registerService(m_busName))
            return Role::First;
        if (passOn(request)) {
            bus.unregisterObject(objectPath());
            return Role::Later;
        }
    }
    bus.unregisterObject(objectPath());
    LogChannel::standard().error(
        u"The process that owns the bus name {} does not answer", {publicly(m_busName)});
    return Role::Alone;
}

bool UniqueApplication::passOn(const Request &request) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(m_busName, objectPath(), QStringLiteral("org.freedesktop.Application"),
            request.files.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("Open"));
    if (!request.files.isEmpty())
        message << urisOf(request.files);
    message << platformDataOf(request);
    const QDBusMessage reply =
        SessionBusConnection::shared().current().call(message, QDBus::Block, m_timeout);
    return reply.type() == QDBusMessage::ReplyMessage;
}

void UniqueApplication::Activate(const QVariantMap &platformData)
{
    Q_EMIT requested({.activationToken = tokenIn(platformData)});
}

void UniqueApplication::Open(const QStringList &uris, const QVariantMap &platformData)
{
    Request request{.activationToken = tokenIn(platformData)};
    for (const QString &uri : uris.mid(0, maxFiles))
        request.files.append(QUrl::fromEncoded(uri.toUtf8()));
    Q_EMIT requested(request);
}

void UniqueApplication::ActivateAction(
    const QString & /*action*/, const QVariantList & /*parameters*/, const QVariantMap &platformData)
{
    Activate(platformData);
}
