// SPDX-License-Identifier: MIT
#include "tests/counting_service/CountingServiceTest.h"

#include "documents/rtfd/RtfdWriter.h"

#include <QDBusConnectionInterface>
#include <QDBusUnixFileDescriptor>
#include <QDir>

#include <csignal>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <deque>

namespace {

const QString serviceName = QStringLiteral("Brisklane.QBYServiceProviderXPC");
constexpr int timeout = 300'000; // milliseconds

QString newConnectionName()
{
    static int number = 0;
    return QStringLiteral("client-%1").arg(++number);
}

std::optional<SeenProcess> readProcess(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (process <= 0 || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // "pid (name) state parent …"
    const QByteArray status = file.readAll();
    const QByteArrayList rest = status.mid(status.lastIndexOf(')') + 2).split(' ');
    if (rest.size() < 2)
        return std::nullopt;
    return SeenProcess{process, rest[1].toInt(), rest[0] == "Z" || rest[0] == "X"};
}

} // namespace

QByteArray flatRtfd(const AttributedString &text)
{
    const Result<QByteArray, DocumentError> bytes = RTFDFromRange(text, 0, text.length());
    EXPECT_TRUE(bytes.hasValue());
    return bytes ? bytes.value() : QByteArray();
}

QByteArray flatRtfd(const QString &text)
{
    return flatRtfd(AttributedString(text));
}

std::vector<SeenProcess> childrenOf(pid_t process)
{
    std::vector<SeenProcess> children;
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        const std::optional<SeenProcess> seen = readProcess(name.toInt());
        if (seen && seen->parent == process)
            children.push_back(*seen);
    }
    return children;
}

bool isRunning(pid_t process)
{
    const std::optional<SeenProcess> seen = readProcess(process);
    return seen && !seen->isZombie;
}

qsizetype openDescriptors(pid_t process)
{
    return QDir(QStringLiteral("/proc/%1/fd").arg(process)).entryList(QDir::AllEntries | QDir::System).size();
}

CountingServiceTest::CountingServiceTest()
    : m_bus(QDBusConnection::connectToBus(SessionBus::start(), newConnectionName()))
{
    EXPECT_TRUE(m_bus.isConnected());
    installService();
}

CountingServiceTest::~CountingServiceTest()
{
    // In a loop: the bus may have started another one.
    while (const pid_t process = service()) {
        ::kill(process, SIGKILL);
        EXPECT_TRUE(waitUntil([&] { return service() != process && !isRunning(process); }));
    }
    QDBusConnection::disconnectFromBus(m_bus.name());
}

void CountingServiceTest::installService(const QString &arguments) const
{
    const QString program = productProgram(QStringLiteral("quillbay-counting-service"));
    writeServiceFile(arguments.isEmpty() ? program : program + u' ' + arguments);
}

void CountingServiceTest::installServiceWithDescriptors(int limit) const
{
    writeServiceFile(QStringLiteral("/bin/sh -c \"ulimit -n %1; exec %2\"")
                         .arg(limit)
                         .arg(productProgram(QStringLiteral("quillbay-counting-service"))));
}

void CountingServiceTest::writeServiceFile(const QString &command) const
{
    QString file =
        QString::fromUtf8(readFile(QStringLiteral(QUILLBAY_PACKAGING "/%1.service.in").arg(serviceName)));
    file.replace(QStringLiteral("@QUILLBAY_LIBEXEC@/quillbay-counting-service"), command);
    const QString folder = world().data() + QStringLiteral("/dbus-1/services/");
    QDir().mkpath(folder);
    QFile installed(folder + serviceName + QStringLiteral(".service"));
    EXPECT_TRUE(installed.open(QIODevice::WriteOnly));
    installed.write(file.toUtf8());
    installed.close();
    // Explicitly, as the bus compares modification times in seconds.
    m_bus.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("ReloadConfig")));
}

QDBusMessage CountingServiceTest::message(const QByteArray &payload, const QVariantMap &options) const
{
    const SealedMemory::MemoryResult memory = SealedMemory::copyOf(payload);
    EXPECT_TRUE(memory.hasValue());
    return message(
        rtfdRequest, memory.value().descriptor(), static_cast<quint64>(payload.size()), false, options);
}

QDBusMessage CountingServiceTest::message(
    const QString &request, int descriptor, quint64 length, bool absent, const QVariantMap &options) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(serviceName, QStringLiteral("/Brisklane/QBYServiceProviderXPC"),
            QStringLiteral("com.quillbay.WordCounterServiceProtocol"), request);
    message.setArguments({QVariant::fromValue(QDBusUnixFileDescriptor(descriptor)), length, absent, options});
    return message;
}

QDBusPendingCall CountingServiceTest::send(const QDBusMessage &message) const
{
    return m_bus.asyncCall(message, timeout);
}

std::optional<QBYWordCounterStats> CountingServiceTest::statsOf(QDBusPendingCall call)
{
    call.waitForFinished();
    const QVariantList values = call.reply().arguments();
    if (call.isError() || call.reply().signature() != QStringLiteral("tttttttt"))
        return std::nullopt;
    std::array<quint64, statisticCount> counts{};
    std::ranges::transform(values, counts.begin(), [](const QVariant &value) { return value.toULongLong(); });
    return statsFromCounts(counts);
}

QBYWordCounterStats CountingServiceTest::count(const QDBusMessage &message) const
{
    const QDBusPendingCall call = send(message);
    const std::optional<QBYWordCounterStats> stats = statsOf(call);
    EXPECT_TRUE(stats) << call.error().message().toStdString();
    return stats.value_or(QBYWordCounterStats());
}

std::vector<std::optional<QBYWordCounterStats>> CountingServiceTest::countAll(
    const std::vector<QDBusMessage> &messages) const
{
    constexpr size_t maxPending = 100;
    std::vector<std::optional<QBYWordCounterStats>> counts;
    std::deque<QDBusPendingCall> waiting;
    for (size_t i = 0; counts.size() < messages.size(); ++i) {
        if (i < messages.size())
            waiting.push_back(send(messages[i]));
        if (waiting.size() < maxPending && i < messages.size())
            continue;
        counts.push_back(statsOf(waiting.front()));
        waiting.pop_front();
    }
    return counts;
}

pid_t CountingServiceTest::serviceOn(const QDBusConnection &bus)
{
    const QDBusReply<uint> process = bus.interface()->servicePid(serviceName);
    return process.isValid() ? static_cast<pid_t>(process.value()) : 0;
}
