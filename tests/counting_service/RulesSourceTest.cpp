// SPDX-License-Identifier: MIT
#include "counting_service/broker/RulesSource.h"

#include "platform/printing/PrintSettings.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/QuillbayTest.h"

#include <algorithm>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace {

/// A printer that answers when the test lets it.
class SlowPrinter : public PrinterSource {
public:
    Result<Printer, PrinterFailure> ask() override
    {
        std::unique_lock lock(m_mutex);
        m_isAsked = true;
        m_change.wait(lock, [this] { return m_mayAnswer; });
        return PrinterFailure::NoPrinter;
    }

    bool isAsked()
    {
        const std::lock_guard lock(m_mutex);
        return m_isAsked;
    }

    void answer()
    {
        const std::lock_guard lock(m_mutex);
        m_mayAnswer = true;
        m_change.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_change;
    bool m_isAsked = false;
    bool m_mayAnswer = false;
};

class RulesSourceTest : public QuillbayTest {
protected:
    void SetUp() override { QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch(); }
    ~RulesSourceTest() override { m_printer->answer(); }

    std::shared_ptr<SlowPrinter> m_printer = std::make_shared<SlowPrinter>();
    PrintSettings m_settings{m_printer, std::chrono::steady_clock::now, std::chrono::minutes(1)};
};

} // namespace

TEST_F(RulesSourceTest, TakesTheCurrentPreferences)
{
    QBYUserDefaultsController::setMinNumberOfSentencesForParagraphCount(3);
    QBYUserDefaultsController::setShouldEnforceTrailingPeriodForSentencesCount(true);
    QBYUserDefaultsController::setCurrentPaperNamePreference(QStringLiteral("A4"));
    QBYUserDefaultsController::setLeftMarginForPaperSizeLineMeasuring(2);
    RulesSource source;
    std::optional<RulesSource::Snapshot> taken;
    source.requestSnapshot([&](const RulesSource::Snapshot &snapshot) { taken = snapshot; });
    ASSERT_TRUE(waitUntil([&] { return taken.has_value(); }));
    EXPECT_EQ(taken->rules.localeName, "en_US");
    EXPECT_EQ(taken->rules.minimumSentencesOfParagraph, 3);
    EXPECT_TRUE(taken->rules.sentencesNeedTerminalPunctuation);
    EXPECT_NEAR(taken->rules.page.paperSize.width(), 595, 1);
    EXPECT_EQ(taken->rules.page.leftMargin * taken->rules.page.scale, 144);
    EXPECT_EQ(taken->fontGeneration, 1U);
}

TEST_F(RulesSourceTest, AnswersInTheOrderOfTheRequests)
{
    RulesSource source;
    std::vector<int> order;
    for (int i = 0; i < 20; ++i)
        source.requestSnapshot([&order, i](const RulesSource::Snapshot &) { order.push_back(i); });
    ASSERT_TRUE(waitUntil([&] { return order.size() == 20; }));
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST_F(RulesSourceTest, DoesNotBlockWhileThePrinterIsSlow)
{
    const ScopedPrintSettings scope(m_settings);
    RulesSource source;
    bool isTaken = false;
    source.requestSnapshot([&](const RulesSource::Snapshot &) { isTaken = true; });
    EXPECT_TRUE(waitUntil([&] { return m_printer->isAsked(); })); // handles events meanwhile
    EXPECT_FALSE(isTaken);
    m_printer->answer();
    EXPECT_TRUE(waitUntil([&] { return isTaken; }));
}

TEST_F(RulesSourceTest, NeverAnswersWithASnapshotThatWasBegunBeforeTheRequest)
{
    const ScopedPrintSettings scope(m_settings);
    RulesSource source;
    qint64 first = -1;
    qint64 second = -1;
    QBYUserDefaultsController::setLeftMarginForPaperSizeLineMeasuring(1);
    source.requestSnapshot(
        [&](const RulesSource::Snapshot &snapshot) { first = snapshot.rules.minimumSentencesOfParagraph; });
    ASSERT_TRUE(waitUntil([&] { return m_printer->isAsked(); }));
    QBYUserDefaultsController::setMinNumberOfSentencesForParagraphCount(9);
    source.requestSnapshot(
        [&](const RulesSource::Snapshot &snapshot) { second = snapshot.rules.minimumSentencesOfParagraph; });
    m_printer->answer();
    ASSERT_TRUE(waitUntil([&] { return second >= 0; }));
    EXPECT_NE(first, 9);
    EXPECT_EQ(second, 9);
}
