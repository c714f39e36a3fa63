// SPDX-License-Identifier: MIT
// Requests whose clients leave the bus before the answer.
#include "tests/counting_service/CountingServiceTest.h"

#include <csignal>
#include <random>
#include <sys/resource.h>

namespace {

class DroppedRequestTest : public CountingServiceTest {
protected:
    [[nodiscard]] QDBusMessage words(int number) const
    {
        return message(flatRtfd(QStringLiteral("word ").repeated(number)));
    }

    /// Takes a worker the better part of a second; one that is stopped times out after minutes.
    [[nodiscard]] QDBusMessage largeText() const
    {
        // No dictionary knows its words, and no paragraph or syllable comes twice.
        std::minstd_rand random;
        QString text;
        for (int i = 0; i < 1'000'000; ++i)
            text += QChar(static_cast<char16_t>(0x0E01 + random() % 0x2E)); // Thai letters
        return message(flatRtfd(text));
    }

    [[nodiscard]] std::vector<pid_t> workers() const
    {
        std::vector<pid_t> running;
        for (const SeenProcess &child : childrenOf(service())) {
            if (!child.isZombie)
                running.push_back(child.identifier);
        }
        return running;
    }

    void sendToWorkers(int signal) const
    {
        for (const pid_t worker : workers())
            ::kill(worker, signal);
    }

    /// Waits until a worker has the large text; its limit of processor time shows that.
    [[nodiscard]] pid_t waitForWorkerOfLargeText() const
    {
        constexpr rlim_t limitOfSmallTexts = 100; // seconds
        pid_t found = 0;
        EXPECT_TRUE(waitUntil([&] {
            for (const pid_t worker : workers()) {
                rlimit limit = {};
                if (::prlimit(worker, RLIMIT_CPU, nullptr, &limit) == 0 && limit.rlim_cur > limitOfSmallTexts
                    && limit.rlim_cur != RLIM_INFINITY)
                    found = worker;
            }
            return found != 0;
        }));
        return found;
    }

    /// A client of its own, which has sent the request.
    [[nodiscard]] QDBusConnection sendAsNewClient(const QDBusMessage &request)
    {
        QDBusConnection client =
            QDBusConnection::connectToBus(SessionBus::start(), QStringLiteral("leaving-%1").arg(++m_clients));
        client.asyncCall(request, 300'000);
        return client;
    }

    /// Waits until the service has read what the client has sent.
    static void flush(const QDBusConnection &client, const QDBusMessage &request)
    {
        const QDBusMessage ping = QDBusMessage::createMethodCall(request.service(), request.path(),
            QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
        EXPECT_EQ(client.call(ping).type(), QDBusMessage::ReplyMessage);
    }

    /// The client must be the last copy: that closes the connection.
    static void leave(QDBusConnection &client)
    {
        const QString name = client.name();
        client = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name);
    }

private:
    int m_clients = 0;
};

} // namespace

TEST_F(DroppedRequestTest, TheWorkerThatCountsForAClientThatHasLeftIsKilled)
{
    EXPECT_EQ(count(words(1)).numberOfWords, 1U);
    QDBusConnection client = sendAsNewClient(largeText());
    const pid_t worker = waitForWorkerOfLargeText();
    ASSERT_NE(worker, 0);
    leave(client);
    EXPECT_TRUE(waitUntil([worker] { return !isRunning(worker); }));
    EXPECT_EQ(count(words(3)).numberOfWords, 3U);
}

TEST_F(DroppedRequestTest, ClientsThatHaveLeftKeepTheServiceFromNothing)
{
    installService(QStringLiteral("--idle-time=1000"));
    EXPECT_EQ(count(words(1)).numberOfWords, 1U);
    const pid_t process = service();
    sendToWorkers(SIGSTOP);
    std::vector<QDBusConnection> clients;
    for (int i = 0; i < 10; ++i) {
        const QDBusMessage request = largeText();
        clients.push_back(sendAsNewClient(request));
        flush(clients.back(), request);
    }
    for (QDBusConnection &client : clients)
        leave(client);
    EXPECT_TRUE(waitUntil([&] { return service() != process && !isRunning(process); })); // it is idle
}

TEST_F(DroppedRequestTest, AClientThatLeavesTakesOnlyItsOwnRequestsAlong)
{
    EXPECT_EQ(count(words(1)).numberOfWords, 1U);
    sendToWorkers(SIGSTOP);
    const QDBusPendingCall first = send(words(4));
    const QDBusMessage request = words(2);
    QDBusConnection client = sendAsNewClient(request);
    flush(client, request);
    const QDBusPendingCall last = send(words(5));
    leave(client);
    sendToWorkers(SIGCONT);
    EXPECT_EQ(statsOf(first).value_or(QBYWordCounterStats()).numberOfWords, 4U);
    EXPECT_EQ(statsOf(last).value_or(QBYWordCounterStats()).numberOfWords, 5U);
}
