// SPDX-License-Identifier: MIT
#include "platform/views/Window.h"
#include "platform/views/View.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Window, ItsContentViewIsAsLargeAsItsFrame)
{
    Window window({100, 200, 300, 400});
    const auto content = std::make_shared<View>();
    window.setContentView(content);
    EXPECT_EQ(content->frame(), QRectF(0, 0, 300, 400));
    window.setFrame({100, 200, 310, 410}, false, false);
    EXPECT_EQ(content->frame(), QRectF(0, 0, 310, 410));
}

TEST(Window, ANewFrameIsAnnouncedWithItsFlags)
{
    Window window({0, 0, 10, 10});
    std::vector<std::pair<bool, bool>> announced;
    QObject::connect(&window, &Window::frameDidChange, &window,
        [&](bool display, bool animate) { announced.emplace_back(display, animate); });
    window.setFrame({0, 0, 10, 10}, true, true);
    window.setFrame({0, 0, 11, 10}, true, false);
    window.setFrame({0, 0, 12, 10}, false, true);
    EXPECT_EQ(announced, (std::vector<std::pair<bool, bool>>{{true, false}, {false, true}}));
}

TEST(Window, DisplaysItsContentOnRequestEvenIfTheFrameStays)
{
    Window window({0, 0, 10, 10});
    const auto content = std::make_shared<View>();
    window.setContentView(content);
    int marks = 0;
    QObject::connect(content.get(), &View::displayNeeded, &window, [&marks] { ++marks; });
    window.setFrame({0, 0, 20, 10}, false, false);
    EXPECT_EQ(marks, 0);
    window.setFrame({0, 0, 20, 10}, true, false);
    EXPECT_EQ(marks, 1);
}

TEST(Window, AListenerMaySetAnotherFrameAndTheContentFollowsTheLatest)
{
    Window window({0, 0, 10, 10});
    const auto content = std::make_shared<View>();
    window.setContentView(content);
    QObject::connect(&window, &Window::frameDidChange, &window, [&] {
        if (window.frame().width() < 100)
            window.setFrame({0, 0, 100, 10}, false, false);
    });
    QObject::connect(content.get(), &View::frameDidChange, &window, [&] {
        if (content->frame().width() < 120)
            window.setFrame({0, 0, 120, 10}, false, false);
    });
    window.setFrame({0, 0, 20, 10}, false, false);
    EXPECT_EQ(window.frame(), QRectF(0, 0, 120, 10));
    EXPECT_EQ(content->frame(), QRectF(0, 0, 120, 10));
}

TEST(Window, AViewIsTheContentOfOneWindowOrASubviewNeverBoth)
{
    Window first;
    Window second;
    View parent;
    const auto view = std::make_shared<View>();
    parent.addSubview(view);

    first.setContentView(view);
    EXPECT_TRUE(parent.subviews().empty());
    second.setContentView(view);
    EXPECT_EQ(first.contentView(), nullptr);
    EXPECT_EQ(view->window(), &second);
    parent.addSubview(view);
    EXPECT_EQ(second.contentView(), nullptr);
    EXPECT_EQ(view->window(), nullptr);
    EXPECT_EQ(view->superview(), &parent);
}

TEST(Window, AReplacedContentViewIsInNoWindow)
{
    Window window;
    const auto view = std::make_shared<View>();
    window.setContentView(view);
    window.setContentView(std::make_shared<View>());
    EXPECT_EQ(view->window(), nullptr);
}

TEST(Window, AnnouncesANewContentViewAndStyleMaskOnce)
{
    Window window;
    int contents = 0;
    int masks = 0;
    QObject::connect(&window, &Window::contentViewDidChange, &window, [&contents] { ++contents; });
    QObject::connect(&window, &Window::styleMaskDidChange, &window, [&masks] { ++masks; });
    const auto view = std::make_shared<View>();
    window.setContentView(view);
    window.setContentView(view);
    window.setStyleMask(256);
    window.setStyleMask(256);
    EXPECT_EQ(contents, 1);
    EXPECT_EQ(masks, 1);
    EXPECT_EQ(window.styleMask(), 256U);
}

TEST(Window, HasAScaleFactorOfOneUntilItIsOnAScreen)
{
    Window window;
    EXPECT_EQ(window.backingScaleFactor(), 1);
    window.setBackingScaleFactor(2);
    EXPECT_EQ(window.backingScaleFactor(), 2);
}

TEST(Window, IgnoresInvalidScaleFactors)
{
    Window window;
    window.setBackingScaleFactor(2);
    for (const double factor :
        {0.0, -1.0, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        window.setBackingScaleFactor(factor);
        EXPECT_EQ(window.backingScaleFactor(), 2) << factor;
    }
}

TEST(Window, BecomesKeyAndMainOnlyWithATitleBar)
{
    const Window plain({}, Window::closable | Window::miniaturizable);
    EXPECT_FALSE(plain.canBecomeKeyWindow());
    EXPECT_FALSE(plain.canBecomeMainWindow());
    const Window titled({}, Window::titled);
    EXPECT_TRUE(titled.canBecomeKeyWindow());
    EXPECT_TRUE(titled.canBecomeMainWindow());
}
