// SPDX-License-Identifier: MIT
#include "platform/system/DetachedProcess.h"

#include <QProcess>

namespace {

/// QProcess puts the name of the failed call before it, as "execv: ".
QString withoutCall(const QString &cause)
{
    const qsizetype colon = cause.indexOf(QStringLiteral(": "));
    return colon < 0 || cause.left(colon).contains(u' ') ? cause : cause.mid(colon + 2);
}

} // namespace

QString messageText(const LaunchError &error)
{
    return QStringLiteral("%1 cannot be started: %2").arg(error.launchPath, error.cause);
}

std::optional<LaunchError> launchDetached(const QString &launchPath, const QStringList &arguments)
{
    QProcess process;
    process.setProgram(launchPath);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    if (process.startDetached())
        return std::nullopt;
    return LaunchError{launchPath, withoutCall(process.errorString())};
}
