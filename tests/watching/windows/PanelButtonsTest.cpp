// SPDX-License-Identifier: MIT
// The title of the watch panel, and the messages of its buttons to the presenter.
#include "tests/watching/windows/WatchPanelTest.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PanelButtonsTest : public WatchPanelTest {
protected:
    PanelButtonsTest() { view(); }
};

TEST_F(PanelButtonsTest, TheTitleIsShownAndKept)
{
    m_panel->titleForFileBeingWatchedLabel()->setHidden(true);
    m_panel->setTitle(QStringLiteral("novel.txt"));
    EXPECT_EQ(m_panel->titleForFileBeingWatchedLabel()->stringValue(), QStringLiteral("novel.txt"));
    EXPECT_FALSE(m_panel->titleForFileBeingWatchedLabel()->isHidden());
    EXPECT_EQ(m_panel->title(), QStringLiteral("novel.txt"));
}

TEST_F(PanelButtonsTest, AnAbsentTitleIsAnEmptyVisibleLabel)
{
    m_panel->setTitle(QStringLiteral("novel.txt"));
    m_panel->titleForFileBeingWatchedLabel()->setHidden(true);
    m_panel->setTitle(std::nullopt);
    EXPECT_EQ(m_panel->titleForFileBeingWatchedLabel()->stringValue(), QString());
    EXPECT_FALSE(m_panel->titleForFileBeingWatchedLabel()->isHidden());
    EXPECT_EQ(m_panel->title(), QString());
}

TEST_F(PanelButtonsTest, TheButtonsOnlyNotifyThePresenter)
{
    putIntoWindow();
    m_window->orderFront();
    m_panel->closeButton()->performClick();
    EXPECT_THAT(m_presenter.calls, ElementsAre("close"));
    m_panel->stopButton()->performClick();
    EXPECT_THAT(m_presenter.calls, ElementsAre("close", "stop"));
    EXPECT_TRUE(m_window->isVisible());
}

TEST_F(PanelButtonsTest, WithoutAPresenterTheButtonsDoNothing)
{
    m_panel->setDelegate(nullptr);
    m_panel->closeButton()->performClick();
    m_panel->stopButton()->performClick();
    EXPECT_THAT(m_presenter.calls, IsEmpty());
}

TEST_F(PanelButtonsTest, ThePanelMayBeDestroyedByItsButton)
{
    for (const auto button :
        {&WatchTextFileViewController::closeButton, &WatchTextFileViewController::stopButton}) {
        makePanel(true);
        putIntoWindow();
        const std::weak_ptr<WatchTextFileViewController> panel = m_panel;
        m_presenter.whenCalled = [this] {
            m_panel.reset();
            m_window.reset();
        };
        ((*m_panel).*button)()->performClick();
        EXPECT_TRUE(panel.expired());
        m_presenter.whenCalled = nullptr;
    }
}

TEST_F(PanelButtonsTest, TheCloseButtonIsShownByDefault)
{
    EXPECT_TRUE(m_panel->showsCloseButton());
    EXPECT_FALSE(m_panel->closeButton()->isHidden());
    m_panel->setShowsCloseButton(false);
    EXPECT_FALSE(m_panel->showsCloseButton());
    EXPECT_TRUE(m_panel->closeButton()->isHidden());
    m_panel->setShowsCloseButton(true);
    EXPECT_FALSE(m_panel->closeButton()->isHidden());
}

TEST_F(PanelButtonsTest, ASettingOfTheCloseButtonBeforeTheViewLoadsAppliesThen)
{
    makePanel(false);
    m_panel->setShowsCloseButton(false);
    EXPECT_FALSE(m_panel->isViewLoaded());
    view();
    EXPECT_TRUE(m_panel->closeButton()->isHidden());
}
