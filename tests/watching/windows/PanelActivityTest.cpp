// SPDX-License-Identifier: MIT
// How the activity indicator of the watch panel follows the counting.
#include "tests/watching/windows/WatchPanelTest.h"

#include "tests/platform/session_bus/ServiceStandIn.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PanelActivityTest : public WatchPanelTest {
protected:
    void setCounting(bool counting) const
    {
        m_panel->wordCounterViewController()->setIsAsyncCountOperationInProgress(counting);
    }
    [[nodiscard]] bool spins() const { return m_panel->activityIndicator()->isAnimating(); }
};

TEST_F(PanelActivityTest, FollowsTheCountingByItselfAndNotifiesThePresenter)
{
    view();
    setCounting(true);
    EXPECT_TRUE(spins());
    EXPECT_THAT(m_presenter.calls, ElementsAre("spins"));
    setCounting(false);
    EXPECT_FALSE(spins());
    EXPECT_THAT(m_presenter.calls, ElementsAre("spins", "rests"));
    EXPECT_FALSE(m_panel->spinActivityIndicator()) << "only the state set from outside";
}

TEST_F(PanelActivityTest, SpinsDuringARealCount)
{
    const ServiceStandIn service(WordCounterServiceProtocol::serviceName(), {"hold"});
    view();
    m_panel->wordCounterViewController()->asyncUpdateStatsWithAttributedString(
        AttributedString(QStringLiteral("A text.")), [] {});
    EXPECT_TRUE(spins());
    service.waitForRequests(1);
    EXPECT_TRUE(spins());
    service.release();
    EXPECT_TRUE(waitUntil([this] { return !spins(); }));
    EXPECT_EQ(m_presenter.calls.front(), "spins");
    EXPECT_EQ(m_presenter.calls.back(), "rests");
}

TEST_F(PanelActivityTest, DoesNotFollowUnlessRequested)
{
    makePanel(false);
    EXPECT_FALSE(m_panel->shouldAutosyncActivityIndicator());
    view();
    setCounting(true);
    EXPECT_FALSE(spins());
    setCounting(false);
    EXPECT_THAT(m_presenter.calls, IsEmpty());
}

TEST_F(PanelActivityTest, DoesNotFollowAnotherStatisticsPanel)
{
    view();
    const auto former = m_panel->wordCounterViewController();
    m_panel->setWordCounterViewController(std::make_shared<WordCounterViewController>());
    former->setIsAsyncCountOperationInProgress(true);
    EXPECT_FALSE(spins());
    EXPECT_THAT(m_presenter.calls, IsEmpty());
}

TEST_F(PanelActivityTest, IsDrivenFromOutsideWithoutNotifyingThePresenter)
{
    makePanel(false);
    view();
    m_panel->setSpinActivityIndicator(true);
    EXPECT_TRUE(m_panel->spinActivityIndicator());
    EXPECT_TRUE(spins());
    m_panel->setSpinActivityIndicator(false);
    EXPECT_FALSE(spins());
    EXPECT_THAT(m_presenter.calls, IsEmpty());
}

TEST_F(PanelActivityTest, ThePresentStateFromOutsideStartsAndStopsNothing)
{
    view();
    setCounting(true);
    m_panel->setSpinActivityIndicator(false);
    EXPECT_TRUE(spins()) << "the state set from outside is unchanged";
    setCounting(false);
    m_panel->setSpinActivityIndicator(true);
    m_panel->activityIndicator()->stopAnimation();
    m_panel->setSpinActivityIndicator(true);
    EXPECT_FALSE(spins());
}

TEST_F(PanelActivityTest, StopsFollowingWhenThePanelIsDestroyed)
{
    const std::shared_ptr<View> keptView = m_panel->view();
    const auto statisticsPanel = m_panel->wordCounterViewController();
    m_panel.reset();
    statisticsPanel->setIsAsyncCountOperationInProgress(true);
    keptView->setFrame({0, 0, 600, 600});
    EXPECT_THAT(m_presenter.calls, IsEmpty());
}
