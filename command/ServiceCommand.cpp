// SPDX-License-Identifier: MIT
#include "command/ServiceCommand.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"
#include "command/FirstLaunchStep.h"
#include "platform/services/ServiceInterface.h"
#include "platform/services/ServiceMessageSender.h"
#include "platform/session_bus/ActivationToken.h"
#include "platform/session_bus/UserNotification.h"

namespace {

QString sentenceOf(const QString &cause)
{
    QString sentence = cause.left(1).toUpper() + cause.mid(1);
    if (!sentence.endsWith(u'.') && !sentence.endsWith(u'!') && !sentence.endsWith(u'?'))
        sentence += u'.';
    return sentence;
}

QString explanationOf(const ServiceMessageFailure &failure)
{
    using Cause = ServiceMessageFailure::Cause;
    // Not asked before: a provider that runs already has its display.
    if (failure.cause != Cause::Refused && !isInSessionWithDisplay())
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
    const QByteArray token = takeActivationToken();
    runFirstLaunchStep();
    exportSessionEnvironment();
    QVariantMap options;
    if (!token.isEmpty())
        options.insert(ServiceInterface::activationTokenOption(), QString::fromLocal8Bit(token));
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
