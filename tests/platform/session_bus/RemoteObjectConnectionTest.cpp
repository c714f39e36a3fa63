// SPDX-License-Identifier: MIT
#include "platform/session_bus/RemoteObjectConnection.h"

#include "tests/platform/session_bus/ConnectionTest.h"

#include <QCryptographicHash>
#include <QThread>

#include <fcntl.h>

#include <future>

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Ne;
using ::testing::SizeIs;

class RemoteObjectConnectionTest : public ConnectionTest { };

TEST_F(RemoteObjectConnectionTest, ARequestStartsTheServiceAndItsReplyHasEightUnsigned64BitNumbers)
{
    const ServiceStandIn service(
        standInName, {"answer 0 18446744073709551615 3 4 5 6 7 9223372036854775808"});
    const auto connection = resumedConnection();
    send(*connection);
    m_replies.waitFor(1);
    EXPECT_THAT(
        m_replies.replies(), ElementsAre(RemoteReply{0, UINT64_MAX, 3, 4, 5, 6, 7, 9223372036854775808U}));
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(RemoteObjectConnectionTest, ARequestTravelsWithItsSealedPayloadAndItsOptions)
{
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    const QByteArray payload("payload \0 with a zero", 20);
    RemoteRequest sent = request(payload);
    sent.options = {{QStringLiteral("locale"), QStringLiteral("de_DE.UTF-8")}};
    connection->remoteObjectProxy().send(sent, m_replies.handler());
    m_replies.waitFor(1);

    ASSERT_THAT(service.requests(), SizeIs(1));
    const ServiceStandIn::Request received = service.requests().front();
    EXPECT_EQ(received.path, QStringLiteral("/com/quillbay/test"));
    EXPECT_EQ(received.interface, QStringLiteral("com.quillbay.test.Counting"));
    EXPECT_EQ(received.method, QStringLiteral("count"));
    EXPECT_EQ(received.signature, QStringLiteral("htba{sv}"));
    EXPECT_EQ(received.size, payload.size());
    EXPECT_EQ(received.length, payload.size());
    EXPECT_EQ(received.hash, QCryptographicHash::hash(payload, QCryptographicHash::Sha1).toHex());
    EXPECT_EQ(received.seals, F_SEAL_WRITE | F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL);
    EXPECT_FALSE(received.isAbsent);
    EXPECT_EQ(received.options, sent.options);
}

TEST_F(RemoteObjectConnectionTest, AnAbsentPayloadIsAnEmptyFileMarkedAsAbsent)
{
    const ServiceStandIn service(standInName, {"answer 0 0 0 0 0 0 0 0"});
    const auto connection = resumedConnection();
    connection->remoteObjectProxy().send(
        {.method = QStringLiteral("count"), .payload = nullptr, .options = {}}, m_replies.handler());
    send(*connection, {});
    m_replies.waitFor(2);

    const auto received = service.requests();
    ASSERT_THAT(received, SizeIs(2));
    EXPECT_TRUE(received[0].isAbsent);
    EXPECT_EQ(received[0].size, 0);
    EXPECT_EQ(received[0].length, 0);
    EXPECT_EQ(received[0].seals & F_SEAL_WRITE, F_SEAL_WRITE);
    EXPECT_FALSE(received[1].isAbsent); // an empty document is a document
    EXPECT_EQ(received[1].length, 0);
    EXPECT_THAT(m_replies.replies(), Each(RemoteReply{}));
}

TEST_F(RemoteObjectConnectionTest, ALargePayloadArrivesComplete)
{
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    const QByteArray payload(qsizetype{256} * 1024 * 1024, 'q');
    send(*connection, payload);
    m_replies.waitFor(1);
    ASSERT_THAT(service.requests(), SizeIs(1));
    EXPECT_EQ(service.requests().front().length, payload.size());
    EXPECT_EQ(
        service.requests().front().hash, QCryptographicHash::hash(payload, QCryptographicHash::Sha1).toHex());
}

TEST_F(RemoteObjectConnectionTest, RepliesOfAllConnectionsArriveOnOneThreadBesidesTheMainThread)
{
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    const auto first = resumedConnection();
    const auto second = resumedConnection();
    send(*first);
    send(*second);
    send(*first);
    m_replies.waitFor(3);
    EXPECT_THAT(m_replies.threads(), Each(Ne(std::this_thread::get_id())));
    EXPECT_THAT(m_replies.threads(), Each(m_replies.threads().front()));
}

TEST_F(RemoteObjectConnectionTest, EveryConnectionIsAClientOfItsOwnForAllOfItsRequests)
{
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    const auto first = resumedConnection();
    const auto second = resumedConnection();
    send(*first);
    m_replies.waitFor(1);
    send(*first);
    m_replies.waitFor(2);
    send(*second);
    m_replies.waitFor(3);
    const auto received = service.requests();
    ASSERT_THAT(received, SizeIs(3));
    EXPECT_EQ(received[0].client, received[1].client);
    EXPECT_NE(received[1].client, received[2].client);
}

TEST_F(RemoteObjectConnectionTest, ARequestWaitsUntilTheConnectionIsResumed)
{
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    const auto resumed = resumedConnection();
    RemoteObjectConnection connection(standInName);
    connection.setRemoteObjectInterface(resumed->remoteObjectInterface());
    send(connection);
    send(*resumed); // is sent first
    m_replies.waitFor(1);
    EXPECT_THAT(service.requests(), SizeIs(1));
    connection.resume();
    m_replies.waitFor(2);
    EXPECT_THAT(service.requests(), SizeIs(2));
}

TEST_F(RemoteObjectConnectionTest, OthersAreDeliveredDuringALongWaitForAnAnswer)
{
    const ServiceStandIn service(standInName, {"hold", "answer 8 7 6 5 4 3 2 1"});
    const auto connection = resumedConnection();
    send(*connection);
    send(*connection);
    m_replies.waitFor(1);
    EXPECT_EQ(m_replies.replies().front(), (RemoteReply{8, 7, 6, 5, 4, 3, 2, 1}));
    service.release();
    m_replies.waitFor(2);
    EXPECT_EQ(m_replies.replies().back(), counts);
}

TEST_F(RemoteObjectConnectionTest, ASecondAnswerToARequestIsIgnored)
{
    const ServiceStandIn service(standInName, {"twice 1 2 3 4 5 6 7 8", "answer 8 7 6 5 4 3 2 1"});
    const auto connection = resumedConnection();
    send(*connection);
    m_replies.waitFor(1);
    send(*connection);
    m_replies.waitFor(2);
    EXPECT_THAT(m_replies.replies(), ElementsAre(counts, RemoteReply{8, 7, 6, 5, 4, 3, 2, 1}));
}

TEST_F(RemoteObjectConnectionTest, AnErrorIsLoggedAndNotDelivered)
{
    const ServiceStandIn service(
        standInName, {"error com.quillbay.test.Planned", "error org.freedesktop.DBus.Error.TimedOut"});
    const auto connection = resumedConnection();
    send(*connection);
    waitForLogLines(1);
    send(*connection);
    waitForLogLines(2);
    EXPECT_THAT(m_log.messages(LogLevel::Error),
        ElementsAre(QStringLiteral("No answer from com.quillbay.test.Service to count: "
                                   "com.quillbay.test.Planned: <private>"),
            QStringLiteral("No answer from com.quillbay.test.Service to count: "
                           "org.freedesktop.DBus.Error.TimedOut: <private>")));
    EXPECT_THAT(service.requests(), SizeIs(2));
    EXPECT_EQ(m_replies.count(), 0U);
}

TEST_F(RemoteObjectConnectionTest, AnErrorOfTheServiceReachesTheErrorHandler)
{
    const auto connection = resumedConnection();
    const QByteArray ours = connection->remoteObjectInterface().name.toLatin1() + ".Error.Planned";
    const ServiceStandIn service(standInName, {"error " + ours, "error com.quillbay.test.Planned"});
    std::promise<QString> error;
    const RemoteRequest request{.method = QStringLiteral("count"), .payload = nullptr, .options = {}};
    connection->remoteObjectProxy().send(
        request, m_replies.handler(), [&error](const QString &message) { error.set_value(message); });
    EXPECT_EQ(error.get_future().get(), QStringLiteral("planned"));
    EXPECT_THAT(m_log.messages(LogLevel::Error), IsEmpty());
    connection->remoteObjectProxy().send(
        request, m_replies.handler(), [](const QString &) { FAIL() << "not of the interface"; });
    waitForLogLines(1);
    EXPECT_EQ(m_replies.count(), 0U);
}

TEST_F(RemoteObjectConnectionTest, AnAnswerOfAnotherFormIsLoggedAndNotDelivered)
{
    const ServiceStandIn service(
        standInName, {"text", "answer 1 2 3 4 5 6 7", "answer 1 2 3 4 5 6 7 8 9", "answer"});
    const auto connection = resumedConnection();
    for (const QString &form :
        {QStringLiteral("s"), QStringLiteral("ttttttt"), QStringLiteral("ttttttttt"), QString()}) {
        const qsizetype line = m_log.messages().size();
        send(*connection);
        waitForLogLines(line + 1);
        EXPECT_EQ(m_log.messages().value(line),
            QStringLiteral("No answer from com.quillbay.test.Service to count: "
                           "an answer of another form: ")
                + form);
    }
    EXPECT_THAT(service.requests(), SizeIs(4));
    EXPECT_EQ(m_replies.count(), 0U);
}

TEST_F(RemoteObjectConnectionTest, AThousandRequestsLeaveNoDescriptorBehind)
{
    const ServiceStandIn service(standInName, {"answer 1 2 3 4 5 6 7 8"});
    const auto connection = resumedConnection();
    send(*connection);
    m_replies.waitFor(1);
    const auto hasReturnedTo = [](qsizetype descriptors) {
        return [descriptors] { return openDescriptors() <= descriptors; };
    };
    const qsizetype before = openDescriptors();
    for (size_t i = 0; i < 1000; ++i) {
        send(*connection);
        if (i % 50 == 49)
            m_replies.waitFor(i + 2);
    }
    m_replies.waitFor(1001);
    EXPECT_TRUE(waitUntil(hasReturnedTo(before))) << before << " before, " << openDescriptors() << " after";
}

TEST_F(RemoteObjectConnectionTest, AHundredConnectionsLeaveNoDescriptorBehind)
{
    const ServiceStandIn service(standInName, {"hold"});
    const auto connection = resumedConnection();
    send(*connection);
    service.waitForRequests(1);
    const qsizetype descriptors = openDescriptors();
    for (size_t i = 0; i < 100; ++i) {
        const size_t before = service.requests().size();
        const auto another = resumedConnection();
        send(*another);
        if (i % 2 == 0)
            service.waitForRequests(before + 1);
    }
    EXPECT_TRUE(waitUntil([descriptors] { return openDescriptors() <= descriptors; }))
        << descriptors << " before, " << openDescriptors() << " after";
}
