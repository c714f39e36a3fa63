// SPDX-License-Identifier: MIT
#include "platform/session_bus/UserNotification.h"
#include "tests/harness/QuillbayTest.h"

#include <memory>

namespace {

class UserNotification : public QuillbayTest {
protected:
    UserNotification() { SessionBus::start(); }

    static bool show()
    {
        return showUserNotification(QStringLiteral("Quillbay"), QStringLiteral("1 < 2 & <b>π"));
    }

    static std::unique_ptr<ChildProcess> startServer(const QByteArrayList &words)
    {
        auto server = std::make_unique<ChildProcess>(testProgram(QStringLiteral("notification_server")));
        server->start(words);
        EXPECT_EQ(server->readLine(), QByteArray("ready"));
        return server;
    }
};

} // namespace

TEST_F(UserNotification, ReachesTheServerOfTheDesktopWithItsTextEscaped)
{
    const auto server = startServer({});
    EXPECT_TRUE(show());
    EXPECT_EQ(
        server->readLine(), QByteArray("Quillbay|com.quillbay.Quillbay|Quillbay|1 &lt; 2 &amp; &lt;b&gt;π"));
}

TEST_F(UserNotification, WithoutAServerIsNotShown)
{
    EXPECT_FALSE(show());
}

TEST_F(UserNotification, TimesOutIfTheServerIsSilent)
{
    const auto server = startServer({"silent"});
    EXPECT_FALSE(show());
}
