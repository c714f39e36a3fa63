// SPDX-License-Identifier: MIT
// The panel follows changes of the preferences by any process.
#include "tests/harness/QuillbayTest.h"
#include "tests/presentation/StatsPanel.h"

namespace {

class PreferenceChange : public QuillbayTest {
protected:
    void SetUp() override
    {
        SessionBus::start();
        m_otherProcess.emplace(testProgram(QStringLiteral("preference_user")));
        m_otherProcess->start({});
        ASSERT_EQ(m_otherProcess->readLine(), "ready");
    }

    void inOtherProcess(const QByteArray &request)
    {
        m_otherProcess->writeLine(request);
        ASSERT_EQ(m_otherProcess->readLine(), "done");
    }

    using Calls = std::vector<std::string>;

private:
    std::optional<ChildProcess> m_otherProcess; // created in SetUp(), with the environment of the test
};

} // namespace

TEST_F(PreferenceChange, AnotherProcessThatHidesAStatisticHasTheLabelsPlacedTwice)
{
    preferOnly(everyStatistic);
    StatsPanel panel;
    panel.controller.viewDidLoad();
    panel.delegate.calls.clear();
    inOtherProcess("hide lines");
    EXPECT_TRUE(waitUntil([&panel] { return panel.delegate.calls.size() >= 3; }));
    EXPECT_EQ(panel.delegate.calls, (Calls{"relayout", "count", "relayout"}));
    EXPECT_EQ(panel.visibleTags(), (std::vector<qint64>{1, 2, 3, 4, 6, 7, 8}));
    EXPECT_TRUE(panel.label(5)->isHidden());
}

TEST_F(PreferenceChange, AChangeThatHidesOneAndShowsAnotherIsNotifiedAsTwoPlacementsOnly)
{
    preferOnly({Preference::ShowSentencesCount});
    StatsPanel panel;
    panel.controller.viewDidLoad();
    panel.delegate.calls.clear();
    preferOnly({Preference::ShowParagraphCount});
    QBYUserDefaultsController::postPreferencesChangedNotification();
    EXPECT_TRUE(waitUntil([&panel] { return panel.delegate.calls.size() >= 2; }));
    EXPECT_EQ(panel.delegate.calls, (Calls{"relayout", "relayout"}));
    EXPECT_EQ(panel.visibleTags(), (std::vector<qint64>{1, 7}));
}

TEST_F(PreferenceChange, ADestroyedPanelIsNotNotified)
{
    preferOnly(everyStatistic);
    StatsPanel witness;
    witness.controller.viewDidLoad();
    auto panel = std::make_unique<StatsPanel>();
    panel->controller.viewDidLoad();
    const std::shared_ptr<Label> lines = panel->label(5);
    panel.reset();
    inOtherProcess("hide lines");
    EXPECT_TRUE(waitUntil([&witness] { return witness.label(5)->isHidden(); }));
    EXPECT_FALSE(lines->isHidden());
}
