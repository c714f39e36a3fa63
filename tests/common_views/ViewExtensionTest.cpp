// SPDX-License-Identifier: MIT
#include "common_views/ViewExtension.h"
#include "common_views/WindowExtension.h"
#include "platform/views/View.h"
#include "platform/views/WindowController.h"

#include <gmock/gmock.h>

using namespace QBYExtension;
using ::testing::ElementsAre;

TEST(ViewExtension, TheCenterIsTheMidpointOfTheFrame)
{
    const View view({10, 20, 30, 41});
    EXPECT_EQ(center(view), QPointF(25, 40.5));
}

TEST(ViewExtension, SettingTheCenterMovesTheFrameAndKeepsItsSize)
{
    View view({10, 20, 30, 41});
    setCenter(view, {100, 0});
    EXPECT_EQ(view.frame(), QRectF(85, -20.5, 30, 41));
    EXPECT_EQ(center(view), QPointF(100, 0));
}

TEST(ViewExtension, AViewBroughtToTheFrontLiesAboveAllOthers)
{
    View parent;
    const auto one = std::make_shared<View>();
    const auto two = std::make_shared<View>();
    const auto stranger = std::make_shared<View>();
    parent.addSubview(one);
    parent.addSubview(two);
    bringSubviewToFront(parent, one);
    EXPECT_THAT(parent.subviews(), ElementsAre(two, one));
    bringSubviewToFront(parent, stranger);
    EXPECT_THAT(parent.subviews(), ElementsAre(two, one, stranger));
}

/// A view deep in the window of a controller.
class ScreenUnits : public ::testing::Test {
protected:
    ScreenUnits()
    {
        const auto content = std::make_shared<View>();
        content->addSubview(m_view);
        m_window->setContentView(content);
    }

    const std::shared_ptr<Window> m_window = std::make_shared<Window>();
    const std::shared_ptr<View> m_view = std::make_shared<View>();
    const WindowController m_controller{m_window};
};

TEST_F(ScreenUnits, AnInchIs72PointsWithAScaleFactorOfOne)
{
    EXPECT_EQ(inchToScreenNumber(*m_view, 1.5), 108);
    EXPECT_EQ(inchToScreenNumber(m_controller, 1.5), 108);
}

TEST_F(ScreenUnits, AnInchIs36PointsWithAScaleFactorOfTwo)
{
    m_window->setBackingScaleFactor(2);
    EXPECT_EQ(inchToScreenNumber(*m_view, 1.5), 54);
    EXPECT_EQ(inchToScreenNumber(m_controller, 1.5), 54);
}

TEST_F(ScreenUnits, ThePointsOfAnInchAre72WhateverTheScaleFactor)
{
    EXPECT_EQ(screenPointValueToInch(144), 2);
    m_window->setBackingScaleFactor(2);
    EXPECT_EQ(screenPointValueToInch(144), 2);
}

TEST_F(ScreenUnits, ConvertingBackHalvesALengthWithAScaleFactorOfTwo)
{
    EXPECT_EQ(screenPointValueToInch(inchToScreenNumber(*m_view, 3)), 3);
    m_window->setBackingScaleFactor(2);
    EXPECT_EQ(screenPointValueToInch(inchToScreenNumber(*m_view, 3)), 1.5);
}

TEST(ScreenUnitsWithoutAWindow, AnInchIs72Points)
{
    EXPECT_EQ(inchToScreenNumber(View(), 1), 72);
    EXPECT_EQ(inchToScreenNumber(WindowController(), 1), 72);
}
