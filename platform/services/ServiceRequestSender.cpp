// SPDX-License-Identifier: MIT
#include "platform/services/ServiceRequestSender.h"

#include "platform/services/PasteboardWire.h"
#include "platform/services/ServiceInterface.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>

#include <array>

namespace {

using Environment = QMap<QString, QString>;

constexpr int timeout = 60'000; // milliseconds

// What a program needs to find the user's display and to speak his language.
constexpr std::array exportedVariables{"DISPLAY", "XAUTHORITY", "WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP",
    "XDG_SESSION_TYPE", "LANG", "LANGUAGE", "LC_ALL", "LC_CTYPE", "LC_NUMERIC", "LC_TIME", "LC_COLLATE",
    "LC_MONETARY", "LC_MESSAGES", "LC_PAPER", "LC_MEASUREMENT"};

QDBusMessage callOfBus(const QString &method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"), method);
}

} // namespace

QString causeText(const ServiceFailure &failure)
{
    switch (failure.cause) {
    case ServiceFailure::Cause::NoBus:
        return QStringLiteral("there is no session bus");
    case ServiceFailure::Cause::NoProvider:
        return QStringLiteral("the service provider does not answer: %1").arg(failure.text);
    case ServiceFailure::Cause::Refused:
        return failure.text;
    }
    return {};
}

bool exportSessionEnvironment()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    qDBusRegisterMetaType<Environment>();
    Environment environment;
    for (const char *const name : exportedVariables)
        environment.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
    environment.removeIf(
        [](const auto &variable) { return !qEnvironmentVariableIsSet(variable.key().toLatin1()); });
    QDBusMessage call = callOfBus(QStringLiteral("UpdateActivationEnvironment"));
    call.setArguments({QVariant::fromValue(environment)});
    return bus.call(call, QDBus::Block, timeout).type() == QDBusMessage::ReplyMessage;
}

std::optional<ServiceFailure> sendServiceMessage(
    const QString &message, const Pasteboard &pasteboard, const QVariantMap &options)
{
    using Cause = ServiceFailure::Cause;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return ServiceFailure{Cause::NoBus, {}};
    QDBusMessage call = QDBusMessage::createMethodCall(ServiceInterface::busName(),
        ServiceInterface::objectPath(), ServiceInterface::interfaceName(), message);
    call.setArguments({PasteboardWire::toMessage(pasteboard), QString(), options});
    const QDBusMessage reply = bus.call(call, QDBus::Block, timeout);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return std::nullopt;
    const bool isRefusal = reply.errorName() == ServiceInterface::failureName();
    return ServiceFailure{isRefusal ? Cause::Refused : Cause::NoProvider, reply.errorMessage()};
}
