// SPDX-License-Identifier: MIT
#include "command/ServiceCommand.h"

#include "command/FileNames.h"
#include "platform/services/ServiceInterface.h"
#include "platform/services/ServiceMessageSender.h"
#include "platform/session_bus/UserNotification.h"
#include "preferences/QBYUserDefaultsController.h"

#include <cstdio>

namespace {

/// The token by which a window of this request may take the focus; that of X11 where there are two, as the
/// windows are X11's. It serves once: whoever comes after this process must not find it.
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

QString asSentence(const QString &cause)
{
    QString sentence = cause.left(1).toUpper() + cause.mid(1);
    if (!sentence.endsWith(u'.') && !sentence.endsWith(u'!') && !sentence.endsWith(u'?'))
        sentence += u'.';
    return sentence;
}

} // namespace

int deliverServiceMessage(const QString &message, const Pasteboard &pasteboard, FailureReport report)
{
    const QString token = takeActivationToken();
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    exportSessionEnvironment();
    QVariantMap options;
    if (!token.isEmpty())
        options.insert(ServiceInterface::activationTokenOption(), token);
    const std::optional<ServiceMessageFailure> failure = sendServiceMessage(message, pasteboard, options);
    return failure ? tellFailure(causeText(*failure), report) : 0;
}

int tellFailure(const QString &cause, FailureReport report)
{
    std::fprintf(stderr, "quillbay: %s\n", printableName(cause.toUtf8()).constData());
    if (report == FailureReport::StandardErrorAndNotification)
        showUserNotification(QStringLiteral("Quillbay"), asSentence(cause));
    return 1;
}
