// SPDX-License-Identifier: MIT
// How the user reaches a window and its controls: by taskbar, Alt+Tab and keyboard.
#include "platform/views/Controls.h"
#include "tests/platform/views/widgets/OtherProgram.h"
#include "tests/platform/views/widgets/ShownWindow.h"

TEST(WindowReach, TaskbarsAndAltTabHaveAFloatingWindow)
{
    const ShownWindow shown({525, 264, 230, 272});
    shown.show();
    const auto property = [&](const char *name) {
        return TestDisplay::outputOf(
            QStringLiteral("xprop"), {QStringLiteral("-id"), shown.identifier(), QString::fromLatin1(name)})
            .toStdString();
    };
    EXPECT_THAT(property("_NET_WM_WINDOW_TYPE"), ::testing::Not(::testing::HasSubstr("UTILITY")));
    EXPECT_THAT(property("_NET_WM_STATE"), ::testing::Not(::testing::HasSubstr("SKIP")));
    EXPECT_THAT(property("_NET_WM_STATE"), ::testing::HasSubstr("_NET_WM_STATE_ABOVE"));
    EXPECT_THAT(property("WM_TRANSIENT_FOR"), ::testing::HasSubstr("not found"));
    const OtherProgram editor;
    editor.activate();
    EXPECT_TRUE(waitUntil([] { return !QGuiApplication::focusWindow(); }));
    TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("alt+Tab")});
    EXPECT_TRUE(waitUntil([&] { return shown.widget().isActiveWindow(); }));
}

TEST(WindowReach, DesktopsLearnTheNameOfTheDesktopFile)
{
    const QString former = QGuiApplication::desktopFileName();
    QGuiApplication::setDesktopFileName(QStringLiteral("com.quillbay.Quillbay"));
    const ShownWindow shown({525, 264, 230, 272});
    shown.show();
    QGuiApplication::setDesktopFileName(former);
    for (const char *const name : {"_KDE_NET_WM_DESKTOP_FILE", "_GTK_APPLICATION_ID"})
        EXPECT_THAT(TestDisplay::outputOf(QStringLiteral("xprop"),
                        {QStringLiteral("-id"), shown.identifier(), QString::fromLatin1(name)})
                        .toStdString(),
            ::testing::HasSubstr("= \"com.quillbay.Quillbay\""));
}

TEST(WindowReach, NoControlHasItUntilTheUserGivesItOne)
{
    const ShownWindow shown({525, 264, 230, 272});
    Button &stop = shown.add<Button>("stop", {10, 10, 80, 30});
    stop.setTitle(QStringLiteral("Stop"));
    int presses = 0;
    QObject::connect(&stop, &Button::clicked, &shown.widget(), [&] { ++presses; });
    const auto openAndType = [&](const QStringList &keys) {
        SCOPED_TRACE(keys.join(QLatin1Char(32)).toStdString());
        shown.show();
        EXPECT_TRUE(
            waitUntil([&] { return QGuiApplication::focusWindow() == shown.widget().windowHandle(); }));
        int arrived = 0;
        shown.window().setCopyProvider([&] { return ++arrived, MimeContent(); });
        TestDisplay::xdotool(
            QStringList{QStringLiteral("key")} + keys + QStringList{QStringLiteral("ctrl+c")});
        EXPECT_TRUE(waitUntil([&] { return arrived == 1; })); // after the other keys
        shown.window().setCopyProvider({});
    };
    openAndType({QStringLiteral("space"), QStringLiteral("Return")});
    EXPECT_EQ(presses, 0);
    openAndType({QStringLiteral("Tab"), QStringLiteral("space")});
    EXPECT_EQ(presses, 1);
    shown.window().orderOut();
    openAndType({QStringLiteral("space")});
    EXPECT_EQ(presses, 1) << "a window that opens again";
}
