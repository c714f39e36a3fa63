// SPDX-License-Identifier: MIT
#include "platform/session_bus/DistributedNotificationCenter.h"

#include "tests/harness/QuillbayTest.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QPointer>
#include <QThread>
#include <QXmlStreamReader>

#include <memory>
#include <thread>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const QString name = QStringLiteral("QBYTestNotification");
const QString marker = QStringLiteral("QBYMarkerNotification");

// Counts what is posted under one name.
class Counter {
public:
    explicit Counter(const QString &counted)
        : m_observer(counted)
    {
        QObject::connect(&m_observer, &NotificationObserver::posted, &m_observer, [this] { ++m_count; });
    }
    [[nodiscard]] int count() const { return m_count; }

private:
    NotificationObserver m_observer;
    int m_count = 0;
};

} // namespace

class DistributedNotificationCenterTest : public QuillbayTest {
protected:
    void SetUp() override { SessionBus::start(); }

    // Returns when everything posted before has been delivered: the bus keeps the order.
    static void settle()
    {
        const Counter markers(marker);
        DistributedNotificationCenter::post(marker);
        EXPECT_TRUE(waitUntil([&markers] { return markers.count() == 1; }));
    }

    RecordingLogSink m_log;
};

TEST_F(DistributedNotificationCenterTest, AnObserverInThePostingProcessReceivesEachPostOnce)
{
    const Counter counter(name);
    DistributedNotificationCenter::post(name);
    DistributedNotificationCenter::post(name);
    settle();
    EXPECT_EQ(counter.count(), 2);
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(DistributedNotificationCenterTest, ABusThatAppearsAfterAFailedAttemptIsUsed)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    DistributedNotificationCenter::post(name); // fails, unless another test has connected this process
    SessionBus::start();
    const Counter counter(name);
    DistributedNotificationCenter::post(name);
    settle();
    EXPECT_EQ(counter.count(), 1);
}

TEST_F(DistributedNotificationCenterTest, DeliveryWaitsForTheEventLoop)
{
    const Counter counter(name);
    DistributedNotificationCenter::post(name);
    EXPECT_EQ(counter.count(), 0);
    EXPECT_TRUE(waitUntil([&counter] { return counter.count() == 1; }));
}

TEST_F(DistributedNotificationCenterTest, OnlyObserversOfTheNameReceiveIt)
{
    const Counter first(name);
    const Counter second(name);
    const Counter other(QStringLiteral("QBYTestNotification2"));
    DistributedNotificationCenter::post(name);
    settle();
    EXPECT_EQ(first.count(), 1);
    EXPECT_EQ(second.count(), 1);
    EXPECT_EQ(other.count(), 0);
}

TEST_F(DistributedNotificationCenterTest, ADestroyedObserverReceivesNothingNotEvenAPendingPost)
{
    int heard = 0;
    auto observer = std::make_unique<NotificationObserver>(name);
    QObject::connect(
        observer.get(), &NotificationObserver::posted, QCoreApplication::instance(), [&heard] { ++heard; });
    DistributedNotificationCenter::post(name);
    observer.reset();
    DistributedNotificationCenter::post(name);
    settle();
    EXPECT_EQ(heard, 0);
}

TEST_F(DistributedNotificationCenterTest, ObserversInOtherProcessesReceiveIt)
{
    ChildProcess first(testProgram(QStringLiteral("notifier")));
    ChildProcess second(testProgram(QStringLiteral("notifier")));
    for (ChildProcess *child : {&first, &second}) {
        child->start({"observe", name.toLatin1()});
        EXPECT_EQ(child->readLine(), QByteArray("ready"));
    }
    for (int i = 0; i < 3; ++i) {
        DistributedNotificationCenter::post(name);
        EXPECT_EQ(first.readLine(), QByteArray("posted"));
        EXPECT_EQ(second.readLine(), QByteArray("posted"));
    }
}

TEST_F(DistributedNotificationCenterTest, APostOfAProcessThatExitsAtOnceIsReceived)
{
    constexpr int processes = 200;
    const Counter counter(name);
    for (int i = 0; i < processes; ++i) {
        const auto outcome =
            ChildProcess(testProgram(QStringLiteral("notifier"))).run({"post", name.toLatin1()});
        ASSERT_EQ(outcome.exitStatus, 0);
        ASSERT_EQ(outcome.errors, QByteArray());
    }
    settle();
    EXPECT_EQ(counter.count(), processes);
}

TEST_F(DistributedNotificationCenterTest, AnyThreadMayPost)
{
    constexpr int threads = 4;
    constexpr int posts = 50;
    const Counter counter(name);
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i) {
        running.emplace_back([] {
            for (int post = 0; post < posts; ++post)
                DistributedNotificationCenter::post(name);
        });
    }
    for (std::thread &thread : running)
        thread.join();
    settle();
    EXPECT_EQ(counter.count(), threads * posts);
}

TEST_F(DistributedNotificationCenterTest, AnObserverReceivesOnTheThreadThatMadeIt)
{
    QThread thread;
    thread.start();
    QObject context;
    context.moveToThread(&thread);
    std::unique_ptr<NotificationObserver> observer;
    std::atomic<QThread *> heardOn = nullptr;
    QMetaObject::invokeMethod(
        &context,
        [&observer, &heardOn] {
            observer = std::make_unique<NotificationObserver>(name);
            QObject::connect(observer.get(), &NotificationObserver::posted, observer.get(),
                [&heardOn] { heardOn = QThread::currentThread(); });
        },
        Qt::BlockingQueuedConnection);
    DistributedNotificationCenter::post(name);
    EXPECT_TRUE(waitUntil([&heardOn] { return heardOn != nullptr; }));
    EXPECT_EQ(heardOn, &thread);
    QMetaObject::invokeMethod(
        &context, [&observer] { observer.reset(); }, Qt::BlockingQueuedConnection);
    thread.quit();
    thread.wait();
}

TEST_F(DistributedNotificationCenterTest, ANameThatTheBusCannotCarryIsRefusedInTheLog)
{
    DistributedNotificationCenter::post(QStringLiteral("no name"));
    EXPECT_THAT(m_log.messages(), ElementsAre(QStringLiteral("Cannot post notification no name")));
    const Counter counter(name);
    DistributedNotificationCenter::post(name);
    settle();
    EXPECT_EQ(counter.count(), 1);
}

TEST_F(DistributedNotificationCenterTest, TheSignalOnTheBusIsTheOneThatTheDocumentationDescribes)
{
    QXmlStreamReader description(
        readFile(QStringLiteral(BUS_DOCUMENTATION "/com.quillbay.DistributedNotificationCenter.xml")));
    QString path;
    QString interface;
    QStringList signalNames;
    while (!description.atEnd()) {
        if (description.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString value = description.attributes().value(QLatin1StringView("name")).toString();
        if (description.name() == u"node")
            path = value;
        else if (description.name() == u"interface")
            interface = value;
        else if (description.name() == u"signal")
            signalNames.append(value);
    }
    ASSERT_FALSE(description.hasError()) << description.errorString().toStdString();
    ASSERT_THAT(signalNames, ElementsAre(QStringLiteral("QBYPreferencesChangedNotification")));

    QDBusConnection bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("stranger"));
    QPointer<QObject> listener = new QObject; // deleted when it receives the signal
    bus.connect({}, path, interface, signalNames.front(), listener, SLOT(deleteLater()));
    bus.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
        QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping")));
    DistributedNotificationCenter::post(signalNames.front());
    EXPECT_TRUE(waitUntil([&listener] { return listener.isNull(); }));
    delete listener;
    QDBusConnection::disconnectFromBus(QStringLiteral("stranger"));
}
