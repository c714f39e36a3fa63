// SPDX-License-Identifier: MIT
// The statistics window on the screen: real windows, clicks and keys.
#include "tests/front_end/ProviderTest.h"
#include "tests/harness/FakePortal.h"
#include "tests/presentation/StatsPanel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QWidget>

namespace {

const QString text = QStringLiteral("A first sentence.\n\tA second one.\n");

/// The user's document in a maximised window with the focus.
class OtherApplication {
public:
    OtherApplication()
    {
        m_window.setWindowTitle(QStringLiteral("Document"));
        m_window.setStyleSheet(QStringLiteral("background: #3060a0"));
        m_window.showMaximized();
        EXPECT_TRUE(waitUntil([this] { return m_window.isActiveWindow(); }));
        TestDisplay::xdotool({QStringLiteral("mousemove"), QStringLiteral("640"), QStringLiteral("300"),
            QStringLiteral("click"), QStringLiteral("1")});
    }

private:
    QWidget m_window;
};

class StatsWindowOnScreen : public ProviderTest {
protected:
    StatsWindowOnScreen() { preferOnly(everyStatistic); }

    /// Waits until the numbers are visible.
    static QString open(const QString &shownText = text)
    {
        EXPECT_EQ(count(shownText), QString());
        const QString window = waitForWindows(1).value(0);
        waitForNumbers(window);
        return window;
    }
};

} // namespace

TEST_F(StatsWindowOnScreen, ShowsTheCountsOfTheText)
{
    const QString window = open();
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
    const std::string statistics = copied().toStdString();
    EXPECT_THAT(statistics, testing::HasSubstr("-Words: 6"));
    EXPECT_THAT(statistics, testing::HasSubstr("-Sentences: 2"));
    EXPECT_THAT(statistics, testing::HasSubstr("-Indented Paragraphs: 1"));
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(StatsWindowOnScreen, IsAboveAMaximisedWindowAndTakesTheFocus)
{
    const OtherApplication document;
    EXPECT_EQ(count(text), QString());
    const QString window = waitForWindows(1).value(0);
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
    // The user continues to write; the window stays above.
    TestDisplay::xdotool({QStringLiteral("mousemove"), QStringLiteral("100"), QStringLiteral("700"),
        QStringLiteral("click"), QStringLiteral("1")});
    EXPECT_TRUE(waitUntil([&] { return activeWindow() != window; }));
    const QImage image = saveScreenshot(QStringLiteral("stats-window-above"));
    const QRect rect = rectOf(window);
    EXPECT_NE(image.pixelColor(rect.topLeft() + QPoint(40, 10)), QColor(0x30, 0x60, 0xa0));
    EXPECT_EQ(image.pixelColor(rect.topLeft() - QPoint(10, 10)), QColor(0x30, 0x60, 0xa0));
}

TEST_F(StatsWindowOnScreen, TakesTheFocusFromAWindowThatHasBeenUsedSince)
{
    open();
    const OtherApplication document;
    EXPECT_EQ(count(QStringLiteral("Another text.")), QString());
    const QStringList windows = waitForWindows(2);
    EXPECT_TRUE(waitUntil([&] { return windows.contains(activeWindow()); }));
}

TEST_F(StatsWindowOnScreen, OpensBelowThePointer)
{
    const QRect rect = rectOf(open());
    EXPECT_NEAR(rect.center().x(), 640, 1);
    EXPECT_NEAR(rect.top(), 300 + 16, 1);
}

TEST_F(StatsWindowOnScreen, IsDraggedByItsBackgroundOrALabel)
{
    const QString window = open();
    for (const QPoint &place : {QPoint(10, 100), QPoint(120, 40)}) {
        const QRect before = rectOf(window);
        drag(window, place);
        EXPECT_TRUE(waitUntil([&] { return rectOf(window).x() > before.x() + 50; }));
        EXPECT_EQ(rectOf(window).size(), before.size());
    }
}

TEST_F(StatsWindowOnScreen, KeepsItsBottomLeftCornerWhenAStatisticIsHidden)
{
    const QString window = open();
    const QRect before = rectOf(window);
    ChildProcess(testProgram(QStringLiteral("preference_user"))).run({}, "hide lines\n");
    EXPECT_TRUE(waitUntil([&] { return rectOf(window).height() < before.height() - 10; }));
    EXPECT_EQ(rectOf(window).bottomLeft(), before.bottomLeft());
    EXPECT_EQ(rectOf(window).width(), before.width());
    saveScreenshot(QStringLiteral("stats-window-without-lines"));
}

TEST_F(StatsWindowOnScreen, ClosesByAClickAndTheProgramExitsWithTheLast)
{
    EXPECT_EQ(count(text), QString());
    const QString first = waitForWindows(1).value(0);
    TestDisplay::xdotool({QStringLiteral("mousemove"), QStringLiteral("250"), QStringLiteral("300")});
    EXPECT_EQ(count(QStringLiteral("Another text.")), QString());
    QStringList both = waitForWindows(2);
    const pid_t process = provider();
    both.removeOne(first);
    const QRect rect = rectOf(first);
    click(first, rect.width() - 12, 16);
    EXPECT_EQ(waitForWindows(1), both);
    EXPECT_EQ(provider(), process);
    click(both.value(0), rectOf(both.value(0)).width() - 12, 16);
    waitForEnd(process);
    EXPECT_THAT(windows(), testing::IsEmpty());
}

TEST_F(StatsWindowOnScreen, ClosesByItsKeys)
{
    for (const char *const key : {"Escape", "ctrl+w", "alt+F4"}) {
        const QString window = open();
        const pid_t process = provider();
        EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; })) << key;
        EXPECT_TRUE(waitUntil([&] {
            if (!windows().isEmpty())
                press(key);
            return windows().isEmpty();
        })) << key;
        waitForEnd(process);
    }
}

TEST_F(StatsWindowOnScreen, WhatWasCopiedOutlivesTheProgram)
{
    const QString window = open();
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
    const QString statistics = copied();
    const pid_t process = provider();
    press("Escape");
    waitForEnd(process);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), statistics);
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(StatsWindowOnScreen, ClosesByTheSpaceBarOnItsButton)
{
    open();
    const pid_t process = provider();
    press("Tab");
    EXPECT_TRUE(waitUntil([&] {
        if (!windows().isEmpty())
            press("space");
        return windows().isEmpty();
    }));
    waitForEnd(process);
}

class StatsWindowLooks : public StatsWindowOnScreen, public ::testing::WithParamInterface<uint> { };

TEST_P(StatsWindowLooks, AreThoseOfTheDesktop)
{
    const uint scheme = GetParam();
    const FakePortal portal(scheme);
    const QString window = open();
    const bool isDark = scheme == 1;
    EXPECT_TRUE(waitUntil([&] {
        const QImage image = takeScreenshot();
        return (image.pixelColor(rectOf(window).topLeft() + QPoint(60, 8)).lightness() < 128) == isDark;
    }));
    saveScreenshot(isDark ? QStringLiteral("stats-window-dark") : QStringLiteral("stats-window-light"));
}

INSTANTIATE_TEST_SUITE_P(Schemes, StatsWindowLooks, ::testing::Values(1U, 2U));
