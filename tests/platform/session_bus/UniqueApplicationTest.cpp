// SPDX-License-Identifier: MIT
#include "platform/session_bus/UniqueApplication.h"

#include "tests/harness/QuillbayTest.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const QString busName = QStringLiteral("com.quillbay.Test");

class UniqueApplicationTest : public QuillbayTest {
protected:
    UniqueApplicationTest() { SessionBus::start(); }

    /// As another program of the desktop.
    static QDBusConnection stranger()
    {
        return QDBusConnection::connectToBus(
            qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("stranger"));
    }

    static void send(const QString &member, const QVariantList &arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(busName, QStringLiteral("/com/quillbay/Test"),
            QStringLiteral("org.freedesktop.Application"), member);
        message.setArguments(arguments);
        EXPECT_TRUE(stranger().send(message));
    }

    void follow(UniqueApplication &application)
    {
        QObject::connect(&application, &UniqueApplication::requested,
            [this](const UniqueApplication::Request &request) { m_requests.push_back(request); });
    }

    std::vector<UniqueApplication::Request> m_requests;
};

} // namespace

TEST_F(UniqueApplicationTest, TheFirstReceivesFilesAndTokenOfLaterOnes)
{
    UniqueApplication application(busName);
    follow(application);
    ASSERT_EQ(application.start({}), UniqueApplication::Role::First);
    send(QStringLiteral("Open"),
        {QStringList{QStringLiteral("file:///tmp/a%20b.txt")},
            QVariantMap{{QStringLiteral("activation-token"), QStringLiteral("token_TIME5")}}});
    ASSERT_TRUE(waitUntil([this] { return !m_requests.empty(); }));
    EXPECT_THAT(m_requests[0].files, ElementsAre(QUrl::fromLocalFile(QStringLiteral("/tmp/a b.txt"))));
    EXPECT_EQ(m_requests[0].activationToken, QByteArray("token_TIME5"));
}

TEST_F(UniqueApplicationTest, AProgramOfX11PassesItsTokenByTheOtherName)
{
    UniqueApplication application(busName);
    follow(application);
    ASSERT_EQ(application.start({}), UniqueApplication::Role::First);
    send(QStringLiteral("Activate"),
        {QVariantMap{{QStringLiteral("desktop-startup-id"), QStringLiteral("x_TIME7")}}});
    ASSERT_TRUE(waitUntil([this] { return !m_requests.empty(); }));
    EXPECT_THAT(m_requests[0].files, IsEmpty());
    EXPECT_EQ(m_requests[0].activationToken, QByteArray("x_TIME7"));
}

TEST_F(UniqueApplicationTest, TakesABoundedNumberOfFiles)
{
    UniqueApplication application(busName);
    follow(application);
    ASSERT_EQ(application.start({}), UniqueApplication::Role::First);
    send(QStringLiteral("Open"), {QStringList(5000, QStringLiteral("file:///a")), QVariantMap()});
    ASSERT_TRUE(waitUntil([this] { return !m_requests.empty(); }));
    EXPECT_EQ(m_requests[0].files.size(), UniqueApplication::maxFiles);
}

TEST_F(UniqueApplicationTest, AFirstOneThatDoesNotAnswerLeavesTheLaterOneAlone)
{
    ASSERT_TRUE(stranger().registerService(busName)); // without the object
    UniqueApplication application(busName, 200);
    EXPECT_EQ(application.start({}), UniqueApplication::Role::Alone);
    stranger().unregisterService(busName);
}

TEST_F(UniqueApplicationTest, ReleasesTheNameAtItsEnd)
{
    {
        UniqueApplication application(busName);
        ASSERT_EQ(application.start({}), UniqueApplication::Role::First);
    }
    EXPECT_FALSE(stranger().interface()->isServiceRegistered(busName));
}
