// SPDX-License-Identifier: MIT
// The real counting service on a private bus: the time to its first and to later answers, its memory, and
// whether requests are lost while broker and workers are killed at random.
#include "documents/rtfd/RtfdWriter.h"
#include "platform/system/SealedMemory.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>
#include <sys/types.h>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <random>
#include <vector>

namespace {

const QString serviceName = QStringLiteral("Brisklane.QBYServiceProviderXPC");
constexpr int timeout = 3'600'000; // milliseconds

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class Bus {
public:
    Bus()
    {
        const QString services = m_folder.filePath(QStringLiteral("data/dbus-1/services"));
        QDir().mkpath(services);
        QFile file(services + u'/' + serviceName + QStringLiteral(".service"));
        if (file.open(QIODevice::WriteOnly))
            file.write("[D-BUS Service]\nName=" + serviceName.toUtf8() + "\nExec="
                + QFile::encodeName(QCoreApplication::applicationDirPath()) + "/quillbay-counting-service\n");
        file.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder.filePath(QStringLiteral("data")));
        environment.insert(
            QStringLiteral("XDG_CONFIG_HOME"), m_folder.filePath(QStringLiteral("configuration")));
        m_daemon.setProcessEnvironment(environment);
        m_daemon.setStandardErrorFile(QProcess::nullDevice());
        m_daemon.start(QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                QStringLiteral("--address=unix:path=") + m_folder.filePath(QStringLiteral("bus"))});
        m_daemon.waitForReadyRead();
        m_connection = QDBusConnection::connectToBus(
            QString::fromUtf8(m_daemon.readLine()).trimmed(), QStringLiteral("benchmark"));
    }
    Bus(const Bus &) = delete;
    Bus &operator=(const Bus &) = delete;
    ~Bus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    [[nodiscard]] QDBusPendingCall send(const SealedMemory &document) const
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(serviceName, QStringLiteral("/Brisklane/QBYServiceProviderXPC"),
                QStringLiteral("com.quillbay.WordCounterServiceProtocol"),
                QStringLiteral("countWordsForAttributedStringRTFDData"));
        message.setArguments({QVariant::fromValue(QDBusUnixFileDescriptor(document.descriptor())),
            static_cast<quint64>(document.size()), false, QVariantMap()});
        return m_connection.asyncCall(message, timeout);
    }

    /// The answer; empty after an error.
    [[nodiscard]] QVariantList count(const SealedMemory &document) const
    {
        QDBusPendingCall call = send(document);
        call.waitForFinished();
        return call.isError() ? QVariantList() : call.reply().arguments();
    }

    [[nodiscard]] pid_t service() const
    {
        const QDBusReply<uint> process = m_connection.interface()->servicePid(serviceName);
        return process.isValid() ? static_cast<pid_t>(process.value()) : 0;
    }

    void endService() const
    {
        const pid_t process = service();
        if (process == 0)
            return;
        ::kill(process, SIGTERM);
        while (service() == process || QFile::exists(QStringLiteral("/proc/%1/exe").arg(process)))
            QThread::msleep(2);
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QDBusConnection m_connection{QStringLiteral("none")};
};

std::vector<pid_t> workersOf(pid_t service)
{
    std::vector<pid_t> workers;
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        const QByteArray status = contentsOf(QStringLiteral("/proc/%1/stat").arg(name));
        const QByteArrayList rest = status.mid(status.lastIndexOf(')') + 2).split(' ');
        if (rest.size() > 1 && rest[1].toInt() == service && name.toInt() > 0)
            workers.push_back(name.toInt());
    }
    return workers;
}

/// Of "Rss:" or "Pss:", in kB.
int memory(pid_t process, const QByteArray &kind)
{
    for (const QByteArray &line :
        contentsOf(QStringLiteral("/proc/%1/smaps_rollup").arg(process)).split('\n')) {
        if (line.startsWith(kind))
            return line.simplified().split(' ').value(1).toInt();
    }
    return 0;
}

SealedMemory documentOf(qsizetype characters)
{
    const QString sentence =
        QStringLiteral("The ferry had left an hour ago, and nobody on the quay could say when "
                       "the next would come. ");
    QString text = (sentence.repeated(6) + u'\n').repeated(characters / (6 * sentence.size() + 1) + 1);
    text.truncate(characters);
    return SealedMemory::copyOf(RTFDFromRange(AttributedString(text), 0, text.size()).value()).value();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

template <typename Action>
double milliseconds(Action &&action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void measureStart(const Bus &bus)
{
    const SealedMemory empty = documentOf(0);
    std::vector<double> times;
    for (int i = 0; i < 15; ++i) {
        bus.endService();
        times.push_back(milliseconds([&] { (void)bus.count(empty); }));
    }
    std::printf("cold start to first answer: %8.1f ms\n", median(times));
}

void measureRoundTrips(const Bus &bus)
{
    struct Size {
        const char *name;
        qsizetype characters;
        int times;
    };
    for (const Size &size :
        {Size{"empty", 0, 500}, {"10 kB", 10'000, 300}, {"1 MB", 1'000'000, 21}, {"64 MB", 64'000'000, 3}}) {
        const SealedMemory document = documentOf(size.characters);
        std::vector<double> times;
        for (int i = 0; i < size.times; ++i)
            times.push_back(milliseconds([&] { (void)bus.count(document); }));
        std::printf(
            "round trip of %-6s text:   %8.2f ms (median of %d)\n", size.name, median(times), size.times);
        std::fflush(stdout);
    }
}

void measureMemory(const Bus &bus)
{
    (void)bus.count(documentOf(10'000));
    const pid_t service = bus.service();
    std::printf(
        "broker: %d kB resident, %d kB proportional\n", memory(service, "Rss:"), memory(service, "Pss:"));
    for (const pid_t worker : workersOf(service))
        std::printf(
            "worker: %d kB resident, %d kB proportional\n", memory(worker, "Rss:"), memory(worker, "Pss:"));
}

/// Like the product's clients, sends a request again that was lost with the service.
void countWhileKilling(const Bus &bus)
{
    constexpr int requests = 1000;
    constexpr size_t maxPending = 20;
    const SealedMemory document = documentOf(100'000);
    const QVariantList right = bus.count(document);
    std::mt19937 random(1);
    std::deque<QDBusPendingCall> waiting;
    int sent = 0;
    int answered = 0;
    int wrong = 0;
    int zero = 0;
    int again = 0;
    int brokers = 0;
    int workers = 0;
    while (answered < requests) {
        for (; waiting.size() < maxPending && sent < requests; ++sent)
            waiting.push_back(bus.send(document));
        if (random() % 4 == 0) {
            const pid_t service = bus.service();
            const std::vector<pid_t> children = workersOf(service);
            if (random() % 8 == 0 && service != 0)
                brokers += ::kill(service, SIGKILL) == 0 ? 1 : 0;
            else if (!children.empty())
                workers += ::kill(children[random() % children.size()], SIGKILL) == 0 ? 1 : 0;
        }
        QDBusPendingCall call = waiting.front();
        waiting.pop_front();
        call.waitForFinished();
        if (call.isError()) {
            ++again;
            waiting.push_back(bus.send(document));
            continue;
        }
        ++answered;
        const QVariantList counts = call.reply().arguments();
        if (counts.value(0).toULongLong() == 0)
            ++zero;
        else if (counts != right)
            ++wrong;
    }
    std::printf(
        "%d requests, %d brokers and %d workers killed, %d sent again: %d answered, %d wrong, %d zero\n",
        requests, brokers, workers, again, answered, wrong, zero);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const Bus bus;
    measureStart(bus);
    measureRoundTrips(bus);
    bus.endService();
    measureMemory(bus);
    countWhileKilling(bus);
    bus.endService();
    return 0;
}
