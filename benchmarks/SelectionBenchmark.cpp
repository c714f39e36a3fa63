// SPDX-License-Identifier: MIT
// How long "quillbay selection" takes from its start until its message is with the provider, on a bus and an
// X display of their own (dbus-daemon, Xvfb), with xclip as the application that has selected something.
#include "platform/services/ServicesRegistration.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int rounds = 20;

class Provider : public ServicesProvider {
public:
    void wordCountSelectedTextService(const Pasteboard &pasteboard, const QString &, QString *) override
    {
        arrival = clock.nsecsElapsed();
        for (const auto &form : pasteboard.forms())
            bytes += form.second.size();
    }
    void watchTheTextFileService(const Pasteboard &, const QString &, QString *) override { }

    QElapsedTimer clock;
    qint64 arrival = 0;
    qint64 bytes = 0;
};

/// A program that says on its first line how it can be reached.
QByteArray startServer(QProcess &server, const QString &program, const QStringList &words)
{
    server.setStandardErrorFile(QProcess::nullDevice());
    server.start(program, words);
    server.waitForReadyRead();
    return server.readLine().trimmed();
}

void runToEnd(QProcess &process)
{
    QEventLoop loop;
    QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    process.start();
    loop.exec();
}

double milliseconds(qint64 nanoseconds)
{
    return static_cast<double>(nanoseconds) / 1e6;
}

void measure(Provider &provider, const QString &file)
{
    QProcess owner;
    owner.setStandardInputFile(file);
    owner.start(QStringLiteral("xclip"), {QStringLiteral("-quiet")});
    owner.waitForReadyRead(1000);
    std::vector<qint64> arrivals;
    std::vector<qint64> ends;
    for (int round = -1; round < rounds; ++round) { // the first is not counted: it writes the preferences
        QProcess command;
        command.setProgram(QCoreApplication::applicationDirPath() + QStringLiteral("/quillbay"));
        command.setArguments({QStringLiteral("selection")});
        command.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        provider.bytes = 0;
        provider.clock.start();
        runToEnd(command);
        if (command.exitCode() == 0 && round >= 0) {
            arrivals.push_back(provider.arrival);
            ends.push_back(provider.clock.nsecsElapsed());
        }
    }
    owner.kill();
    owner.waitForFinished();
    if (arrivals.empty())
        return;
    std::sort(arrivals.begin(), arrivals.end());
    std::sort(ends.begin(), ends.end());
    std::printf(
        "%10lld bytes: message with the provider after %.1f ms (%.1f to %.1f), command done after %.1f ms; "
        "median of %zu\n",
        static_cast<long long>(provider.bytes), milliseconds(arrivals[arrivals.size() / 2]),
        milliseconds(arrivals.front()), milliseconds(arrivals.back()), milliseconds(ends[ends.size() / 2]),
        arrivals.size());
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(QStringLiteral("configuration"))));
    QProcess bus;
    qputenv("DBUS_SESSION_BUS_ADDRESS",
        startServer(bus, QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")}));
    QProcess display;
    qputenv("DISPLAY",
        ':'
            + startServer(display, QStringLiteral("Xvfb"),
                {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-noreset")}));

    Provider provider;
    ServicesRegistration registration(
        provider, [](const QByteArray &) {}, [] {}, [] {});
    if (!registration.start()) {
        std::fputs("no bus\n", stderr);
        return 1;
    }
    for (const qsizetype size : {100, 10'000, 1 << 20, 20 << 20}) {
        QFile file(folder.filePath(QStringLiteral("text")));
        if (!file.open(QIODevice::WriteOnly))
            return 1;
        file.write(QByteArray("Twenty words. ").repeated(size / 14 + 1).left(size));
        file.close();
        measure(provider, file.fileName());
    }
    display.kill();
    display.waitForFinished();
    bus.kill();
    bus.waitForFinished();
    return 0;
}
