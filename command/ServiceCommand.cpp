// SPDX-License-Identifier: MIT
#include "command/ServiceCommand.h"

#include "command/FileNames.h"
#include "command/FirstLaunchStep.h"
#include "platform/services/ServiceInterface.h"
#include "platform/services/ServiceMessageSender.h"
#include "platform/session_bus/UserNotification.h"

#include <cstdio>

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
    return failure ? reportFailure(causeText(*failure), report) : 0;
}

int reportFailure(const QString &cause, FailureReport report)
{
    std::fprintf(stderr, "quillbay: %s\n", printableName(cause.toUtf8()).constData());
    if (report == FailureReport::StandardErrorAndNotification)
        showUserNotification(QStringLiteral("Quillbay"), sentenceOf(cause));
    return 1;
}
