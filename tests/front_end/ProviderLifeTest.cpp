// SPDX-License-Identifier: MIT
// The lifetime of the service provider.
#include "platform/services/ServiceInterface.h"
#include "tests/front_end/ProviderTest.h"
#include "tests/harness/PrivateBus.h"
#include "tests/presentation/StatsPanel.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace {

class ProviderLife : public ProviderTest {
protected:
    ProviderLife() { preferOnly(everyStatistic); }

    /// Waits until the provider has processed all events so far.
    void settle() const
    {
        const QDBusMessage ping =
            QDBusMessage::createMethodCall(ServiceInterface::busName(), ServiceInterface::objectPath(),
                QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
        EXPECT_EQ(m_bus.call(ping).type(), QDBusMessage::ReplyMessage);
    }

    /// Takes seconds to read.
    static QString countLargePage()
    {
        const QByteArray page =
            "<!DOCTYPE html>" + QByteArray("<p class='a'>A <b>page</b>.</p>").repeated(100'000);
        return ask(QStringLiteral("wordCountSelectedTextService"),
            Pasteboard({{QStringLiteral("text/html"), page}}));
    }

    static void closeAll()
    {
        EXPECT_TRUE(waitUntil([&] {
            const QStringList open = windows();
            if (!open.isEmpty())
                click(open.last(), rectOf(open.last()).width() - 12, 16);
            return open.isEmpty();
        }));
    }
};

} // namespace

TEST_F(ProviderLife, OtherWindowsStayAliveWhileALargeSelectionIsRead)
{
    EXPECT_EQ(count(QStringLiteral("A text.")), QString());
    const QString other = waitForWindows(1).front();
    waitForNumbers(other);
    // Windows open beside the pointer, and the second one must not cover the first.
    TestDisplay::xdotool({QStringLiteral("mousemove"), QStringLiteral("200"), QStringLiteral("600")});
    EXPECT_EQ(countLargePage(), QString());
    waitForWindows(2);
    click(other, rectOf(other).width() - 12, 16);
    const QString reading = waitForWindows(1).front();
    EXPECT_NE(reading, other);
    EXPECT_FALSE(showsNumbers(reading));
    waitForNumbers(reading);
}

TEST_F(ProviderLife, ExitsWhileALargeSelectionIsRead)
{
    EXPECT_EQ(countLargePage(), QString());
    waitForWindows(1);
    const pid_t process = provider();
    closeAll();
    waitForEnd(process);
}

TEST_F(ProviderLife, WaitsForTheFirstRequest)
{
    startProvider();
    const pid_t process = provider();
    for (int i = 0; i < 5; ++i)
        settle();
    EXPECT_EQ(count(QStringLiteral("A text.")), QString());
    EXPECT_EQ(provider(), process);
}

TEST_F(ProviderLife, ExitsAfterARequestThatOpensNothing)
{
    startProvider();
    const pid_t process = provider();
    EXPECT_EQ(ask(QStringLiteral("wordCountSelectedTextService"), Pasteboard()),
        QStringLiteral("Quillbay failed to read retrieve text."));
    waitForEnd(process);
}

TEST_F(ProviderLife, KeepsItsWindowWhenALaterRequestIsRefused)
{
    EXPECT_EQ(count(QStringLiteral("A text.")), QString());
    const pid_t process = provider();
    EXPECT_NE(ask(QStringLiteral("wordCountSelectedTextService"), Pasteboard()), QString());
    settle();
    EXPECT_EQ(provider(), process);
    waitForWindows(1);
}

TEST_F(ProviderLife, NoRequestIsLostWhileItExits)
{
    // Each reaches a provider that has just become idle.
    for (int i = 0; i < 30; ++i) {
        EXPECT_EQ(ask(QStringLiteral("wordCountSelectedTextService"), Pasteboard()),
            QStringLiteral("Quillbay failed to read retrieve text."));
    }
    EXPECT_EQ(count(QStringLiteral("A text.")), QString());
    waitForWindows(1);
    closeAll();
}

/// A provider on its own bus and display, with two open windows.
class ProviderOfItsOwn {
public:
    explicit ProviderOfItsOwn(const QByteArray &display)
    {
        program.withVariable("DBUS_SESSION_BUS_ADDRESS", bus.address());
        program.withVariable("DISPLAY", display);
        program.start({});
        QDBusConnection client = QDBusConnection::connectToBus(
            QString::fromLatin1(bus.address()), QStringLiteral("client-of-its-own"));
        EXPECT_TRUE(waitUntil(
            [&] { return client.interface()->isServiceRegistered(ServiceInterface::busName()).value(); }));
        QDBusMessage request =
            QDBusMessage::createMethodCall(ServiceInterface::busName(), ServiceInterface::objectPath(),
                ServiceInterface::interfaceName(), QStringLiteral("wordCountSelectedTextService"));
        request.setArguments(
            {QVariantMap{{QStringLiteral("text/plain"), QByteArray("A text.")}}, QString(), QVariantMap()});
        for (int window = 0; window < 2; ++window)
            EXPECT_EQ(client.call(request).type(), QDBusMessage::ReplyMessage);
        QDBusConnection::disconnectFromBus(client.name());
    }

    PrivateBus bus;
    ChildProcess program{productProgram(QStringLiteral("quillbay-service-provider"))};
};

TEST_F(ProviderLife, ExitsWithTheSessionBusDespiteOpenWindows)
{
    // A window may refuse to close, and two windows do not close at once.
    ProviderOfItsOwn provider(TestDisplay::start().toLatin1());
    waitForWindows(2);
    provider.bus.stop();
    EXPECT_EQ(provider.program.finish().exitStatus, 0);
}

TEST_F(ProviderLife, HasItsOwnExitStatusWhenTheXServerDies)
{
    ChildProcess server(QStringLiteral("Xvfb"));
    server.start({"-displayfd", "1", "-nolisten", "tcp", "-noreset"});
    ProviderOfItsOwn provider(':' + server.readLine());
    server.kill();
    const ChildProcess::Outcome outcome = provider.program.finish();
    EXPECT_EQ(outcome.exitStatus, 3) << outcome.errors.toStdString();
    EXPECT_THAT(outcome.errors.toStdString(), testing::HasSubstr("The X11 connection broke"));
}

TEST(ProviderUsage, TakesNoArguments)
{
    const auto outcome =
        ChildProcess(productProgram(QStringLiteral("quillbay-service-provider"))).run({"--help"});
    EXPECT_EQ(outcome.exitStatus, 2);
    EXPECT_THAT(outcome.errors.toStdString(), testing::HasSubstr("takes no arguments"));
}

TEST(ProviderUsage, ReportsAMissingDisplayAndOneThatDoesNotAnswer)
{
    for (const char *const name : {"", ":54321"}) {
        const auto outcome = ChildProcess(productProgram(QStringLiteral("quillbay-service-provider")))
                                 .withVariable("DISPLAY", name)
                                 .withVariable("WAYLAND_DISPLAY", name)
                                 .withoutVariable("QT_QPA_PLATFORM")
                                 .run({});
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_THAT(outcome.errors.toStdString(), testing::HasSubstr("no display"));
    }
}
