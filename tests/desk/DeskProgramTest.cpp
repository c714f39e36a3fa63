// SPDX-License-Identifier: MIT
// The program with the main window, started as the desktop starts it.
#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"

#include <QRegularExpression>

using ::testing::HasSubstr;

namespace {

class DeskProgram : public QuillbayTest {
protected:
    DeskProgram()
    {
        SessionBus::start();
        TestDisplay::start();
    }

    static QString program() { return productProgram(QStringLiteral("quillbay-desk")); }

    /// The windows of the desktop, lowest first.
    static QStringList windows()
    {
        const QString list = QString::fromLatin1(TestDisplay::outputOf(
            QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST_STACKING")}));
        return list.section(u'#', 1).remove(u'\n').split(QStringLiteral(", "), Qt::SkipEmptyParts);
    }
    static void waitForWindows(qsizetype number)
    {
        EXPECT_TRUE(waitUntil([&] { return windows().join(u' ').count(QStringLiteral("0x")) == number; }));
    }
    /// Waits until there is one window, with the focus.
    static QString waitForActiveWindow()
    {
        waitForWindows(1);
        const QString window = windows()[0].trimmed();
        EXPECT_TRUE(waitUntil([&] {
            return TestDisplay::outputOf(
                QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_ACTIVE_WINDOW")})
                .contains(window.toLatin1());
        }));
        return window;
    }
    static QString propertyOf(const QString &window, const char *name)
    {
        return QString::fromUtf8(TestDisplay::outputOf(
            QStringLiteral("xprop"), {QStringLiteral("-id"), window.trimmed(), QString::fromLatin1(name)}));
    }
    /// Asks the active window to close, and waits until the program has exited.
    static void closeBy(const char *key, ChildProcess &process)
    {
        waitForActiveWindow();
        TestDisplay::xdotool({QStringLiteral("key"), QString::fromLatin1(key)});
        EXPECT_EQ(process.finish().exitStatus, 0);
        waitForWindows(0);
    }
};

} // namespace

TEST_F(DeskProgram, WritesTheDefaultsOfANewUserAndExitsWithItsWindow)
{
    ChildProcess process(program());
    process.start({});
    waitForWindows(1);
    EXPECT_TRUE(QBYUserDefaultsController::isShowLineCountPreferenceOn());
    EXPECT_TRUE(propertyOf(windows()[0], "_NET_WM_NAME").contains(QStringLiteral("\"Quillbay\"")));
    closeBy("ctrl+q", process);
}

TEST_F(DeskProgram, BelongsToItsDesktopFile)
{
    ChildProcess process(program());
    process.start({});
    waitForWindows(1);
    EXPECT_TRUE(propertyOf(windows()[0], "WM_CLASS").contains(QStringLiteral("\"Quillbay\"")));
    closeBy("ctrl+w", process);
}

TEST_F(DeskProgram, ASecondStartBringsTheWindowOfTheFirstToTheFront)
{
    ChildProcess first(program());
    first.start({});
    const QString window = waitForActiveWindow();
    const auto isMinimized = [&] {
        return propertyOf(window, "WM_STATE").contains(QStringLiteral("Iconic"));
    };
    TestDisplay::xdotool({QStringLiteral("windowminimize"), window});
    EXPECT_TRUE(waitUntil(isMinimized));
    EXPECT_EQ(ChildProcess(program()).run({}).exitStatus, 0);
    EXPECT_TRUE(waitUntil([&] { return !isMinimized(); }));
    EXPECT_EQ(waitForActiveWindow(), window);
    closeBy("ctrl+q", first);
}

TEST_F(DeskProgram, RemembersTheSizeOfItsWindow)
{
    const auto sizeOfWindow = [] {
        return TestDisplay::outputOf(
            QStringLiteral("xdotool"), {QStringLiteral("getwindowgeometry"), windows()[0].trimmed()});
    };
    ChildProcess first(program());
    first.start({});
    waitForWindows(1);
    const QByteArray before = sizeOfWindow();
    TestDisplay::xdotool({QStringLiteral("windowsize"), QStringLiteral("--sync"), windows()[0].trimmed(),
        QStringLiteral("800"), QStringLiteral("500")});
    EXPECT_TRUE(waitUntil([&] { return sizeOfWindow().contains("800x500"); }));
    closeBy("ctrl+q", first);
    ChildProcess second(program());
    second.start({});
    waitForWindows(1);
    EXPECT_TRUE(waitUntil([&] { return sizeOfWindow().contains("800x500"); })) << before.toStdString();
    closeBy("ctrl+q", second);
}

TEST_F(DeskProgram, WorksWithoutASessionBus)
{
    // The window begins with its second page, Rules.
    UserDefaults(QStringLiteral("com.quillbay.Desk")).setObject(qint64{1}, QStringLiteral("Page"));
    ChildProcess process(program());
    process.withVariable("DBUS_SESSION_BUS_ADDRESS", TestHome::busAddress(world().runtime()).toUtf8());
    process.start({});
    waitForActiveWindow();
    TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("alt+l")});
    EXPECT_TRUE(waitUntil([] { return !QBYUserDefaultsController::isShowLineCountPreferenceOn(); }));
    closeBy("ctrl+q", process);
}

TEST_F(DeskProgram, HandsFilesToTheCommandThatWatchesThem)
{
    const QByteArray missing = QFile::encodeName(world().root()) + "/mis\xFFsing";
    const ChildProcess::Outcome outcome = ChildProcess(program()).run({"--watch", missing});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("no such file"));
}

TEST_F(DeskProgram, AsksForTheFilesToWatch)
{
    ChildProcess process(program());
    process.start({"--watch"});
    closeBy("Escape", process);
}

TEST_F(DeskProgram, ReportsAMissingDisplayAndWrongUsage)
{
    ChildProcess blind(program());
    const ChildProcess::Outcome outcome =
        blind.withoutVariable("DISPLAY").withoutVariable("QT_QPA_PLATFORM").run({});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("set DISPLAY or WAYLAND_DISPLAY"));
    EXPECT_EQ(ChildProcess(program()).run({"--sideways"}).exitStatus, 2);
    EXPECT_THAT(
        ChildProcess(program()).run({"--help"}).output.toStdString(), HasSubstr("Usage: quillbay-desk"));
}
