// SPDX-License-Identifier: MIT
// The places of the watch panel's controls in a view of a given size.
#include "tests/watching/windows/WatchPanelTest.h"

#include <cmath>

class PanelLayoutTest : public WatchPanelTest {
protected:
    PanelLayoutTest()
    {
        view(); // loads
        m_panel->stopButton()->setFrameSize({80, 30});
        m_panel->closeButton()->setFrameSize({24, 22});
        m_panel->titleForFileBeingWatchedLabel()->setFrameSize({160, 16});
        m_panel->horizontalLine()->setFrameSize({7, 2});
        m_panel->activityIndicator()->setFrame({6, 50, 16, 16});
        // Without a window the fitting changes nothing but the labels and the height of the statistics.
        setLabelWidths({80, 80, 80, 80, 80, 80, 80, 80});
    }
};

TEST_F(PanelLayoutTest, PlacesEveryControlToThePoint)
{
    view().setFrame({0, 0, 300, 400});
    EXPECT_EQ(m_panel->stopButton()->frame(), QRectF(110, 0, 80, 30));
    EXPECT_EQ(m_panel->closeButton()->frame(), QRectF(278, 381, 24, 22));
    // The close button's centre is at 392.
    EXPECT_EQ(m_panel->titleForFileBeingWatchedLabel()->frame(), QRectF(70, 383, 160, 16));
    EXPECT_EQ(m_panel->horizontalLine()->frame(), QRectF(0, 383 - 2 * 2 + 1, 300, 2));
    EXPECT_EQ(m_panel->activityIndicator()->frame(), QRectF(6, 382, 16, 16));
    EXPECT_EQ(statistics().frame().topLeft(), QPointF(0, 29)) << "overlaps the stop button by one point";
    EXPECT_EQ(statistics().frame().width(), 300);
}

TEST_F(PanelLayoutTest, TheStatisticsKeepTheirHeight)
{
    view().setFrame({0, 0, 300, 400});
    const double height = statistics().frame().height();
    EXPECT_GT(height, 0);
    view().setFrame({0, 0, 310, 700});
    EXPECT_EQ(statistics().frame().height(), height);
}

TEST_F(PanelLayoutTest, EverySubviewLiesOnWholePoints)
{
    const auto other = std::make_shared<View>(QRectF(10.6, -0.4, 5.5, 5.5));
    view().addSubview(other);
    view().setFrame({0, 0, 301.7, 333.3});
    for (const std::shared_ptr<View> &subview : view().subviews()) {
        const QPointF origin = subview->frame().topLeft();
        EXPECT_EQ(origin, QPointF(std::floor(origin.x()), std::floor(origin.y())))
            << subview->identifier().toStdString();
    }
    EXPECT_EQ(other->frame().topLeft(), QPointF(10, -1));
    EXPECT_EQ(m_panel->stopButton()->frame().topLeft(), QPointF(110, 0)) << "110.85";
    EXPECT_EQ(m_panel->closeButton()->frame().topLeft(), QPointF(279, 314)) << "279.7, 314.3";
}

TEST_F(PanelLayoutTest, TheTitleUsesTheUnroundedPlaceOfTheCloseButton)
{
    view().setFrame({0, 0, 300, 333.9});
    // The close button is at 314.9 with its centre at 325.9, the title's centre at 324.9.
    EXPECT_EQ(m_panel->closeButton()->frame().y(), 314);
    EXPECT_EQ(m_panel->titleForFileBeingWatchedLabel()->frame().y(), 316);
    EXPECT_EQ(m_panel->activityIndicator()->frame().y(), 315);
}

TEST_F(PanelLayoutTest, MissingControlsCountAsZero)
{
    for (const std::shared_ptr<View> &control : std::vector<std::shared_ptr<View>>{m_panel->stopButton(),
             m_panel->closeButton(), m_panel->titleForFileBeingWatchedLabel(), m_panel->horizontalLine()})
        control->removeFromSuperview();
    EXPECT_FALSE(m_panel->stopButton());
    view().setFrame({0, 0, 300, 400});
    EXPECT_EQ(statistics().frame().topLeft(), QPointF(0, -1));
    EXPECT_EQ(m_panel->activityIndicator()->frame(), QRectF(6, -10, 16, 16));
    m_panel->setTitle(QStringLiteral("novel.txt"));
    m_panel->setShowsCloseButton(false);
    m_panel->setShowsCloseButton(true);
}

TEST_F(PanelLayoutTest, AHiddenCloseButtonKeepsItsPlace)
{
    m_panel->setShowsCloseButton(false);
    view().setFrame({0, 0, 300, 400});
    EXPECT_TRUE(m_panel->closeButton()->isHidden());
    EXPECT_EQ(m_panel->titleForFileBeingWatchedLabel()->frame(), QRectF(70, 383, 160, 16));
}

TEST_F(PanelLayoutTest, TheInterfaceFileOfTheProgramHasEveryControlAndStacksTheLabels)
{
    makePanel(false);
    EXPECT_FALSE(m_panel->isViewLoaded());
    EXPECT_FALSE(m_panel->stopButton());
    EXPECT_TRUE(m_panel->view());
    EXPECT_TRUE(m_panel->stopButton() && m_panel->closeButton() && m_panel->horizontalLine()
        && m_panel->activityIndicator() && m_panel->titleForFileBeingWatchedLabel());
    EXPECT_EQ(statistics().superview(), m_panel->view().get());
    EXPECT_EQ(
        m_panel->wordCounterViewController()->labelPositionPolicy(), WordCounterLabelPositionPolicyStacked);
    EXPECT_EQ(m_panel->wordCounterViewController()->layoutDelegate(), m_panel.get());
    for (size_t i = 1; i < 8; ++i)
        EXPECT_EQ(labels()[i]->frame().y(), labels()[i - 1]->frame().y() - 28) << i;
}
