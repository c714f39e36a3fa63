// SPDX-License-Identifier: MIT
// The invalidation of a connection, and pending requests.
#include "platform/session_bus/RemoteObjectConnection.h"

#include "tests/platform/session_bus/ConnectionTest.h"

#include <atomic>
#include <future>

using ::testing::IsEmpty;
using ::testing::SizeIs;

class InvalidationTest : public ConnectionTest { };

TEST_F(InvalidationTest, LaterAnswersAreNotDelivered)
{
    const ServiceStandIn service(standInName, {"hold", "hold", "answer 8 7 6 5 4 3 2 1"});
    const auto invalidated = resumedConnection();
    auto destroyed = resumedConnection();
    send(*invalidated);
    send(*destroyed);
    service.waitForRequests(2);
    invalidated->invalidate();
    destroyed.reset();
    service.release();
    const auto next = resumedConnection();
    send(*next);
    m_replies.waitFor(1); // on the same thread, after the earlier replies
    EXPECT_EQ(m_replies.replies().front(), (RemoteReply{8, 7, 6, 5, 4, 3, 2, 1}));
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(InvalidationTest, TheServiceSeesItsClientDisconnect)
{
    const ServiceStandIn service(standInName, {"hold"});
    const auto connection = resumedConnection();
    send(*connection);
    service.waitForRequests(1);
    const QString client = service.requests().front().client;
    EXPECT_TRUE(service.isOnTheBus(client));
    connection->invalidate();
    EXPECT_TRUE(waitUntil([&] { return !service.isOnTheBus(client); }));
}

TEST_F(InvalidationTest, AnInvalidatedConnectionSendsNothing)
{
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    const RemoteObjectProxy proxy = connection->remoteObjectProxy();
    connection->invalidate();
    connection->invalidate();
    connection->resume();
    proxy.send(request(), m_replies.handler());
    const auto next = resumedConnection();
    send(*next);
    m_replies.waitFor(1);
    EXPECT_THAT(service.requests(), SizeIs(1));
    EXPECT_EQ(m_replies.count(), 1U);
}

TEST_F(InvalidationTest, AHandlerThatWasNotCalledIsDestroyedInTheCall)
{
    const ServiceStandIn service(standInName, {"hold"});
    const auto connection = resumedConnection();
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> watched = held;
    connection->remoteObjectProxy().send(request(), [held](const RemoteReply &) {});
    held.reset();
    service.waitForRequests(1);
    EXPECT_FALSE(watched.expired());
    connection->invalidate();
    EXPECT_TRUE(watched.expired());
}

TEST_F(InvalidationTest, AHandlerMayInvalidateAndDestroyItsConnection)
{
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    auto connection = resumedConnection();
    std::promise<void> destroyed;
    connection->remoteObjectProxy().send(request(), [&](const RemoteReply &) {
        connection->invalidate();
        connection.reset();
        destroyed.set_value();
    });
    EXPECT_EQ(destroyed.get_future().wait_for(std::chrono::seconds(20)), std::future_status::ready);
}

TEST_F(InvalidationTest, ARunningHandlerIsWaitedFor)
{
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    std::promise<void> entered;
    std::atomic<bool> mayReturn = false;
    std::atomic<bool> hasReturned = false;
    connection->remoteObjectProxy().send(request(), [&](const RemoteReply &) {
        entered.set_value();
        mayReturn.wait(false);
        hasReturned = true;
    });
    entered.get_future().wait();
    std::thread opener([&] {
        mayReturn = true;
        mayReturn.notify_all();
    });
    connection->invalidate();
    EXPECT_TRUE(hasReturned);
    opener.join();
}

// Closes after every possible number of answers, while the next one is pending.
TEST_F(InvalidationTest, NothingIsDeliveredOnceTheCallHasReturned)
{
    constexpr int requests = 4;
    struct Race {
        std::atomic<bool> isOver = false;
        std::atomic<int> timely = 0;
        std::atomic<int> late = 0;
    };
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    for (int round = 0; round < 200; ++round) {
        const auto race = std::make_shared<Race>();
        const auto connection = resumedConnection();
        for (int i = 0; i < requests; ++i) {
            connection->remoteObjectProxy().send(request(), [race](const RemoteReply &) {
                std::atomic<int> &count = race->isOver ? race->late : race->timely;
                ++count;
                count.notify_one();
            });
        }
        for (int seen = 0; seen < round % requests; seen = race->timely)
            race->timely.wait(seen);
        connection->invalidate();
        race->isOver = true;
        const int timely = race->timely;
        ASSERT_GE(timely, round % requests);
        ASSERT_EQ(race->late, 0);
        ASSERT_EQ(race->timely, timely);
    }
    const auto last = resumedConnection();
    send(*last);
    m_replies.waitFor(1); // after all possible replies
    EXPECT_THAT(m_log.messages(), IsEmpty());
}
