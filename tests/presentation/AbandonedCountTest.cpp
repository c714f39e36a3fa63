// SPDX-License-Identifier: MIT
// Counts that are never answered, that are stopped, and whose panel is released.
#include "presentation/WordCounterViewController.h"

#include "tests/presentation/AsyncCount.h"

#include <future>
#include <thread>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

const std::thread::id mainThread = std::this_thread::get_id();

// Reports when it is destroyed, and on which thread.
class WatchedPanel : public WordCounterViewController {
public:
    explicit WatchedPanel(std::function<void()> atItsEnd)
        : m_atItsEnd(std::move(atItsEnd))
    {
    }
    ~WatchedPanel() override
    {
        EXPECT_EQ(std::this_thread::get_id(), mainThread);
        m_atItsEnd();
    }

private:
    std::function<void()> m_atItsEnd;
};

} // namespace

class AbandonedCountTest : public AsyncCountTest { };

TEST_F(AbandonedCountTest, AServiceThatNeverAnswersKeepsThePanelBusyUntilItIsStopped)
{
    const auto service = standIn({"hold", "answer 1 2 3 4 5 6 7 8"});
    const CountingPanel panel;
    count(panel);
    service->waitForRequests(1);
    count(panel);
    countDocument(panel, QUrl());
    EXPECT_TRUE(panel.controller->isAsyncCountOperationInProgress());
    panel.controller->stopAsyncOperation();
    EXPECT_FALSE(panel.controller->isAsyncCountOperationInProgress());
    count(panel);
    EXPECT_TRUE(panel.controller->isAsyncCountOperationInProgress());
    waitForCompletions(1);
    EXPECT_THAT(service->requests(), SizeIs(2));
    EXPECT_EQ(panel.texts(), oneToEight);
}

TEST_F(AbandonedCountTest, AfterAStopNoCompletionFollowsAndTheNextCountHasANewConnection)
{
    const auto service = standIn({"hold", "answer 8 7 6 5 4 3 2 1"});
    const CountingPanel panel;
    bool isCalled = false;
    panel.controller->asyncUpdateStatsWithAttributedString(text, [&isCalled] { isCalled = true; });
    service->waitForRequests(1);
    panel.controller->stopAsyncOperation();
    EXPECT_FALSE(panel.controller->isAsyncCountOperationInProgress());
    service->release(); // its answer arrives before the next one
    count(panel);
    waitForCompletions(1);
    EXPECT_FALSE(isCalled);
    EXPECT_EQ(panel.texts(), textsFor({8, 7, 6, 5, 4, 3, 2, 1}));
    const auto requests = service->requests();
    ASSERT_THAT(requests, SizeIs(2));
    EXPECT_NE(requests[0].client, requests[1].client);
    EXPECT_TRUE(waitUntil([&] { return !service->isOnTheBus(requests[0].client); }));
}

TEST_F(AbandonedCountTest, ACountThatIsStoppedBeforeItIsSentIsNotSentWithoutAConnection)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    CountingPanel panel;
    count(panel);
    panel.controller->stopAsyncOperation();
    EXPECT_TRUE(waitUntil([&panel] { return panel.controller.use_count() == 1; })); // nothing is pending
    EXPECT_FALSE(panel.controller->isAsyncCountOperationInProgress());
    const CountingPanel next;
    count(next); // would arrive after the stopped one
    waitForCompletions(1);
    EXPECT_THAT(service->requests(), SizeIs(1));
    EXPECT_EQ(panel.texts(), untouched);
}

TEST_F(AbandonedCountTest, ACountThatIsStoppedBeforeItIsSentGoesOverTheConnectionOfTheNextOne)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8", "answer 8 7 6 5 4 3 2 1"});
    const CountingPanel panel;
    count(panel);
    panel.controller->stopAsyncOperation();
    count(panel); // opens the next connection before the first count could be sent
    waitForCompletions(2);
    const auto requests = service->requests();
    ASSERT_THAT(requests, SizeIs(2));
    EXPECT_EQ(requests[0].client, requests[1].client);
    EXPECT_EQ(panel.texts(), textsFor({8, 7, 6, 5, 4, 3, 2, 1})); // of the last answer
    EXPECT_FALSE(panel.controller->isAsyncCountOperationInProgress());
}

TEST_F(AbandonedCountTest, AnAnswerThatIsOnItsWayToTheMainThreadIsDroppedByAStop)
{
    const auto service = standIn({"hold", "answer 8 7 6 5 4 3 2 1"});
    CountingPanel panel;
    count(panel);
    service->waitForRequests(1);
    RemoteObjectConnection probe(WordCounterServiceProtocol::serviceName());
    probe.setRemoteObjectInterface(WordCounterServiceProtocol::interface());
    probe.resume();
    std::promise<void> answered;
    service->release();
    WordCounterServiceProtocol(probe.remoteObjectProxy())
        .countWordsForDocX(nullptr, [&answered](const QBYWordCounterStats &) { answered.set_value(); });
    answered.get_future().wait(); // without the event loop: the answer to the panel has arrived by now
    panel.controller->stopAsyncOperation();
    EXPECT_TRUE(waitUntil([&panel] { return panel.controller.use_count() == 1; }));
    EXPECT_EQ(completions(), 0U);
    EXPECT_EQ(panel.texts(), untouched);
}

TEST_F(AbandonedCountTest, AStopWithoutACountDoesNothing)
{
    const CountingPanel panel;
    panel.controller->stopAsyncOperation();
    panel.controller->stopAsyncOperation();
    EXPECT_FALSE(panel.controller->isAsyncCountOperationInProgress());
}

TEST_F(AbandonedCountTest, ACompletionMayStopAndReleaseItsPanel)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    bool hasEnded = false;
    auto panel = std::make_shared<WatchedPanel>([&hasEnded] { hasEnded = true; });
    panel->asyncUpdateStatsWithAttributedString(text, [&panel] {
        panel->stopAsyncOperation();
        panel.reset();
    });
    EXPECT_TRUE(waitUntil([&hasEnded] { return hasEnded; }));
}

TEST_F(AbandonedCountTest, AnAnswerToAPanelThatWasReleasedRunsTheCompletionAndNothingElse)
{
    const auto service = standIn({"hold"});
    bool hasEnded = false;
    auto panel = std::make_shared<WatchedPanel>([&hasEnded] { hasEnded = true; });
    const std::shared_ptr<WordCounterModel> model = panel->wordCounter();
    panel->asyncUpdateStatsWithAttributedString(text, completion());
    service->waitForRequests(1);
    panel.reset();
    EXPECT_TRUE(waitUntil([&hasEnded] { return hasEnded; }));
    const QString client = service->requests().front().client;
    EXPECT_TRUE(service->isOnTheBus(client));
    EXPECT_EQ(completions(), 0U);
    service->release();
    waitForCompletions(1);
    EXPECT_EQ(model->statsRepresentation(), QBYWordCounterStats());
    EXPECT_TRUE(waitUntil([&] { return !service->isOnTheBus(client); })); // after the last answer
}

TEST_F(AbandonedCountTest, APanelThatIsReleasedBeforeItsCountIsSentLivesUntilThenAndTheCompletionRuns)
{
    const auto service = standIn({"hold"});
    bool hasEnded = false;
    auto panel = std::make_shared<WatchedPanel>([&hasEnded] { hasEnded = true; });
    panel->asyncUpdateStatsWithAttributedString(text, completion());
    panel.reset();
    EXPECT_FALSE(hasEnded);
    EXPECT_TRUE(waitUntil([&hasEnded] { return hasEnded; }));
    service->waitForRequests(1);
    service->release();
    waitForCompletions(1);
}

TEST_F(AbandonedCountTest, APanelThatIsReleasedWithoutACountLeavesTheBus)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    auto panel = std::make_unique<CountingPanel>();
    count(*panel);
    waitForCompletions(1);
    const QString client = service->requests().front().client;
    EXPECT_TRUE(service->isOnTheBus(client));
    panel.reset();
    EXPECT_TRUE(waitUntil([&] { return !service->isOnTheBus(client); }));
}

TEST_F(AbandonedCountTest, ThePanelAndItsCompletionAreDestroyedOnTheMainThread)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    int panels = 0;
    int held = 0;
    constexpr int rounds = 100;
    for (int i = 0; i < rounds; ++i) {
        auto panel = std::make_shared<WatchedPanel>([&panels] { ++panels; });
        const std::shared_ptr<void> holder(nullptr, [&held](void *) {
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
            ++held;
        });
        // The completion holds the panel too, so that releasing it may destroy the panel.
        panel->asyncUpdateStatsWithAttributedString(text, [panel, holder] {});
        if (i % 3 == 1) {
            EXPECT_TRUE(waitUntil([&] { return !panel->isAsyncCountOperationInProgress(); }));
        }
        if (i % 3 == 2)
            panel->stopAsyncOperation();
    }
    EXPECT_TRUE(waitUntil([&] { return panels == rounds && held == rounds; })) << panels << " " << held;
}

TEST_F(AbandonedCountTest, WithoutABusThePanelStaysBusyAndOneLineIsLogged)
{
    CountingPanel panel;
    const long owners = panel.controller.use_count();
    count(panel);
    EXPECT_TRUE(waitUntil([this] { return !m_log.messages().isEmpty(); }));
    EXPECT_TRUE(panel.controller->isAsyncCountOperationInProgress());
    EXPECT_THAT(m_log.messages(LogLevel::Error), SizeIs(1));
    EXPECT_EQ(completions(), 0U);
    // The request owns the panel until it is sent; unsent, it would use the next connection.
    EXPECT_TRUE(waitUntil([&] { return panel.controller.use_count() == owners; }));
    panel.controller->stopAsyncOperation();
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    count(panel);
    waitForCompletions(1);
}
