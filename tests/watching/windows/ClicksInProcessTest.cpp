// SPDX-License-Identifier: MIT
// Real clicks on the buttons of watchers in this process, so that sanitizers check them: a button may destroy
// the watcher whose method runs.
#include "platform/views/widgets/WidgetDesktop.h"
#include "platform/views/widgets/WindowWidget.h"
#include "tests/harness/Display.h"
#include "tests/watching/windows/WatcherTest.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>

namespace {

class ClicksInProcess : public WatcherTest {
protected:
    /// A window on the screen, with a count that stays in progress.
    std::shared_ptr<Controller> open()
    {
        serve({"hold"});
        const auto watcher =
            Controller::initWithoutMenuItem({.desktop = m_widgets, .applicationActivity = m_activity});
        watcher->setDelegate(&m_registry);
        m_registry.watchers.push_back(watcher);
        watcher->watchWithTextFileURL(QUrl::fromLocalFile(m_path));
        watcher->showWindow();
        m_service->waitForRequests(1);
        EXPECT_TRUE(waitUntil([] { return widget() && widget()->windowHandle()->isExposed(); }));
        return watcher;
    }

    static WindowWidget *widget()
    {
        for (QWidget *const shown : QApplication::topLevelWidgets()) {
            auto *const window = qobject_cast<WindowWidget *>(shown);
            if (window && window->isVisible())
                return window;
        }
        return nullptr;
    }

    /// Clicks the middle of the button until the window is closed.
    static void click(const Button &button)
    {
        const QRectF place = button.convertToWindow(button.bounds());
        const QRectF frame = button.window()->frame();
        const double screen = QGuiApplication::primaryScreen()->geometry().height();
        TestDisplay::xdotool({QStringLiteral("mousemove"), QString::number(frame.x() + place.center().x()),
            QString::number(screen - frame.y() - place.center().y()), QStringLiteral("click"),
            QStringLiteral("1")});
        EXPECT_TRUE(waitUntil([] { return !widget(); }));
        // Work that was queued until the click was handled.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    WidgetDesktop m_widgets;
};

} // namespace

TEST_F(ClicksInProcess, StopEndsTheWatcherDuringACount)
{
    std::shared_ptr<Controller> watcher = open();
    const std::weak_ptr<Controller> life = watcher;
    const std::shared_ptr<Button> stop = watcher->watchTextFileViewControllerForPopover()->stopButton();
    watcher.reset();
    click(*stop);
    EXPECT_EQ(m_registry.finished, 1);
    EXPECT_TRUE(life.expired());
    m_service->release();
    QCoreApplication::processEvents();
}

TEST_F(ClicksInProcess, StopEndsTheWatcherAfterACount)
{
    std::shared_ptr<Controller> watcher = open();
    m_service->release();
    waitForCount(*watcher);
    const std::weak_ptr<Controller> life = watcher;
    const Button *const stop = watcher->watchTextFileViewControllerForPopover()->stopButton().get();
    watcher.reset();
    click(*stop);
    EXPECT_TRUE(life.expired());
}

TEST_F(ClicksInProcess, CloseDuringACountKeepsTheWatcher)
{
    const std::shared_ptr<Controller> watcher = open();
    click(*watcher->watchTextFileViewControllerForPopover()->closeButton());
    EXPECT_EQ(m_registry.finished, 0);
    EXPECT_TRUE(watcher->watchFileModel()->isWatchingTextFile());
    m_service->release();
    waitForCount(*watcher);
    EXPECT_EQ(wordsOf(*watcher->watchTextFileViewControllerForPopover()), QStringLiteral("•Words: 1"));
}

TEST_F(ClicksInProcess, EscapeEndsTheWatcherWithoutACloseButton)
{
    std::shared_ptr<Controller> watcher = open();
    watcher->setShowsCloseButton(false);
    const std::weak_ptr<Controller> life = watcher;
    watcher.reset();
    EXPECT_TRUE(waitUntil([] { return widget() && widget()->isActiveWindow(); }));
    TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("Escape")});
    EXPECT_TRUE(waitUntil([&] { return life.expired(); }));
    EXPECT_EQ(m_registry.finished, 1);
}
