// SPDX-License-Identifier: MIT
#include "platform/views/ViewController.h"
#include "platform/views/WindowController.h"

#include <gtest/gtest.h>

namespace {

class CountingController : public ViewController {
public:
    void loadView() override
    {
        ++m_loads;
        setView(std::make_shared<View>());
    }
    void viewDidLoad() override { m_wasLoadedBeforeViewDidLoad = isViewLoaded(); }

    int m_loads = 0;
    bool m_wasLoadedBeforeViewDidLoad = false;
};

} // namespace

TEST(ViewController, LoadsItsViewOnFirstUseOnly)
{
    CountingController controller;
    EXPECT_FALSE(controller.isViewLoaded());
    const View *const view = controller.view().get();
    EXPECT_NE(view, nullptr);
    EXPECT_EQ(controller.view().get(), view);
    EXPECT_EQ(controller.m_loads, 1);
    EXPECT_TRUE(controller.m_wasLoadedBeforeViewDidLoad);
}

TEST(ViewController, AViewThatWasSetIsNotLoaded)
{
    CountingController controller;
    const auto view = std::make_shared<View>();
    controller.setView(view);
    EXPECT_EQ(controller.view(), view);
    EXPECT_EQ(controller.m_loads, 0);
}

TEST(ViewController, HasATitleOrNone)
{
    CountingController controller;
    EXPECT_EQ(controller.title(), std::nullopt);
    controller.setTitle(QStringLiteral("novel.txt"));
    EXPECT_EQ(controller.title(), QStringLiteral("novel.txt"));
    controller.setTitle(std::nullopt);
    EXPECT_EQ(controller.title(), std::nullopt);
}

TEST(WindowController, KeepsItsWindowAlive)
{
    WindowController controller;
    EXPECT_EQ(controller.window(), nullptr);
    controller.setWindow(std::make_shared<Window>(QRectF(1, 2, 3, 4)));
    EXPECT_EQ(controller.window()->frame(), QRectF(1, 2, 3, 4));
}
