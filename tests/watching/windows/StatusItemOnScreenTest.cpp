// SPDX-License-Identifier: MIT
// The watcher with an item in the tray, in a separate program with real windows.
#include "tests/watching/windows/FakeTray.h"
#include "tests/watching/windows/WatchOnScreen.h"

namespace {

class StatusItemOnScreen : public WatchOnScreen {
protected:
    StatusItemOnScreen()
    {
        m_host.withVariable("DISPLAY", TestDisplay::start().toLatin1());
        m_host.withVariable("QT_QPA_PLATFORM", "xcb");
    }

    /// The only window at present.
    static QString onlyWindow()
    {
        QStringList shown;
        EXPECT_TRUE(waitUntil([&] {
            shown = windowsOf(QStringLiteral("novel.txt"));
            return shown.size() == 1;
        }));
        return shown.value(0);
    }

    ChildProcess m_host{testProgram(QStringLiteral("status_item_host"))};
};

} // namespace

TEST_F(StatusItemOnScreen, AClickOnTheItemShowsThePopoverAndStopRemovesBoth)
{
    const FakeTray tray;
    m_host.start({QFile::encodeName(m_novel)});
    EXPECT_TRUE(waitUntil([&] { return tray.items().size() == 1; }));
    const QString popover = onlyWindow(); // by itself, after a while
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == popover; }));
    EXPECT_TRUE(shows(3));
    saveScreenshot(QStringLiteral("watch-popover"));
    const QRect rect = rectOf(popover);
    click(popover, rect.width() - 10, 8); // the close button
    EXPECT_TRUE(waitUntil([] { return windowsOf(QStringLiteral("novel.txt")).isEmpty(); }));
    tray.click(tray.items().front());
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == onlyWindow(); }));
    clickStop(onlyWindow());
    EXPECT_EQ(m_host.finish().exitStatus, 0);
}

TEST_F(StatusItemOnScreen, WithoutATrayThePopoverComesAllTheSame)
{
    m_host.start({QFile::encodeName(m_novel)});
    const QString popover = onlyWindow();
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == popover; }));
    EXPECT_TRUE(shows(3));
    clickStop(popover);
    EXPECT_EQ(m_host.finish().exitStatus, 0);
}

TEST_F(StatusItemOnScreen, ThePopoverIsDraggedOffIntoAWindowThatFollowsTheFile)
{
    const FakeTray tray;
    m_host.start({QFile::encodeName(m_novel)});
    const QString popover = onlyWindow();
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == popover; }));
    EXPECT_TRUE(shows(3));
    drag(popover, QPoint(10, 60));
    EXPECT_TRUE(waitUntil([&] { return onlyWindow() != popover; }));
    const QString window = onlyWindow();
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
    writeFile(QStringLiteral("novel.txt"), "Now it has five words.");
    EXPECT_TRUE(shows(5));
    saveScreenshot(QStringLiteral("watch-detached"));
    EXPECT_TRUE(waitUntil([&] { return tray.items().size() == 1; }));
    tray.click(tray.items().front());
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == popover; }));
    EXPECT_EQ(windowsOf(QStringLiteral("novel.txt")), QStringList{popover});
}
