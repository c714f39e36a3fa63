// SPDX-License-Identifier: MIT
// How the watch panel fits its window or its pop-over to the statistics.
#include "tests/watching/windows/WatchPanelTest.h"

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class PanelFittingTest : public WatchPanelTest {
protected:
    // Eight labels 17 points high, 11 apart, with 5.5 below the last.
    static constexpr double statisticsHeight = 8 * 17 + 7 * 11 + 5;

    PanelFittingTest()
    {
        view().setFrame({0, 0, 210, 300});
        m_panel->stopButton()->setFrameSize({80, 30});
        m_panel->closeButton()->setFrameSize({24, 22});
        setLabelWidths({80, 80, 80, 80, 80, 80, 80, 80});
        m_presenter.calls.clear();
    }

    void fit() const { m_panel->wordCounterViewControllerDidRelayoutLabels(); }
};

TEST_F(PanelFittingTest, TheWindowIsAsHighAsButtonsAndStatistics)
{
    putIntoWindow();
    fit();
    EXPECT_EQ(statistics().frame().height(), statisticsHeight);
    EXPECT_EQ(m_window->frame(), QRectF(100, 200, 210, 30 + statisticsHeight + 22));
    EXPECT_EQ(view().frame(), QRectF(0, 0, 210, 30 + statisticsHeight + 22)) << "the view follows";
}

TEST_F(PanelFittingTest, AHiddenStatisticLowersTheWindowAtItsTop)
{
    putIntoWindow();
    fit();
    const QRectF before = m_window->frame();
    preferOnly({Preference::ShowCharacterCount});
    m_panel->wordCounterViewController()->updateArray();
    EXPECT_EQ(m_window->frame().topLeft(), before.topLeft());
    EXPECT_EQ(m_window->frame().height(), before.height() - 6 * 28);
}

TEST_F(PanelFittingTest, ALabelAsWideAsThePanelWidensThePanelByTen)
{
    putIntoWindow();
    setLabelWidths({80, 80, 210, 80, 80, 80, 80, 80});
    fit();
    EXPECT_EQ(m_window->frame().width(), 220);
}

TEST_F(PanelFittingTest, ALabelThatFitsDoesNotChangeTheWidth)
{
    putIntoWindow();
    setLabelWidths({80, 80, 209.9, 80, 80, 80, 80, 80});
    fit();
    EXPECT_EQ(m_window->frame().width(), 210);
}

TEST_F(PanelFittingTest, OfSeveralWideLabelsTheLastOneDecidesAtEachFitting)
{
    // In a pop-over, whose panel is fitted once.
    Popover popover(m_desktop);
    m_presenter.popover = &popover;
    std::vector<double> widths;
    QObject::connect(popover.window().get(), &Window::frameDidChange, &popover,
        [&] { widths.push_back(popover.contentSize().width()); });
    setLabelWidths({80, 290, 80, 240, 80, 80, 80, 80});
    fit();
    ASSERT_FALSE(widths.empty());
    EXPECT_EQ(widths.front(), 250);
    EXPECT_EQ(popover.contentSize().width(), 300) << "the new frame causes another fitting";
}

TEST_F(PanelFittingTest, HiddenWideLabelsAndNarrowLabelsNeverChangeTheWidth)
{
    putIntoWindow();
    preferOnly({Preference::ShowCharacterCount});
    m_panel->wordCounterViewController()->updateArray();
    setLabelWidths({80, 80, 500, 500, 80, 80, 80, 80});
    fit();
    EXPECT_EQ(m_window->frame().width(), 210);
    setLabelWidths({400, 80, 80, 80, 80, 80, 80, 80});
    fit();
    EXPECT_EQ(m_window->frame().width(), 410);
    setLabelWidths({10, 10, 10, 10, 10, 10, 10, 10});
    fit();
    EXPECT_EQ(m_window->frame().width(), 410) << "it never shrinks";
}

TEST_F(PanelFittingTest, WithTheRightSizeOnlyTheLabelsAreCentred)
{
    putIntoWindow();
    fit();
    m_presenter.calls.clear();
    int changes = 0;
    QObject::connect(m_window.get(), &Window::frameDidChange, m_window.get(), [&] { ++changes; });
    setLabelWidths({81, 80, 80, 80, 80, 80, 80, 80});
    labels()[1]->setFrameOrigin({3, labels()[1]->frame().y()});
    const double y = labels()[1]->frame().y();
    fit();
    EXPECT_EQ(changes, 0);
    EXPECT_THAT(m_presenter.calls, IsEmpty());
    EXPECT_EQ(labels()[1]->frame().topLeft(), QPointF(105 - 40, y));
    EXPECT_EQ(labels()[0]->frame().x(), 105 - 40.5) << "the middle is whole, the origin need not be";
}

TEST_F(PanelFittingTest, LabelsAreCentredInTheNewWidthRoundedDown)
{
    putIntoWindow();
    setLabelWidths({80, 80, 231, 80, 80, 80, 80, 80});
    fit();
    EXPECT_EQ(view().frame().width(), 241);
    EXPECT_EQ(labels()[0]->frame().center().x(), 120);
    EXPECT_EQ(labels()[2]->frame().center().x(), 120);
}

TEST_F(PanelFittingTest, HiddenLabelsAreCentredToo)
{
    putIntoWindow();
    preferOnly({});
    m_panel->wordCounterViewController()->updateArray();
    labels()[4]->setFrameOrigin({-70, 12});
    fit();
    EXPECT_EQ(labels()[4]->frame().center().x(), 105);
    EXPECT_EQ(labels()[4]->frame().y(), 12);
}

TEST_F(PanelFittingTest, APopoverAndTheViewChangeTogether)
{
    Popover popover(m_desktop);
    m_presenter.popover = &popover;
    fit();
    const QSizeF size(210, 30 + statisticsHeight + 22);
    EXPECT_EQ(popover.contentSize(), size);
    EXPECT_EQ(view().frame().size(), size);
    EXPECT_THAT(m_presenter.calls, Contains("asked for the pop-over"));
}

TEST_F(PanelFittingTest, TheWindowStaysIfAPopoverShowsThePanel)
{
    putIntoWindow();
    const QRectF before = m_window->frame();
    Popover popover(m_desktop);
    m_presenter.popover = &popover;
    fit();
    EXPECT_EQ(m_window->frame(), before);
}

TEST_F(PanelFittingTest, ResizesNothingWithoutPresenterAndWindow)
{
    m_panel->setDelegate(nullptr);
    fit();
    EXPECT_EQ(view().frame().size(), QSizeF(210, 300));
    EXPECT_EQ(statistics().frame().height(), statisticsHeight);
}

TEST_F(PanelFittingTest, ThePanelIsFittedBeforeItAppears)
{
    putIntoWindow();
    m_panel->viewWillAppear();
    EXPECT_EQ(m_window->frame().height(), 30 + statisticsHeight + 22);
}

TEST_F(PanelFittingTest, EveryNewTextOfTheLabelsFitsTheWindow)
{
    putIntoWindow();
    m_panel->wordCounterViewController()->updateInterfaceWithPrepopulatedStats({1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(m_window->frame().height(), 30 + statisticsHeight + 22);
    // The places of the labels, the row and the button.
    EXPECT_EQ(statistics().frame().y(), 29);
    EXPECT_EQ(labels()[7]->frame().y(), 5);
    EXPECT_EQ(m_panel->closeButton()->frame().y(), m_window->frame().height() - 22 + 3);
}
