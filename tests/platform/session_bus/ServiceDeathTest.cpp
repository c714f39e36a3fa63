// SPDX-License-Identifier: MIT
// Requests whose service dies, or loses its name, before it has answered.
#include "platform/session_bus/RemoteObjectConnection.h"

#include "tests/platform/session_bus/ConnectionTest.h"

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

class ServiceDeathTest : public ConnectionTest { };

TEST_F(ServiceDeathTest, ARequestLostWithItsServiceIsSentOnceMoreWithTheSamePayload)
{
    const ServiceStandIn service(standInName, {"crash", "answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    send(*connection, "precious");
    m_replies.waitFor(1);
    const auto received = service.requests();
    ASSERT_THAT(received, SizeIs(2));
    EXPECT_NE(received[0].service, received[1].service);
    EXPECT_EQ(received[0].hash, received[1].hash);
    EXPECT_EQ(received[0].client, received[1].client);
    EXPECT_THAT(m_replies.replies(), ElementsAre(counts));
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(ServiceDeathTest, ARequestLostTwiceLeavesOneLineInTheLog)
{
    const ServiceStandIn service(standInName, {"crash", "crash", "answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    send(*connection);
    waitForLogLines(1);
    EXPECT_THAT(service.requests(), SizeIs(2));
    send(*connection); // the connection still works
    m_replies.waitFor(1);
    EXPECT_THAT(service.requests(), SizeIs(3));
    EXPECT_THAT(m_replies.replies(), ElementsAre(counts));
    EXPECT_THAT(m_log.messages(),
        ElementsAre(QStringLiteral("No answer from com.quillbay.test.Service to count: "
                                   "org.freedesktop.DBus.Error.NoReply: <private>")));
}

TEST_F(ServiceDeathTest, AllPendingRequestsAreSentOnceMore)
{
    const ServiceStandIn service(standInName, {"hold", "hold", "crash", "answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    for (int i = 0; i < 3; ++i)
        send(*connection);
    m_replies.waitFor(3);
    EXPECT_THAT(service.requests(), SizeIs(6));
    EXPECT_THAT(m_replies.replies(), SizeIs(3));
}

TEST_F(ServiceDeathTest, AServiceThatExitedIsStartedByTheNextRequest)
{
    const ServiceStandIn service(standInName, {"depart 8 7 6 5 4 3 2 1", "answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    send(*connection);
    m_replies.waitFor(1);
    EXPECT_TRUE(waitUntil([&] { return !service.isOnTheBus(service.requests().front().service); }));
    send(*connection);
    m_replies.waitFor(2);
    const auto received = service.requests();
    EXPECT_NE(received.front().service, received.back().service);
    EXPECT_THAT(m_replies.replies(), ElementsAre(RemoteReply{8, 7, 6, 5, 4, 3, 2, 1}, counts));
}

TEST_F(ServiceDeathTest, AServiceThatReleasesItsNameCountsAsLost)
{
    const ServiceStandIn service(standInName, {"leave", "answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    send(*connection);
    m_replies.waitFor(1);
    const auto received = service.requests();
    ASSERT_THAT(received, SizeIs(2));
    EXPECT_NE(received[0].service, received[1].service);
    EXPECT_THAT(m_replies.replies(), ElementsAre(counts));
}

TEST_F(ServiceDeathTest, OnlyTheFirstAnswerOfTwoServicesIsDelivered)
{
    const ServiceStandIn service(standInName, {"move", "hold", "answer 8 7 6 5 4 3 2 1"});
    const auto connection = resumedConnection();
    send(*connection);
    service.waitForRequests(2);
    service.release(); // both
    m_replies.waitFor(1);
    send(*connection);
    m_replies.waitFor(2);
    EXPECT_THAT(m_replies.replies(), ElementsAre(counts, RemoteReply{8, 7, 6, 5, 4, 3, 2, 1}));
}

TEST_F(ServiceDeathTest, AServiceThatLostItsNameMayAnswerIfTheNextOneDies)
{
    const ServiceStandIn service(standInName, {"move", "crash", "answer 8 7 6 5 4 3 2 1"});
    const auto connection = resumedConnection();
    send(*connection);
    service.waitForRequests(2);
    send(*connection);
    m_replies.waitFor(1);
    service.release();
    m_replies.waitFor(2);
    EXPECT_EQ(m_replies.replies().back(), counts);
    // The second request may have reached the crashing service, and been sent once more.
    EXPECT_THAT(service.requests(), AnyOf(SizeIs(3), SizeIs(4)));
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(ServiceDeathTest, AMissingServiceLeavesOneLineInTheLog)
{
    SessionBus::start();
    const auto connection = resumedConnection();
    send(*connection);
    waitForLogLines(1);
    EXPECT_THAT(m_log.messages(),
        ElementsAre(QStringLiteral("No answer from com.quillbay.test.Service to count: "
                                   "org.freedesktop.DBus.Error.ServiceUnknown: <private>")));
    EXPECT_EQ(m_replies.count(), 0U);
}
