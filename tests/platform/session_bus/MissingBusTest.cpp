// SPDX-License-Identifier: MIT
// Requests without a session bus, with one that is lost, and with one that hangs.
#include "platform/session_bus/RemoteObjectConnection.h"

#include "tests/harness/PrivateBus.h"
#include "tests/platform/session_bus/ConnectionTest.h"

#include <QDBusVirtualObject>
#include <QElapsedTimer>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using ::testing::ElementsAre;
using ::testing::SizeIs;
using ::testing::StartsWith;

namespace {

const std::string noAnswer = "No answer from com.quillbay.test.Service to count: ";
const std::string noBus = noAnswer + "no session bus: ";

// Owns the name on a bus, and never answers.
class SilentService : public QDBusVirtualObject {
public:
    explicit SilentService(const QByteArray &address)
        : m_bus(QDBusConnection::connectToBus(QString::fromLatin1(address), QStringLiteral("SilentService")))
    {
        m_bus.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
        EXPECT_TRUE(m_bus.registerService(standInName));
    }
    ~SilentService() override { QDBusConnection::disconnectFromBus(QStringLiteral("SilentService")); }

    [[nodiscard]] QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &, const QDBusConnection &) override
    {
        ++requests;
        return true;
    }

    int requests = 0;

private:
    QDBusConnection m_bus;
};

} // namespace

class MissingBusTest : public ConnectionTest {
protected:
    void expectLine(qsizetype number, const std::string &start)
    {
        waitForLogLines(number);
        ASSERT_THAT(m_log.messages(), SizeIs(number));
        EXPECT_THAT(m_log.messages().last().toStdString(), StartsWith(start));
    }
};

TEST_F(MissingBusTest, EveryRequestWithoutABusLeavesOneLineInTheLog)
{
    const auto connection = resumedConnection();
    EXPECT_THAT(m_log.messages(), SizeIs(0));
    send(*connection);
    expectLine(1, noBus);
    send(*connection);
    expectLine(2, noBus);
    EXPECT_EQ(m_replies.count(), 0U);
}

TEST_F(MissingBusTest, ABusThatAppearsLaterIsUsed)
{
    const auto connection = resumedConnection();
    send(*connection);
    expectLine(1, noBus);
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    send(*connection);
    m_replies.waitFor(1);
    EXPECT_THAT(m_replies.replies(), ElementsAre(counts));
}

TEST_F(MissingBusTest, ARequestThatIsLostWithTheBusLeavesOneLineInTheLog)
{
    PrivateBus bus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address());
    SilentService service(bus.address());
    const auto connection = resumedConnection();
    send(*connection);
    EXPECT_TRUE(waitUntil([&service] { return service.requests == 1; }));
    bus.stop();
    expectLine(1, noAnswer);
    EXPECT_EQ(m_replies.count(), 0U);
}

TEST_F(MissingBusTest, ARequestAfterTheLossOfABusUsesTheNextOne)
{
    auto bus = std::make_unique<PrivateBus>();
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus->address());
    auto first = std::make_unique<SilentService>(bus->address());
    const auto connection = resumedConnection();
    send(*connection);
    EXPECT_TRUE(waitUntil([&first] { return first->requests == 1; }));
    first.reset();
    bus->stop();
    expectLine(1, noAnswer);
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    send(*connection);
    m_replies.waitFor(1);
    EXPECT_THAT(m_replies.replies(), ElementsAre(counts));
}

TEST_F(MissingBusTest, AHangingBusBlocksNothingElse)
{
    const QByteArray path = world().root().toLocal8Bit() + "/deaf";
    sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
    std::ranges::copy(path, address.sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(socket, 4), 0);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path);

    QElapsedTimer clock;
    clock.start();
    auto connection = resumedConnection();
    send(*connection);
    const int client =
        ::accept4(socket, nullptr, nullptr, SOCK_CLOEXEC); // the thread of the connections is connecting now
    send(*connection);
    connection->invalidate();
    connection.reset();
    EXPECT_LT(clock.elapsed(), 10'000); // libdbus has a timeout of 25 seconds
    ::close(client);
    ::close(socket);

    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    const auto next = resumedConnection();
    send(*next);
    m_replies.waitFor(1);
    EXPECT_THAT(m_log.messages(LogLevel::Notice), SizeIs(0));
}
