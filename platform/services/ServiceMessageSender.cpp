// SPDX-License-Identifier: MIT
#include "platform/services/ServiceMessageSender.h"

#include "platform/services/PasteboardWire.h"
#include "platform/services/ServiceInterface.h"
#include "platform/session_bus/SessionBusConnection.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDir>

#include <array>

namespace {

using Environment = QMap<QString, QString>;

constexpr int timeout = 60'000; // milliseconds

// What a program needs to find the user's display, and to use their language.
constexpr std::array displayVariables{
    "DISPLAY", "WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE"};
constexpr std::array languageVariables{"LANG", "LANGUAGE", "LC_ALL", "LC_CTYPE", "LC_NUMERIC", "LC_TIME",
    "LC_COLLATE", "LC_MONETARY", "LC_MESSAGES", "LC_PAPER", "LC_MEASUREMENT"};

/// The bus cannot unset variables: those of an earlier session, such as a display that has ended, become
/// empty, which means the same. A caller without a display, as over ssh, empties none: it is not of the
/// user's session.
Environment sessionEnvironment()
{
    const bool hasDisplay = isInSessionWithDisplay();
    Environment environment;
    for (const char *const name : languageVariables) {
        if (hasDisplay || qEnvironmentVariableIsSet(name))
            environment.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
    }
    if (!hasDisplay)
        return environment;
    for (const char *const name : displayVariables)
        environment.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
    // An empty name would be a file without keys.
    const QString usualKeys = QDir::homePath() + QStringLiteral("/.Xauthority");
    environment.insert(QStringLiteral("XAUTHORITY"), qEnvironmentVariable("XAUTHORITY", usualKeys));
    return environment;
}

} // namespace

QString causeText(const ServiceMessageFailure &failure)
{
    switch (failure.cause) {
    case ServiceMessageFailure::Cause::NoBus:
        return QCoreApplication::translate("platform/services", "there is no session bus");
    case ServiceMessageFailure::Cause::NoProvider:
        return QCoreApplication::translate("platform/services", "the service provider does not answer: %1")
            .arg(failure.text);
    case ServiceMessageFailure::Cause::Refused:
        return failure.text;
    }
    return {};
}

bool isInSessionWithDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

bool exportSessionEnvironment()
{
    const Result<QDBusConnection, QString> bus = SessionBusConnection::shared().connect();
    if (!bus)
        return false;
    qDBusRegisterMetaType<Environment>();
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("UpdateActivationEnvironment"));
    call.setArguments({QVariant::fromValue(sessionEnvironment())});
    return bus.value().call(call, QDBus::Block, timeout).type() == QDBusMessage::ReplyMessage;
}

std::optional<ServiceMessageFailure> sendServiceMessage(
    const QString &message, const Pasteboard &pasteboard, const QVariantMap &options)
{
    using Cause = ServiceMessageFailure::Cause;
    const Result<QDBusConnection, QString> bus = SessionBusConnection::shared().connect();
    if (!bus)
        return ServiceMessageFailure{Cause::NoBus, {}};
    QDBusMessage call = QDBusMessage::createMethodCall(ServiceInterface::busName(),
        ServiceInterface::objectPath(), ServiceInterface::interfaceName(), message);
    call.setArguments({PasteboardWire::toMessage(pasteboard), QString(), options});
    const QDBusMessage reply = bus.value().call(call, QDBus::Block, timeout);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return std::nullopt;
    const bool isRefusal = reply.errorName() == ServiceInterface::failureName();
    return ServiceMessageFailure{isRefusal ? Cause::Refused : Cause::NoProvider, reply.errorMessage()};
}
