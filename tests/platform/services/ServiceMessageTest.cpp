// SPDX-License-Identifier: MIT
#include "platform/services/ServiceInterface.h"
#include "platform/services/ServiceMessageSender.h"
#include "platform/services/ServicesRegistration.h"
#include "tests/harness/QuillbayTest.h"

#include <QDBusConnection>
#include <QThread>

namespace {

class RecordingProvider : public ServicesProvider {
public:
    void wordCountSelectedTextService(const Pasteboard &pasteboard, const QString &, QString *error) override
    {
        received.emplace_back(QStringLiteral("count"), pasteboard.forms());
        *error = answer;
    }
    void watchTheTextFileService(const Pasteboard &pasteboard, const QString &, QString *error) override
    {
        received.emplace_back(QStringLiteral("watch"), pasteboard.forms());
        *error = answer;
    }

    QString answer;
    std::vector<std::pair<QString, Pasteboard::Forms>> received;
};

class ServiceMessage : public QuillbayTest {
protected:
    ServiceMessage()
    {
        SessionBus::start();
        registration = std::make_unique<ServicesRegistration>(
            provider, [this](const QByteArray &token) { begun.append(token); }, [this] { ++ended; }, [] {});
        EXPECT_TRUE(registration->start());
    }
    ~ServiceMessage() override { registration->giveNameAway(); }

    /// Sends from another thread, because the provider must be able to answer meanwhile.
    std::optional<ServiceMessageFailure> send(
        const QString &message, const Pasteboard &pasteboard, const QVariantMap &options = {})
    {
        std::optional<ServiceMessageFailure> failure;
        const std::unique_ptr<QThread> sender(
            QThread::create([&] { failure = sendServiceMessage(message, pasteboard, options); }));
        sender->start();
        EXPECT_TRUE(waitUntil([&] { return sender->isFinished(); }));
        return failure;
    }

    RecordingProvider provider;
    QByteArrayList begun;
    int ended = 0;
    std::unique_ptr<ServicesRegistration> registration;
};

const QString countMessage = QStringLiteral("wordCountSelectedTextService");
const QString watchMessage = QStringLiteral("watchTheTextFileService");
const Pasteboard pasteboard({{QStringLiteral("text/plain"), "text"}});

} // namespace

TEST_F(ServiceMessage, ReachesTheProviderUnderItsName)
{
    EXPECT_FALSE(send(countMessage, pasteboard));
    EXPECT_FALSE(send(watchMessage, pasteboard));
    ASSERT_EQ(provider.received.size(), 2U);
    EXPECT_EQ(provider.received[0], std::pair(QStringLiteral("count"), pasteboard.forms()));
    EXPECT_EQ(provider.received[1], std::pair(QStringLiteral("watch"), pasteboard.forms()));
}

TEST_F(ServiceMessage, ReturnsTheProvidersErrorWordForWord)
{
    provider.answer = QStringLiteral("That cannot be – \"done\".");
    const std::optional<ServiceMessageFailure> failure = send(countMessage, pasteboard);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->cause, ServiceMessageFailure::Cause::Refused);
    EXPECT_EQ(failure->text, provider.answer);
    EXPECT_EQ(causeText(*failure), provider.answer);
}

TEST_F(ServiceMessage, DeliversTheActivationTokenBeforeTheMessage)
{
    EXPECT_FALSE(send(
        countMessage, pasteboard, {{ServiceInterface::activationTokenOption(), QStringLiteral("token-1")}}));
    EXPECT_FALSE(send(countMessage, pasteboard));
    EXPECT_EQ(begun, QByteArrayList({"token-1", ""}));
    EXPECT_EQ(ended, 2);
}

TEST_F(ServiceMessage, OfTenMegabytesArrivesComplete)
{
    const Pasteboard large({{QStringLiteral("text/plain"), QByteArray(10 << 20, 'x')}});
    EXPECT_FALSE(send(countMessage, large));
    ASSERT_EQ(provider.received.size(), 1U);
    EXPECT_EQ(provider.received[0].second, large.forms());
}

TEST_F(ServiceMessage, FailsAfterTheNameIsReleased)
{
    registration->giveNameAway();
    const std::optional<ServiceMessageFailure> failure = send(countMessage, pasteboard);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->cause, ServiceMessageFailure::Cause::NoProvider);
    EXPECT_TRUE(registration->start());
    EXPECT_FALSE(send(countMessage, pasteboard));
}
