// SPDX-License-Identifier: MIT
#include "platform/shortcuts/SettingsProgram.h"

#include <QProcess>

#include <algorithm>

Result<QByteArray, QString> runSettingsProgram(const QString &program, const QStringList &words)
{
    constexpr int timeout = 3'000; // milliseconds
    constexpr qsizetype maxErrorLength = 300;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, words);
    if (!process.waitForStarted(timeout))
        return program + QStringLiteral(": is not installed; install it");
    if (!process.waitForFinished(timeout)) {
        process.kill();
        process.waitForFinished(timeout);
        return program + QStringLiteral(": does not answer; try again");
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        const QString error = QString::fromUtf8(process.readAllStandardError()).simplified();
        return program + QStringLiteral(": ") + error.left(maxErrorLength);
    }
    return process.readAllStandardOutput();
}

QString commandLineOf(const QStringList &words)
{
    QStringList quoted;
    for (QString word : words) {
        const bool isPlain = std::all_of(word.begin(), word.end(), [](QChar character) {
            return character.isLetterOrNumber() || QStringView(u"/-_.+").contains(character);
        });
        quoted.append(isPlain ? word : u'\'' + word.replace(u'\'', QStringLiteral("'\\''")) + u'\'');
    }
    return quoted.join(u' ');
}

bool isCommandLineOf(const QString &commandLine, const QStringList &words)
{
    QStringList withoutPath = words;
    withoutPath.first() = words.first().section(u'/', -1);
    return commandLine == commandLineOf(words) || commandLine == commandLineOf(withoutPath);
}
