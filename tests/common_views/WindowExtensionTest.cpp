// SPDX-License-Identifier: MIT
#include "common_views/WindowExtension.h"
#include "common_views/QBYServiceProviderMainWindow.h"
#include "common_views/QBYWindow.h"

#include <gmock/gmock.h>

using namespace QBYExtension;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class WatchedWindow : public Window {
public:
    using Window::Window;

    void setStyleMask(unsigned styleMask) override
    {
        m_masksSet.push_back(styleMask);
        Window::setStyleMask(styleMask);
    }

    std::vector<unsigned> m_masksSet;
};

constexpr unsigned otherBits = ~(Window::closable | Window::miniaturizable);

} // namespace

TEST(WindowClasses, BecomeKeyAndMainWithoutATitleBarToo)
{
    for (const unsigned mask : {0U, Window::titled, 256U}) {
        EXPECT_TRUE(QBYWindow({}, mask).canBecomeKeyWindow());
        EXPECT_TRUE(QBYWindow({}, mask).canBecomeMainWindow());
        EXPECT_TRUE(QBYServiceProviderMainWindow({}, mask).canBecomeKeyWindow());
        EXPECT_TRUE(QBYServiceProviderMainWindow({}, mask).canBecomeMainWindow());
    }
}

TEST(WindowExtension, ResizingLeavesTheBottomLeftCornerWhereItIs)
{
    Window window({100, 200, 300, 400});
    setFrameSize(window, {300, 250}, true);
    EXPECT_EQ(window.frame(), QRectF(100, 200, 300, 250));
}

TEST(WindowExtension, ResizingPassesItsFlagsOnAndAnimatesOnlyOnRequest)
{
    Window window({100, 200, 300, 400});
    std::vector<std::pair<bool, bool>> flags;
    QObject::connect(&window, &Window::frameDidChange, &window,
        [&](bool display, bool animate) { flags.emplace_back(display, animate); });
    setFrameSize(window, {1, 1}, true);
    setFrameSize(window, {2, 2}, false);
    setFrameSize(window, {3, 3}, false, true);
    setFrameSize(window, {4, 4}, true, true);
    using Flags = std::pair<bool, bool>;
    EXPECT_THAT(
        flags, ElementsAre(Flags(true, false), Flags(false, false), Flags(false, true), Flags(true, true)));
}

TEST(WindowExtension, ClosableIsTheSecondBitOfTheStyleMask)
{
    EXPECT_TRUE(qby_windowClosable(Window({}, 2)));
    EXPECT_FALSE(qby_windowClosable(Window({}, ~2U)));
}

TEST(WindowExtension, MiniaturizableIsTheThirdBitOfTheStyleMask)
{
    EXPECT_TRUE(qby_windowMiniaturizable(Window({}, 4)));
    EXPECT_FALSE(qby_windowMiniaturizable(Window({}, ~4U)));
}

TEST(WindowExtension, ASwitchChangesNoOtherBit)
{
    WatchedWindow window({}, otherBits);
    setQby_windowClosable(window, true);
    setQby_windowMiniaturizable(window, true);
    setQby_windowClosable(window, false);
    setQby_windowMiniaturizable(window, false);
    EXPECT_THAT(window.m_masksSet, ElementsAre(otherBits | 2, otherBits | 6, otherBits | 4, otherBits));
}

TEST(WindowExtension, ASwitchWithTheWantedValueSetsNothing)
{
    WatchedWindow withBoth({}, 6);
    setQby_windowClosable(withBoth, true);
    setQby_windowMiniaturizable(withBoth, true);
    EXPECT_THAT(withBoth.m_masksSet, IsEmpty());

    WatchedWindow withNeither({}, 0);
    setQby_windowClosable(withNeither, false);
    setQby_windowMiniaturizable(withNeither, false);
    EXPECT_THAT(withNeither.m_masksSet, IsEmpty());
}
