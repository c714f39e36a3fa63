// SPDX-License-Identifier: MIT
// Start and exit of the counting service, and the requests that arrive meanwhile.
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/documents/SampleTexts.h"
#include "tests/harness/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusServiceWatcher>
#include <QDir>
#include <QFile>

#include <csignal>
#include <unistd.h>

#include <deque>
#include <random>
#include <set>

namespace {

const QByteArray busVariable = "DBUS_SESSION_BUS_ADDRESS";

class ServiceLifeTest : public CountingServiceTest {
protected:
    static QString program() { return productProgram(QStringLiteral("quillbay-counting-service")); }

    [[nodiscard]] QDBusMessage words(int number) const
    {
        return message(flatRtfd(QStringLiteral("word ").repeated(number)));
    }

    /// Takes a worker a while.
    static QByteArray largeDocument() { return flatRtfd(SampleTexts::english.repeated(8000)); }

    [[nodiscard]] bool waitForExit(pid_t process) const
    {
        return waitUntil([&] { return service() != process && !isRunning(process); });
    }

    static std::vector<pid_t> workersOf(pid_t service)
    {
        std::vector<pid_t> workers;
        for (const SeenProcess &child : childrenOf(service)) {
            if (!child.isZombie)
                workers.push_back(child.identifier);
        }
        return workers;
    }
};

} // namespace

TEST_F(ServiceLifeTest, TheBusStartsItWithTheFirstRequest)
{
    EXPECT_EQ(service(), 0);
    EXPECT_EQ(count(words(3)).numberOfWords, 3U);
    EXPECT_NE(service(), 0);
}

TEST_F(ServiceLifeTest, ExitsWhenIdleAndIsStartedAgain)
{
    installService(QStringLiteral("--idle-time=30"));
    EXPECT_EQ(count(words(3)).numberOfWords, 3U);
    EXPECT_TRUE(waitUntil([this] { return service() == 0; }));
    EXPECT_EQ(count(words(4)).numberOfWords, 4U);
}

TEST_F(ServiceLifeTest, EndsItsWorkersWhenItExits)
{
    installService(QStringLiteral("--idle-time=500"));
    EXPECT_EQ(count(words(3)).numberOfWords, 3U);
    const pid_t process = service();
    const std::vector<pid_t> workers = workersOf(process);
    EXPECT_FALSE(workers.empty());
    EXPECT_TRUE(waitForExit(process));
    for (const pid_t worker : workers)
        EXPECT_FALSE(isRunning(worker));
}

// With such idle times it exits at every pause, while the next requests arrive.
TEST_F(ServiceLifeTest, LosesNoRequestWhenItExits)
{
    QDBusServiceWatcher watcher(QStringLiteral("Brisklane.QBYServiceProviderXPC"), m_bus);
    int arrivals = 0;
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceRegistered, &watcher, [&] { ++arrivals; });
    std::mt19937 random(7);
    for (const char *option : {"--idle-time=0", "--idle-time=2"}) {
        installService(QString::fromLatin1(option));
        for (int i = 0; i < 700;) {
            std::vector<QDBusMessage> batch;
            const int first = i;
            for (auto size = 1 + random() % 60; size > 0; --size)
                batch.push_back(words(i++ % 7));
            const auto counts = countAll(batch);
            for (size_t k = 0; k < counts.size(); ++k) {
                ASSERT_TRUE(counts[k]) << option << ' ' << first;
                ASSERT_EQ(counts[k]->numberOfWords, (static_cast<size_t>(first) + k) % 7);
            }
        }
    }
    QCoreApplication::processEvents();
    EXPECT_GT(arrivals, 10);
}

TEST_F(ServiceLifeTest, FinishesItsRequestsWhenItIsTerminated)
{
    EXPECT_EQ(count(words(3)).numberOfWords, 3U);
    const pid_t process = service();
    std::vector<QDBusPendingCall> calls;
    for (int i = 0; i < 50; ++i)
        calls.push_back(send(words(i)));
    calls.push_back(send(message(largeDocument())));
    // The bus has passed the requests on when it answers this.
    ASSERT_EQ(service(), process);
    ::kill(process, SIGTERM);
    for (size_t i = 0; i < 50; ++i)
        EXPECT_EQ(statsOf(calls[i]).value_or(QBYWordCounterStats()).numberOfWords, i);
    EXPECT_GT(statsOf(calls.back()).value_or(QBYWordCounterStats()).numberOfWords, 100'000U);
    EXPECT_TRUE(waitForExit(process));
}

TEST_F(ServiceLifeTest, ExitsWithTheBus)
{
    PrivateBus bus;
    const QDBusConnection client = QDBusConnection::connectToBus(
        QString::fromUtf8(bus.address()), QStringLiteral("client-of-private-bus"));
    ASSERT_EQ(client.call(words(2)).type(), QDBusMessage::ReplyMessage);
    const pid_t process = serviceOn(client);
    const std::vector<pid_t> workers = workersOf(process);
    EXPECT_FALSE(workers.empty());
    bus.stop();
    QDBusConnection::disconnectFromBus(client.name());
    EXPECT_TRUE(waitUntil([process] { return !isRunning(process); }));
    for (const pid_t worker : workers)
        EXPECT_FALSE(isRunning(worker));
}

TEST_F(ServiceLifeTest, ExitsWithoutABus)
{
    const ChildProcess::Outcome outcome =
        ChildProcess(program()).withVariable(busVariable.constData(), "unix:path=/nowhere").run({});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.errors.toStdString(), testing::HasSubstr("Brisklane.QBYServiceProviderXPC"));
}

TEST_F(ServiceLifeTest, ASecondServiceDoesNotGetTheName)
{
    EXPECT_EQ(count(words(3)).numberOfWords, 3U);
    const pid_t first = service();
    const ChildProcess::Outcome second = ChildProcess(program()).run({});
    EXPECT_EQ(second.exitStatus, 1);
    EXPECT_THAT(second.errors.toStdString(), testing::HasSubstr("another process has it"));
    EXPECT_EQ(service(), first);
    EXPECT_EQ(count(words(3)).numberOfWords, 3U);
}

TEST_F(ServiceLifeTest, WorkersEndWithABrokerThatIsKilled)
{
    EXPECT_EQ(count(words(3)).numberOfWords, 3U);
    const pid_t process = service();
    const QDBusPendingCall call = send(message(largeDocument()));
    ASSERT_TRUE(waitUntil([&] { return workersOf(process).size() >= 2; }));
    const std::vector<pid_t> workers = workersOf(process);
    ::kill(process, SIGKILL);
    for (const pid_t worker : workers)
        EXPECT_TRUE(waitUntil([&] { return !isRunning(worker); }));
    EXPECT_FALSE(statsOf(call)); // lost with the broker; the client gets an error
}

TEST_F(ServiceLifeTest, LosesNothingWhenWorkersAreKilledAtRandom)
{
    EXPECT_EQ(count(words(3)).numberOfWords, 3U);
    const pid_t process = service();
    std::mt19937 random(11);
    const QString text = SampleTexts::english.repeated(20);
    const QBYWordCounterStats whole = count(message(flatRtfd(text)));
    std::deque<QDBusPendingCall> waiting;
    int answered = 0;
    int kills = 0;
    for (int i = 0; i < 200; ++i) {
        waiting.push_back(send(message(flatRtfd(text))));
        while (waiting.size() > 20 || (i == 199 && !waiting.empty())) {
            EXPECT_EQ(statsOf(waiting.front()), whole);
            waiting.pop_front();
            ++answered;
        }
        const std::vector<pid_t> workers = workersOf(process);
        if (i % 5 == 4 && !workers.empty())
            kills += ::kill(workers[random() % workers.size()], SIGKILL) == 0 ? 1 : 0;
    }
    EXPECT_EQ(answered, 200);
    EXPECT_GT(kills, 20);
    EXPECT_EQ(service(), process);
}

// With so few descriptors, one leaked by each request would soon be too many.
TEST_F(ServiceLifeTest, LeaksNeitherDescriptorsNorZombies)
{
    installServiceWithDescriptors(64);
    std::vector<QDBusMessage> messages;
    for (int i = 0; i < 600; ++i)
        messages.push_back(words(i % 100));
    const auto counts = countAll(messages);
    for (size_t i = 0; i < counts.size(); ++i)
        EXPECT_EQ(counts[i].value_or(QBYWordCounterStats()).numberOfWords, i % 100);
    const pid_t process = service();
    EXPECT_TRUE(waitUntil([process] { return workersOf(process).size() == childrenOf(process).size(); }));
}

// More than the service reads at a time; the others wait in the bus.
TEST_F(ServiceLifeTest, ThousandsOfRequestsMayWait)
{
    const PrivateBus bus; // with the limits of a user's session
    const auto connect = [&](int number) {
        return QDBusConnection::connectToBus(
            QString::fromUtf8(bus.address()), QStringLiteral("crowd-%1").arg(number));
    };
    std::vector<QDBusConnection> clients{connect(0)};
    const QDBusMessage request = words(5);
    ASSERT_EQ(clients[0].call(request).type(), QDBusMessage::ReplyMessage);
    const pid_t process = serviceOn(clients[0]);
    for (const pid_t worker : workersOf(process))
        ::kill(worker, SIGSTOP);
    std::vector<QDBusPendingCall> calls;
    for (int i = 1; i <= 50; ++i) {
        clients.push_back(connect(i));
        for (int k = 0; k < 100; ++k)
            calls.push_back(clients.back().asyncCall(request, 300'000));
    }
    for (const pid_t worker : workersOf(process))
        ::kill(worker, SIGCONT);
    for (const QDBusPendingCall &call : calls)
        ASSERT_EQ(statsOf(call).value_or(QBYWordCounterStats()).numberOfWords, 5U);
    for (const QDBusConnection &client : clients)
        QDBusConnection::disconnectFromBus(client.name());
}

TEST_F(ServiceLifeTest, CountsWithAFontThatWasInstalledWhileItWasIdle)
{
    const QString folder = world().root() + QStringLiteral("/own-fonts");
    QDir().mkpath(folder);
    QFile configuration(world().root() + QStringLiteral("/fonts/fonts.conf"));
    ASSERT_TRUE(configuration.open(QIODevice::WriteOnly | QIODevice::Truncate));
    configuration.write("<?xml version=\"1.0\"?><fontconfig><dir>" + QFile::encodeName(folder)
        + "</dir><cachedir>" + QFile::encodeName(folder) + "-cache</cachedir></fontconfig>");
    configuration.close();
    const auto install = [&](const QString &font) {
        return QFile::copy(
            QStringLiteral("/usr/share/fonts/truetype/") + font, folder + u'/' + font.section(u'/', -1));
    };
    ASSERT_TRUE(install(QStringLiteral("dejavu/DejaVuSans.ttf")));
    TextAttributes attributes;
    attributes.font = FontAttributes{.family = QStringLiteral("Noto Serif"), .pointSize = 14};
    const QString paragraph = SampleTexts::english.repeated(50).replace(u'\n', u' ');
    const QDBusMessage request = message(flatRtfd(AttributedString(paragraph, attributes)));
    const QBYWordCounterStats without = count(request);
    EXPECT_EQ(count(request), without);
    const pid_t process = service();
    ASSERT_TRUE(install(QStringLiteral("noto/NotoSerif-Regular.ttf")));
    const QBYWordCounterStats with = count(request);
    EXPECT_NE(with, without);
    EXPECT_EQ(service(), process);
    ::kill(process, SIGKILL);
    ASSERT_TRUE(waitForExit(process));
    EXPECT_EQ(count(request), with);
}

TEST_F(ServiceLifeTest, HasNoWidgets)
{
    // ld.so(8) lists the libraries of the program in place of running it.
    const QByteArray libraries =
        ChildProcess(program()).withVariable("LD_TRACE_LOADED_OBJECTS", "1").run({}).output;
    EXPECT_TRUE(libraries.contains("libQt6DBus"));
    EXPECT_FALSE(libraries.contains("libQt6Widgets"));
    EXPECT_FALSE(libraries.contains("libQt6Gui"));
}

TEST_F(ServiceLifeTest, ExplainsItselfOnTheCommandLine)
{
    EXPECT_THAT(ChildProcess(program()).run({"--help"}).output.toStdString(), testing::StartsWith("Usage: "));
    EXPECT_THAT(ChildProcess(program()).run({"--version"}).output.toStdString(),
        testing::StartsWith("quillbay-counting-service "));
    for (const QByteArrayList &words :
        {QByteArrayList{"--idle-time=soon"}, {"--idle-time=-1"}, {"--idle-time="}, {"count"},
            {"--idle-time=1", "more"}, {"--idle-time"}, {"--idle-time", "-1"}}) {
        const ChildProcess::Outcome outcome = ChildProcess(program()).run(words);
        EXPECT_EQ(outcome.exitStatus, 2) << words.join(' ').constData();
        EXPECT_TRUE(outcome.output.isEmpty());
        EXPECT_THAT(outcome.errors.toStdString(), testing::HasSubstr("--help"));
    }
}

TEST_F(ServiceLifeTest, AWorkerWithoutABrokerExits)
{
    EXPECT_EQ(ChildProcess(program()).run({"--worker"}).exitStatus, 1);
}
