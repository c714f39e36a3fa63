// SPDX-License-Identifier: MIT
#include "platform/views/Popover.h"

#include "tests/harness/QuillbayTest.h"
#include "tests/platform/views/FakeDesktop.h"

using ::testing::ElementsAre;

namespace {

class Content final : public ViewController {
public:
    explicit Content(std::vector<std::string> &notes)
        : m_notes(notes)
    {
    }
    void loadView() override { setView(std::make_shared<View>(QRectF(0, 0, 200, 100))); }
    void viewWillAppear() override { m_notes.emplace_back("view will appear"); }

private:
    std::vector<std::string> &m_notes;
};

class PopoverTest : public ::testing::Test, public PopoverDelegate {
public:
    bool popoverShouldDetach(Popover & /*popover*/) override
    {
        notes.emplace_back("asked whether it detaches");
        return detaches;
    }
    void popoverWillShow(Popover &shown) override
    {
        EXPECT_FALSE(shown.isShown());
        notes.emplace_back("will show");
    }
    std::shared_ptr<Window> detachableWindowForPopover(Popover & /*popover*/) override
    {
        notes.emplace_back("asked for a window");
        return detached;
    }

protected:
    PopoverTest()
    {
        popover.setContentViewController(content);
        popover.setDelegate(this);
    }

    [[nodiscard]] QRectF frame() const { return popover.window()->frame(); }
    /// Like the user.
    void drag(double right, double up)
    {
        popover.window()->setFrame(frame().translated(right, up), false, false);
    }

    std::vector<std::string> notes;
    bool detaches = true;
    std::shared_ptr<Window> detached = std::make_shared<Window>(QRectF(0, 0, 150, 80));
    FakeDesktop desktop;
    std::shared_ptr<Content> content = std::make_shared<Content>(notes);
    Popover popover{desktop};
};

const QRectF item(600, 400, 20, 10);

} // namespace

TEST_F(PopoverTest, HasTheViewAndTheSizeOfItsContent)
{
    EXPECT_EQ(popover.contentSize(), QSizeF(200, 100));
    EXPECT_EQ(popover.window()->contentView(), content->view());
    EXPECT_EQ(popover.window()->level(), WindowLevel::Floating);
    EXPECT_TRUE(popover.window()->canBecomeKeyWindow());
    EXPECT_FALSE(popover.isShown());
    EXPECT_EQ(desktop.numberOnScreen, 1);
}

TEST_F(PopoverTest, LiesAtThePreferredEdge)
{
    popover.show(item, RectEdge::MinY);
    EXPECT_EQ(frame(), QRectF(510, 300, 200, 100));
    popover.show(item, RectEdge::MaxY);
    EXPECT_EQ(frame(), QRectF(510, 410, 200, 100));
    popover.show(item, RectEdge::MinX);
    EXPECT_EQ(frame(), QRectF(400, 355, 200, 100));
    popover.show(item, RectEdge::MaxX);
    EXPECT_EQ(frame(), QRectF(620, 355, 200, 100));
}

TEST_F(PopoverTest, StaysOnTheScreen)
{
    popover.show({1260, 780, 20, 20}, RectEdge::MinY);
    EXPECT_EQ(frame(), QRectF(1080, 680, 200, 100));
    popover.show({0, 780, 20, 20}, RectEdge::MinY);
    EXPECT_EQ(frame(), QRectF(0, 680, 200, 100));
    popover.show({600, 0, 20, 20}, RectEdge::MinY); // a panel at the bottom
    EXPECT_EQ(frame(), QRectF(510, 20, 200, 100));
}

TEST_F(PopoverTest, NotifiesItsDelegateOnceBeforeItIsShown)
{
    popover.show(item, RectEdge::MinY);
    EXPECT_THAT(notes, ElementsAre("will show", "view will appear"));
    popover.show(item.translated(50, 0), RectEdge::MinY);
    EXPECT_THAT(notes, ElementsAre("will show", "view will appear"));
    EXPECT_EQ(frame(), QRectF(560, 300, 200, 100)) << "moves to the new place";
    popover.close();
    EXPECT_FALSE(popover.isShown());
    popover.show(item, RectEdge::MinY);
    EXPECT_EQ(notes.size(), 4U);
}

TEST_F(PopoverTest, KeepsItsUpperEdgeWhenItsContentGrows)
{
    popover.show(item, RectEdge::MinY);
    popover.setContentSize({240, 150});
    EXPECT_EQ(frame(), QRectF(490, 250, 240, 150));
    EXPECT_TRUE(popover.isShown());
}

TEST_F(PopoverTest, IsReplacedByTheWindowWhenDraggedOff)
{
    popover.show(item, RectEdge::MinY);
    drag(-100, -50);
    EXPECT_TRUE(waitUntil([this] { return !popover.isShown(); }));
    EXPECT_TRUE(detached->isVisible());
    EXPECT_EQ(detached->frame(), QRectF(410, 250, 150, 80));
}

TEST_F(PopoverTest, StaysAttachedAfterASmallDrag)
{
    popover.show(item, RectEdge::MinY);
    drag(-15, 4);
    drag(-100, 0);
    drag(100, 0); // back before the detach delay
    notes.clear();
    drag(0, -100);
    EXPECT_TRUE(waitUntil([this] { return !popover.isShown(); }));
    EXPECT_THAT(notes, ElementsAre("asked whether it detaches", "asked for a window"));
    EXPECT_EQ(detached->frame().topLeft(), QPointF(510 - 15, 300 + 4 - 100)) << "its last place";
}

TEST_F(PopoverTest, StaysWhereItIsDraggedToIfItMayNotDetach)
{
    detaches = false;
    popover.show(item, RectEdge::MinY);
    drag(-100, -50);
    EXPECT_TRUE(waitUntil([this] { return notes.back() == "asked whether it detaches"; }));
    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(frame(), QRectF(410, 250, 200, 100));
    EXPECT_FALSE(detached->isVisible());
}

TEST_F(PopoverTest, StaysWhereItIsDraggedToWithoutAWindow)
{
    detached.reset();
    popover.show(item, RectEdge::MinY);
    drag(-100, -50);
    EXPECT_TRUE(waitUntil([this] { return notes.back() == "asked for a window"; }));
    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(frame(), QRectF(410, 250, 200, 100));
}

TEST_F(PopoverTest, ForgetsADragWhenItIsClosed)
{
    popover.show(item, RectEdge::MinY);
    drag(-100, -50);
    popover.close();
    popover.show(item, RectEdge::MinY);
    EXPECT_EQ(frame(), QRectF(510, 300, 200, 100));
    drag(0, -60);
    EXPECT_TRUE(waitUntil([this] { return !popover.isShown(); }));
    EXPECT_EQ(detached->frame().topLeft(), QPointF(510, 240));
}
