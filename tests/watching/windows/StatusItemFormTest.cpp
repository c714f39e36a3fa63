// SPDX-License-Identifier: MIT
// The watcher with a status item, its pop-over and its detached window.
#include "tests/watching/windows/WatcherTest.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

class StatusItemFormTest : public WatcherTest {
protected:
    /// Like the user dragging the pop-over off.
    static std::shared_ptr<Window> detach(Controller &watcher)
    {
        if (!watcher.popover()->isShown())
            watcher.statusItem()->performClick();
        Window &window = *watcher.popover()->window();
        window.setFrame(window.frame().translated(200, -100), false, false);
        EXPECT_TRUE(waitUntil([&] { return !watcher.popover()->isShown(); }));
        return watcher.detachableWindowForPopover();
    }
};

TEST_F(StatusItemFormTest, HasAnItemWithAnIconAndAPopoverWithThePanel)
{
    Controller &watcher = makeStatusItemForm();
    ASSERT_THAT(m_statusBar.items, ElementsAre(watcher.statusItem().get()));
    EXPECT_EQ(watcher.statusItem()->imageName(), QStringLiteral("MenubarIcon"));
    const auto panel = watcher.watchTextFileViewControllerForPopover();
    EXPECT_TRUE(panel->isViewLoaded());
    EXPECT_TRUE(panel->shouldAutosyncActivityIndicator());
    EXPECT_EQ(panel->delegate(), &watcher);
    EXPECT_EQ(watcher.popover()->contentViewController(), panel);
    EXPECT_EQ(watcher.popover()->delegate(), &watcher);
    EXPECT_FALSE(watcher.detachableWindowForPopover());
    EXPECT_FALSE(watcher.contentViewControllerForDetachableWindow());
    watcher.showWindow(); // has no window
}

TEST_F(StatusItemFormTest, ThePopoverOpensAfter300Milliseconds)
{
    const Controller &watcher = makeStatusItemForm();
    m_clock.advance(299ms);
    EXPECT_FALSE(watcher.popover()->isShown());
    m_clock.advance(1ms);
    EXPECT_TRUE(watcher.popover()->isShown());
    EXPECT_EQ(statisticsOf(watcher).wordCounter()->formattedStringStyle(), 1);
}

TEST_F(StatusItemFormTest, LivesUntilThePopoverHasOpened)
{
    const std::weak_ptr<Controller> watcher = makeStatusItemForm().shared_from_this();
    m_registry.watchers.clear();
    EXPECT_FALSE(watcher.expired());
    m_clock.advance(300ms);
    EXPECT_TRUE(waitUntil([&] { return watcher.expired(); }));
    EXPECT_THAT(m_statusBar.items, IsEmpty());
}

TEST_F(StatusItemFormTest, AClickShowsThePopoverAndASecondOneKeepsIt)
{
    const Controller &watcher = makeStatusItemForm();
    watcher.statusItem()->setButtonFrame(QRectF(600, 776, 24, 24));
    watcher.statusItem()->performClick();
    EXPECT_TRUE(watcher.popover()->isShown());
    const QRectF frame = watcher.popover()->window()->frame();
    EXPECT_EQ(frame.center().x(), 612);
    EXPECT_EQ(frame.y() + frame.height(), 776) << "below the item";
    watcher.statusItem()->performClick();
    EXPECT_TRUE(watcher.popover()->isShown());
    EXPECT_EQ(watcher.popover()->window()->frame(), frame);
}

TEST_F(StatusItemFormTest, ThePopoverIsAtThePointerIfTheItemsPlaceIsUnknown)
{
    m_desktop.pointer = {640, 790};
    const Controller &watcher = makeStatusItemForm();
    watcher.statusItem()->performClick();
    const QRectF frame = watcher.popover()->window()->frame();
    EXPECT_EQ(frame.center().x(), 640);
    EXPECT_EQ(frame.y() + frame.height(), 790);
}

TEST_F(StatusItemFormTest, ThePanelFitsThePopover)
{
    Controller &watcher = makeStatusItemForm();
    const auto panel = watcher.watchTextFileViewControllerForPopover();
    EXPECT_EQ(watcher.popoverFromPresenterForAutoResizeOrNil(*panel), watcher.popover());
    preferOnly({});
    const double before = watcher.popover()->contentSize().height();
    statisticsOf(watcher).updateArray();
    EXPECT_LT(watcher.popover()->contentSize().height(), before);
    EXPECT_EQ(watcher.popover()->contentSize(), panel->view()->frame().size());
}

TEST_F(StatusItemFormTest, DraggingThePopoverOffOpensTheWindow)
{
    serve({"answer 12 2 3 4 5 6 7 8"});
    Controller &watcher = makeStatusItemForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    waitForCount(watcher);
    const QSizeF size = watcher.popover()->contentSize();
    const std::shared_ptr<Window> window = detach(watcher);
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->styleMask(), 256U);
    EXPECT_EQ(window->level(), WindowLevel::Normal);
    EXPECT_EQ(window->frame(), QRectF(watcher.popover()->window()->frame().topLeft(), size));
    const auto panel = watcher.contentViewControllerForDetachableWindow();
    EXPECT_NE(panel, watcher.watchTextFileViewControllerForPopover());
    EXPECT_EQ(window->contentView(), panel->view());
    EXPECT_FALSE(panel->shouldAutosyncActivityIndicator());
    EXPECT_EQ(panel->delegate(), &watcher);
    EXPECT_EQ(titleOf(*panel), QStringLiteral("novel.txt"));
    EXPECT_EQ(wordsOf(*panel), QStringLiteral("•Words: 12"));
    EXPECT_EQ(watcher.popoverFromPresenterForAutoResizeOrNil(*panel), nullptr);
}

TEST_F(StatusItemFormTest, ASecondDetachUsesTheSameWindowUnderThePresentTitle)
{
    Controller &watcher = makeStatusItemForm();
    watcher.watchTextFileViewControllerForPopover()->setTitle(QStringLiteral("one"));
    const std::shared_ptr<Window> window = detach(watcher);
    const auto panel = watcher.contentViewControllerForDetachableWindow();
    watcher.watchTextFileViewControllerForPopover()->setTitle(QStringLiteral("two"));
    EXPECT_EQ(detach(watcher), window);
    EXPECT_EQ(watcher.contentViewControllerForDetachableWindow(), panel);
    EXPECT_EQ(titleOf(*panel), QStringLiteral("two"));
    EXPECT_TRUE(window->isVisible());
}

TEST_F(StatusItemFormTest, PopoverAndWindowAreNeverShownTogether)
{
    Controller &watcher = makeStatusItemForm();
    const std::shared_ptr<Window> window = detach(watcher);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(watcher.popover()->isShown());
    watcher.statusItem()->performClick();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(watcher.popover()->isShown());
}

TEST_F(StatusItemFormTest, ASmallDragMakesNoWindow)
{
    const Controller &watcher = makeStatusItemForm();
    watcher.statusItem()->performClick();
    Window &window = *watcher.popover()->window();
    window.setFrame(window.frame().translated(200, 0), false, false);
    window.setFrame(window.frame().translated(-195, 0), false, false); // back before the detach delay
    EXPECT_FALSE(watcher.detachableWindowForPopover());
    EXPECT_TRUE(watcher.popover()->isShown());
}

TEST_F(StatusItemFormTest, CountsAndIndicatorAreMirroredIntoTheWindow)
{
    serve({"hold", "answer 12 2 3 4 5 6 7 8"});
    Controller &watcher = makeStatusItemForm();
    detach(watcher);
    const auto panel = watcher.contentViewControllerForDetachableWindow();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    EXPECT_TRUE(panel->activityIndicator()->isAnimating());
    EXPECT_TRUE(panel->spinActivityIndicator());
    m_service->waitForRequests(1);
    m_service->release();
    waitForCount(watcher);
    EXPECT_FALSE(panel->activityIndicator()->isAnimating());
    EXPECT_EQ(wordsOf(*panel), QStringLiteral("•Words: 1"));
    EXPECT_EQ(panel->wordCounterViewController()->wordCounter()->statsRepresentation(),
        (QBYWordCounterStats{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(titleOf(*panel), QStringLiteral("novel.txt"));
    watcher.didChangeActivityIndicatorAnimationState(*panel, true);
    EXPECT_FALSE(panel->spinActivityIndicator()) << "the window's own panel drives no other panel";
}

TEST_F(StatusItemFormTest, CloseHidesBothAndKeepsTheItem)
{
    serve({"answer 1 2 3 4 5 6 7 8"});
    Controller &watcher = makeStatusItemForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    const std::shared_ptr<Window> window = detach(watcher);
    watcher.contentViewControllerForDetachableWindow()->closeButton()->performClick();
    EXPECT_FALSE(window->isVisible());
    watcher.statusItem()->performClick();
    watcher.watchTextFileViewControllerForPopover()->closeButton()->performClick();
    EXPECT_FALSE(watcher.popover()->isShown());
    EXPECT_THAT(m_statusBar.items, ::testing::SizeIs(1));
    EXPECT_TRUE(watcher.watchFileModel()->isWatchingTextFile());
    EXPECT_EQ(m_registry.finished, 0);
}

TEST_F(StatusItemFormTest, StopFromEitherPanelRemovesTheItem)
{
    for (const bool fromWindow : {false, true}) {
        Controller &watcher = makeStatusItemForm();
        m_clock.advance(300ms);
        QCoreApplication::processEvents();
        if (fromWindow)
            detach(watcher);
        const auto panel = fromWindow ? watcher.contentViewControllerForDetachableWindow()
                                      : watcher.watchTextFileViewControllerForPopover();
        panel->stopButton()->performClick();
        EXPECT_THAT(m_statusBar.items, IsEmpty());
        EXPECT_THAT(m_registry.watchers, IsEmpty());
        EXPECT_EQ(m_desktop.numberOnScreen, 0);
    }
    EXPECT_EQ(m_registry.finished, 2);
}

TEST_F(StatusItemFormTest, TheOtherFileAfterAFailureIsShownInThePopoverUnderTheOldTitle)
{
    serve({"answer 1 2 3 4 5 6 7 8"});
    Controller &watcher = makeStatusItemForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    waitForCount(watcher);
    watcher.statusItem()->performClick();
    QFile::remove(m_path);
    waitForAlert();
    EXPECT_FALSE(watcher.popover()->isShown());
    const QString other = writeFile(QStringLiteral("other.txt"), "Other");
    m_desktop.pressAlertButton(1);
    m_desktop.confirmOpenPanel({QUrl::fromLocalFile(other)});
    EXPECT_TRUE(watcher.popover()->isShown());
    EXPECT_EQ(titleOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("novel.txt"));
}

TEST_F(StatusItemFormTest, CloseInTheFailureAlertRemovesTheItem)
{
    serve({"answer 1 2 3 4 5 6 7 8"});
    Controller &watcher = makeStatusItemForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    m_clock.advance(300ms);
    waitForCount(watcher);
    QFile::remove(m_path);
    waitForAlert();
    EXPECT_THAT(m_statusBar.items, ::testing::SizeIs(1));
    m_desktop.pressAlertButton(0);
    EXPECT_THAT(m_statusBar.items, IsEmpty());
    EXPECT_EQ(m_registry.finished, 1);
}
