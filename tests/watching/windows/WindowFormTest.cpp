// SPDX-License-Identifier: MIT
// The watcher that is only a window.
#include "tests/watching/windows/WatcherTest.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class WindowFormTest : public WatcherTest {
protected:
    Controller &makeWatching()
    {
        serve({"answer 1 2 3 4 5 6 7 8"});
        return watch(m_path);
    }
};

TEST_F(WindowFormTest, IsAFloatingWindowWithoutATitleBarAndOnePanel)
{
    const Controller &watcher = makeWindowForm();
    const std::shared_ptr<Window> window = watcher.detachableWindowForPopover();
    ASSERT_TRUE(window);
    const auto panel = watcher.watchTextFileViewControllerForPopover();
    EXPECT_EQ(watcher.contentViewControllerForDetachableWindow(), panel);
    EXPECT_EQ(window->contentView(), panel->view());
    EXPECT_EQ(window->frame().topLeft(), QPointF(0, 0));
    EXPECT_EQ(window->frame().size(), panel->view()->frame().size());
    EXPECT_EQ(window->styleMask(), 256U);
    EXPECT_EQ(window->level(), WindowLevel::Floating);
    EXPECT_TRUE(window->isMovableByBackground());
    EXPECT_TRUE(window->canBecomeKeyWindow());
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(panel->shouldAutosyncActivityIndicator());
    EXPECT_EQ(panel->delegate(), &watcher);
    EXPECT_EQ(panel->wordCounterViewController()->wordCounter()->formattedStringStyle(), 1);
    EXPECT_FALSE(watcher.popover());
    EXPECT_FALSE(watcher.statusItem());
    EXPECT_THAT(m_statusBar.items, IsEmpty());
    EXPECT_EQ(m_desktop.numberOnScreen, 1);
}

TEST_F(WindowFormTest, ShowsItselfInTheMiddleOfTheScreenEveryTime)
{
    m_desktop.visibleFrame = {100, 50, 1000, 701};
    Controller &watcher = makeWindowForm();
    const std::shared_ptr<Window> window = watcher.detachableWindowForPopover();
    int ordered = 0;
    QObject::connect(window.get(), &Window::orderedFront, window.get(), [&] { ++ordered; });
    watcher.showWindow();
    const auto middle = [&] {
        const QSizeF size = window->frame().size();
        return QRectF({std::floor(600 - size.width() / 2), std::floor(400.5 - size.height() / 2)}, size);
    };
    EXPECT_EQ(window->frame(), middle());
    EXPECT_TRUE(window->isVisible());
    window->setFrame(window->frame().translated(77, 33), true, false);
    watcher.showWindow();
    EXPECT_EQ(window->frame(), middle());
    EXPECT_EQ(ordered, 2);
}

TEST_F(WindowFormTest, IsFittedBeforeItIsShown)
{
    Controller &watcher = makeWindowForm();
    const auto panel = watcher.watchTextFileViewControllerForPopover();
    preferOnly({});
    panel->wordCounterViewController()->updateArray();
    const double height = panel->view()->frame().height();
    panel->stopButton()->setFrameSize({80, 47});
    watcher.showWindow();
    EXPECT_EQ(watcher.detachableWindowForPopover()->frame().height(), height + 17);
}

TEST_F(WindowFormTest, TheCloseButtonIsThatOfThePanel)
{
    Controller &watcher = makeWindowForm();
    EXPECT_TRUE(watcher.showsCloseButton());
    watcher.setShowsCloseButton(false);
    EXPECT_FALSE(watcher.showsCloseButton());
    EXPECT_TRUE(watcher.watchTextFileViewControllerForPopover()->closeButton()->isHidden());
}

TEST_F(WindowFormTest, CloseHidesTheWindowAndGoesOnWatching)
{
    Controller &watcher = makeWatching();
    watcher.watchTextFileViewControllerForPopover()->closeButton()->performClick();
    EXPECT_FALSE(watcher.detachableWindowForPopover()->isVisible());
    EXPECT_TRUE(watcher.watchFileModel()->isWatchingTextFile());
    EXPECT_EQ(m_registry.finished, 0);
    watcher.showWindow();
    EXPECT_TRUE(watcher.detachableWindowForPopover()->isVisible());
}

TEST_F(WindowFormTest, StopEndsTheWatcher)
{
    const Controller &watcher = makeWatching();
    const std::weak_ptr<Window> window = watcher.detachableWindowForPopover();
    watcher.watchTextFileViewControllerForPopover()->stopButton()->performClick();
    EXPECT_EQ(m_registry.finished, 1);
    EXPECT_THAT(m_registry.watchers, IsEmpty());
    EXPECT_TRUE(window.expired());
    EXPECT_EQ(m_desktop.numberOnScreen, 0);
    EXPECT_THAT(m_desktop.notes, IsEmpty());
}

TEST_F(WindowFormTest, StopTakesEffectInItsOrder)
{
    class Observer : public WatcherRegistry {
    public:
        void watchTextFileMenuBarControllerDidFinish(WatchTextFileMenuBarController &controller) override
        {
            EXPECT_FALSE(controller.watchFileModel());
            EXPECT_FALSE(controller.detachableWindowForPopover()->isVisible());
            EXPECT_EQ(controller.urlBeingWatched(), QUrl());
            ++finished;
        }
    };
    Controller &watcher = makeWatching();
    Observer observer;
    watcher.setDelegate(&observer);
    watcher.watchTextFileViewControllerRequestedStop(nullptr);
    EXPECT_EQ(observer.finished, 1);
}

TEST_F(WindowFormTest, StopDuringACountEndsTheWatcherToo)
{
    serve({"hold"});
    Controller &watcher = makeWindowForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    watcher.showWindow();
    m_service->waitForRequests(1);
    const QString client = m_service->requests().front().client;
    watcher.watchTextFileViewControllerForPopover()->stopButton()->performClick();
    EXPECT_THAT(m_registry.watchers, IsEmpty());
    m_service->release();
    EXPECT_TRUE(waitUntil([&] { return !m_service->isOnTheBus(client); }));
}

TEST_F(WindowFormTest, TheWindowManagersCloseDoesWhatTheButtonDoesThatIsThere)
{
    Controller &watcher = makeWatching();
    const std::shared_ptr<Window> window = watcher.detachableWindowForPopover();
    window->performClose();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(m_registry.finished, 0);
    EXPECT_TRUE(watcher.watchFileModel());
    watcher.showWindow();
    watcher.setShowsCloseButton(false);
    window->performClose();
    EXPECT_EQ(m_registry.finished, 1);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(WindowFormTest, HasNoPopoverAndMirrorsNoIndicator)
{
    Controller &watcher = makeWindowForm();
    const auto panel = watcher.watchTextFileViewControllerForPopover();
    EXPECT_EQ(watcher.popoverFromPresenterForAutoResizeOrNil(*panel), nullptr);
    panel->wordCounterViewController()->setIsAsyncCountOperationInProgress(true);
    EXPECT_TRUE(panel->activityIndicator()->isAnimating());
    EXPECT_FALSE(panel->spinActivityIndicator());
    watcher.statusBarButtonAction();
    EXPECT_FALSE(watcher.detachableWindowForPopover()->isVisible());
}

TEST_F(WindowFormTest, TheStatisticsAreCopiedAsTextAndAsAWebPage)
{
    serve({"answer 12 0 0 0 0 0 0 0"});
    preferOnly({Preference::ShowLineCount});
    Controller &watcher = makeWindowForm();
    const Window &window = *watcher.detachableWindowForPopover();
    EXPECT_TRUE(window.canCopy());
    EXPECT_THAT(window.contentToCopy(), IsEmpty()) << "nothing is counted yet";
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    waitForCount(watcher);
    const MimeContent content = window.contentToCopy();
    EXPECT_EQ(content.at(QStringLiteral("text/html")),
        "<!DOCTYPE html><html><head><title></title></head><body>-Words: 12</br>-Lines: 0</body></html>");
    EXPECT_EQ(QString::fromUtf8(content.at(QStringLiteral("text/plain"))).trimmed().split(u'\n').size(), 2);
}

TEST_F(WindowFormTest, NewTextMetricsFitTheWindowAgain)
{
    const Controller &watcher = makeWindowForm();
    const auto panel = watcher.watchTextFileViewControllerForPopover();
    class WideMeasurer : public TextMeasurer {
    public:
        [[nodiscard]] QSizeF buttonSize(const QString & /*title*/) const override { return {120, 40}; }
        [[nodiscard]] QSizeF labelSize(const QString & /*text*/) const override { return {400, 30}; }
    };
    for (const auto &label : panel->wordCounterViewController()->allTextfieldsForLayout())
        label->setTextMeasurer(std::make_shared<WideMeasurer>());
    panel->titleForFileBeingWatchedLabel()->setTextMeasurer(std::make_shared<WideMeasurer>());
    panel->stopButton()->setTextMeasurer(std::make_shared<WideMeasurer>());
    const QSizeF titleBefore = panel->titleForFileBeingWatchedLabel()->frame().size();
    const double rowBefore = panel->closeButton()->frame().height();
    Q_EMIT watcher.detachableWindowForPopover()->textMetricsDidChange();
    const QSizeF size = watcher.detachableWindowForPopover()->frame().size();
    EXPECT_EQ(size.width(), 410);
    EXPECT_EQ(panel->stopButton()->frame().size(), QSizeF(120, 40));
    const QRectF title = panel->titleForFileBeingWatchedLabel()->frame();
    EXPECT_EQ(title.height(), 30);
    EXPECT_EQ(title.center().x(), 205);
    EXPECT_GT(title.width(), titleBefore.width()) << "long names have the whole row";
    const double row = panel->closeButton()->frame().height();
    EXPECT_EQ(row - rowBefore, 30 - titleBefore.height());
    EXPECT_EQ(size.height(), 40 + panel->wordCounterViewController()->view()->frame().height() + row);
}
