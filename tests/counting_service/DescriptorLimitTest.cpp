// SPDX-License-Identifier: MIT
// More requests at a time than the service has descriptors for.
#include "counting_service/broker/BusLimits.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/harness/PrivateBus.h"

#include <csignal>
#include <memory>

namespace {

class DescriptorLimitTest : public CountingServiceTest, public ::testing::WithParamInterface<int> {
protected:
    DescriptorLimitTest()
    {
        installServiceWithDescriptors(GetParam());
        m_privateBus = std::make_unique<PrivateBus>();
    }
    ~DescriptorLimitTest() override
    {
        for (const QDBusConnection &client : m_clients)
            QDBusConnection::disconnectFromBus(client.name());
    }

    /// Requests for the counts of the same five words, fifty from each client.
    std::vector<QDBusPendingCall> sendRequests(int clients)
    {
        constexpr int callTimeout = 60'000; // milliseconds
        const QDBusMessage request = message(flatRtfd(QStringLiteral("One two three four five.")));
        std::vector<QDBusPendingCall> calls;
        for (int i = 0; i < clients; ++i) {
            m_clients.push_back(QDBusConnection::connectToBus(QString::fromUtf8(m_privateBus->address()),
                QStringLiteral("crowd-%1").arg(m_clients.size())));
            for (int k = 0; k < 50; ++k)
                calls.push_back(m_clients.back().asyncCall(request, callTimeout));
        }
        return calls;
    }

    static size_t countedOf(const std::vector<QDBusPendingCall> &calls)
    {
        return static_cast<size_t>(std::ranges::count_if(calls, [](const QDBusPendingCall &call) {
            return statsOf(call).value_or(QBYWordCounterStats()).numberOfWords == 5;
        }));
    }

    std::unique_ptr<PrivateBus> m_privateBus; // with the limits of a user's session
    std::vector<QDBusConnection> m_clients;
};
INSTANTIATE_TEST_SUITE_P(With, DescriptorLimitTest, ::testing::Values(64, 1024),
    [](const auto &limit) { return std::to_string(limit.param) + "Descriptors"; });

} // namespace

TEST_P(DescriptorLimitTest, CountsAThousandRequestsThatStartTheServiceAndExitsWithItsBus)
{
    const std::vector<QDBusPendingCall> calls = sendRequests(20);
    EXPECT_EQ(countedOf(calls), 1000U);
    const pid_t process = serviceOn(m_clients.front());
    ASSERT_NE(process, 0);
    m_privateBus->stop();
    EXPECT_TRUE(waitUntil([process] { return !isRunning(process); }));
}

TEST_P(DescriptorLimitTest, ARequestWithoutADocumentKeepsNoDescriptors)
{
    const QDBusMessage absent = message(rtfdRequest, STDERR_FILENO, 0, true);
    const QDBusMessage wrong = message(QStringLiteral("count"), STDERR_FILENO, 0);
    sendRequests(1);
    for (int i = 0; i < 200; ++i) {
        (void)m_clients.front().asyncCall(wrong);
        (void)m_clients.front().asyncCall(absent);
    }
    EXPECT_EQ(countedOf(sendRequests(2)), 100U);
}

TEST_P(DescriptorLimitTest, ATerminatedServiceAnswersTheRequestsThatWaitInTheBus)
{
    sendRequests(1).front().waitForFinished();
    const pid_t process = serviceOn(m_clients.front());
    const std::vector<QDBusPendingCall> calls = sendRequests(10);
    ASSERT_EQ(serviceOn(m_clients.back()), process); // answered after the requests were passed on
    ::kill(process, SIGTERM);
    EXPECT_EQ(countedOf(calls), 500U);
    EXPECT_TRUE(waitUntil([process] { return !isRunning(process); }));
}

TEST(DescriptorLimit, RequestsLeaveDescriptorsForEverythingElse)
{
    EXPECT_EQ(maxRequestsFor(1024), 256U);
    EXPECT_EQ(maxRequestsFor(64), 8U);
    EXPECT_EQ(maxRequestsFor(10), 1U);
    EXPECT_EQ(maxRequestsFor(0), 1U);
    EXPECT_LT(maxRequestsFor(RLIM_INFINITY), 1'000'000U);
    for (rlim_t limit = 64; limit < 5000; ++limit) {
        EXPECT_LE(3 * maxRequestsFor(limit) + 40, limit);
        EXPECT_LE(maxRequestsFor(limit), maxRequestsFor(limit + 1));
    }
}
