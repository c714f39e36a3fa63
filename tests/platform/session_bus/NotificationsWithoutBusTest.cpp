// SPDX-License-Identifier: MIT
// Notifications without a session bus, or with one that is lost or hangs. In processes of their own, because
// the connection to the bus belongs to the process.
#include "platform/session_bus/DistributedNotificationCenter.h"

#include "tests/harness/PrivateBus.h"
#include "tests/harness/QuillbayTest.h"

using ::testing::HasSubstr;

class NotificationsWithoutBusTest : public QuillbayTest {
protected:
    static void expectOneLineOnErrors(const ChildProcess::Outcome &outcome)
    {
        EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
        EXPECT_THAT(
            outcome.errors.toStdString(), HasSubstr("No session bus; notifications are not delivered"));
    }

    void startTalk(const QByteArray &address)
    {
        m_notifier.withVariable("DBUS_SESSION_BUS_ADDRESS", address);
        m_notifier.start({"talk"});
        EXPECT_EQ(m_notifier.readLine(), QByteArray("ready"));
    }

    void expectAnswer()
    {
        m_notifier.writeLine("QBYTestNotification");
        EXPECT_EQ(m_notifier.readLine(), QByteArray("done"));
    }

    ChildProcess m_notifier{testProgram(QStringLiteral("notifier"))};
};

TEST_F(NotificationsWithoutBusTest, WithoutABusAtTheAddressPostingDoesNothingAndOneLineIsLogged)
{
    const auto outcome = m_notifier.run({"talk"}, "A\nB\nC\n");
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, QByteArray("ready\ndone\ndone\ndone\n"));
    expectOneLineOnErrors(outcome);
}

TEST_F(NotificationsWithoutBusTest, WithoutAnAddressPostingDoesNothingAndOneLineIsLogged)
{
    const auto outcome = m_notifier.withoutVariable("DBUS_SESSION_BUS_ADDRESS").run({"talk"}, "A\nB\n");
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, QByteArray("ready\ndone\ndone\n"));
    expectOneLineOnErrors(outcome);
}

TEST_F(NotificationsWithoutBusTest, WithAnInvalidAddressPostingDoesNothingAndOneLineIsLogged)
{
    const auto outcome =
        m_notifier.withVariable("DBUS_SESSION_BUS_ADDRESS", "nonsense").run({"talk"}, "A\nB\n");
    EXPECT_EQ(outcome.exitStatus, 0);
    expectOneLineOnErrors(outcome);
}

TEST_F(NotificationsWithoutBusTest, WithoutAnApplicationObjectPostingDoesNothingAndOneLineIsLogged)
{
    const auto outcome =
        m_notifier.withVariable("DBUS_SESSION_BUS_ADDRESS", SessionBus::start().toLocal8Bit())
            .run({"without-application", "A"});
    EXPECT_EQ(outcome.exitStatus, 0);
    expectOneLineOnErrors(outcome);
}

TEST_F(NotificationsWithoutBusTest, ALostBusNeitherEndsNorBlocksTheProcess)
{
    PrivateBus bus;
    startTalk(bus.address());
    expectAnswer();
    bus.stop();
    for (int i = 0; i < 3; ++i)
        expectAnswer();
    const auto outcome = m_notifier.finish();
    EXPECT_EQ(outcome.exitStatus, 0);
    expectOneLineOnErrors(outcome);
}

TEST_F(NotificationsWithoutBusTest, PostingWorksAgainOnceThereIsABusAgain)
{
    PrivateBus first;
    startTalk(first.address());
    first.stop();
    expectAnswer();

    const PrivateBus second;
    ChildProcess observer(testProgram(QStringLiteral("notifier")));
    observer.withVariable("DBUS_SESSION_BUS_ADDRESS", second.address())
        .start({"observe", "QBYTestNotification"});
    EXPECT_EQ(observer.readLine(), QByteArray("ready"));
    expectAnswer();
    EXPECT_EQ(observer.readLine(), QByteArray("posted"));
    expectOneLineOnErrors(m_notifier.finish());
}

TEST_F(NotificationsWithoutBusTest, AHangingBusBlocksAProcessOnceAndGetsItsNotificationsLater)
{
    const PrivateBus bus;
    ChildProcess observer(testProgram(QStringLiteral("notifier")));
    observer.withVariable("DBUS_SESSION_BUS_ADDRESS", bus.address())
        .start({"observe", "QBYTestNotification"});
    EXPECT_EQ(observer.readLine(), QByteArray("ready"));
    startTalk(bus.address());
    bus.suspend();
    expectAnswer();
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 5; ++i)
        expectAnswer();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    bus.resume();
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(observer.readLine(), QByteArray("posted"));
    const auto outcome = m_notifier.finish();
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("The session bus does not answer"));
}
