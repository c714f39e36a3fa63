// SPDX-License-Identifier: MIT
#include "tests/harness/Display.h"

#include <QProcess>

#include <sys/prctl.h>

#include <gtest/gtest.h>

#include <csignal>
#include <memory>

namespace {

constexpr int startTimeout = 20'000; // milliseconds

struct RunningDisplay {
    std::unique_ptr<QProcess> server;
    std::unique_ptr<QProcess> windowManager;
    QString name;
};

RunningDisplay &runningDisplay()
{
    static RunningDisplay display;
    return display;
}

QProcessEnvironment environmentOf(const QString &displayName)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), displayName);
    return environment;
}

std::unique_ptr<QProcess> newProcess()
{
    auto process = std::make_unique<QProcess>();
    // The display ends with a test that crashes.
    process->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process->setStandardErrorFile(QProcess::nullDevice());
    return process;
}

/// The next line that the process prints; empty after a timeout.
QString nextLine(QProcess &process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(startTimeout))
            return {};
    }
    return QString::fromLatin1(process.readLine()).trimmed();
}

void endProcess(std::unique_ptr<QProcess> &process)
{
    if (!process)
        return;
    process->terminate();
    if (!process->waitForFinished(startTimeout))
        process->kill();
    process = nullptr;
}

bool startServer(RunningDisplay &display)
{
    display.server = newProcess();
    display.server->start(QStringLiteral(XVFB),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
            QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
            QStringLiteral("-noreset")});
    const QString number = nextLine(*display.server);
    display.name = u':' + number;
    return !number.isEmpty();
}

bool startWindowManager(RunningDisplay &display)
{
    display.windowManager = newProcess();
    display.windowManager->setProcessEnvironment(environmentOf(display.name));
    display.windowManager->start(QStringLiteral(OPENBOX),
        {QStringLiteral("--sm-disable"), QStringLiteral("--config-file"),
            QStringLiteral("/etc/xdg/openbox/rc.xml"), QStringLiteral("--startup"),
            QStringLiteral("echo managing")});
    QString line; // openbox prints a warning about menus first
    do
        line = nextLine(*display.windowManager);
    while (!line.isEmpty() && line != QStringLiteral("managing"));
    return !line.isEmpty();
}

} // namespace

QString TestDisplay::start()
{
    RunningDisplay &display = runningDisplay();
    if (!display.server && !(startServer(display) && startWindowManager(display))) {
        ADD_FAILURE() << "the private display did not start";
        stop();
        return {};
    }
    qputenv("DISPLAY", display.name.toLatin1());
    return display.name;
}

void TestDisplay::stop()
{
    endProcess(runningDisplay().windowManager);
    endProcess(runningDisplay().server);
}

void TestDisplay::xdotool(const QStringList &commands)
{
    outputOf(QStringLiteral(XDOTOOL), commands);
}

QByteArray TestDisplay::outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessEnvironment(environmentOf(start()));
    process.start(program, arguments);
    if (!process.waitForFinished(startTimeout) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        ADD_FAILURE() << program.toStdString() << ": " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}
