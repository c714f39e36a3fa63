// SPDX-License-Identifier: MIT
#include "command/ServiceCommand.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"
#include "command/FirstLaunchStep.h"
#include "platform/services/ServiceInterface.h"
#include "platform/services/ServiceMessageSender.h"
#include "platform/session_bus/UserNotification.h"

namespace {

/// The token that allows the new window to take the focus; that of X11 if there are two, as the windows use
/// X11. Tokens are valid once, so child processes must not inherit it.
QString takeActivationToken()
{
    QString token;
    for (const char *const name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        if (const QString value = qEnvironmentVariable(name); !value.isEmpty())
            token = value;
        qunsetenv(name);
    }
    return token;
}

QString sentenceOf(const QString &cause)
{
    QString sentence = cause.left(1).toUpper() + cause.mid(1);
    if (!sentence.endsWith(u'.') && !sentence.endsWith(u'!') && !sentence.endsWith(u'?'))
        sentence += u'.';
    return sentence;
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

QString explanationOf(const ServiceMessageFailure &failure)
{
    using Cause = ServiceMessageFailure::Cause;
    // Not asked before: a provider that runs already has its display.
    if (failure.cause != Cause::Refused && !hasDisplay())
        return CommandText::tr(
            "there is no display for the window; run this in a terminal of your desktop, or use "
            "'quillbay count', which needs none");
    if (failure.cause == Cause::NoBus)
        return CommandText::tr("there is no session bus, which opens the window; log in to a desktop, or use "
                               "'quillbay count', which needs none");
    if (failure.cause == Cause::NoProvider)
        return CommandText::tr("%1; run 'quillbay doctor' to find out why").arg(causeText(failure));
    return causeText(failure);
}

} // namespace

int performService(const QString &service, const Pasteboard &pasteboard, FailureReport report)
{
    const QString token = takeActivationToken();
    runFirstLaunchStep();
    exportSessionEnvironment();
    QVariantMap options;
    if (!token.isEmpty())
        options.insert(ServiceInterface::activationTokenOption(), token);
    const std::optional<ServiceMessageFailure> failure = sendServiceMessage(service, pasteboard, options);
    return failure ? reportFailure(explanationOf(*failure), report) : 0;
}

int reportFailure(const QString &cause, FailureReport report)
{
    reportError(QString::fromUtf8(printableName(cause.toUtf8())));
    if (report == FailureReport::StandardErrorAndNotification)
        showUserNotification(QStringLiteral("Quillbay"), sentenceOf(cause));
    return 1;
}
