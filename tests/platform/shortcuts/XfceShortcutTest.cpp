// SPDX-License-Identifier: MIT
#include "platform/shortcuts/XfceShortcut.h"
#include "tests/platform/shortcuts/ShortcutTest.h"

class XfceShortcutInXfconf : public ShortcutTest {
protected:
    XfceShortcutInXfconf()
        : ShortcutTest(QStringLiteral("org.xfce.Xfconf"))
    {
    }
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(isInstalled(QStringLiteral("xfconf-query")), "xfconf");
        set("/commands/custom/<Super>e", "thunar");
        set("/xfwm4/custom/<Alt>F4", "close_window_key");
    }

    void TearDown() override { EXPECT_EQ(m_shortcut.unbind(), std::nullopt); }

    static void set(const QByteArray &property, const QByteArray &value)
    {
        outputOf(QStringLiteral("xfconf-query"),
            {"-c", "xfce4-keyboard-shortcuts", "-p", property, "-n", "-t", "string", "-s", value});
    }

    static QByteArray settings()
    {
        return outputOf(QStringLiteral("xfconf-query"), {"-c", "xfce4-keyboard-shortcuts", "-l", "-v"});
    }

    XfceShortcut m_shortcut{command()};
};

TEST_F(XfceShortcutInXfconf, IsUndoneExactly)
{
    const QByteArray before = settings();
    EXPECT_TRUE(before.contains("thunar")) << before.toStdString();
    expectToBindAndUnbind(m_shortcut);
    EXPECT_EQ(settings(), before);
}

TEST_F(XfceShortcutInXfconf, IsWhereXfceReadsIt)
{
    EXPECT_EQ(m_shortcut.bind(keys()), std::nullopt);
    EXPECT_EQ(outputOf(QStringLiteral("xfconf-query"),
                  {"-c", "xfce4-keyboard-shortcuts", "-p", "/commands/custom/<Shift><Super>w"}),
        "'/opt/quill bay/bin/quillbay' selection\n");
}

TEST_F(XfceShortcutInXfconf, FindsOtherUsersOfTheKeys)
{
    EXPECT_EQ(m_shortcut.userOf(QKeySequence(QStringLiteral("Meta+E"))), QStringLiteral("thunar"));
    EXPECT_EQ(m_shortcut.userOf(QKeySequence(QStringLiteral("Alt+F4"))), QStringLiteral("close_window_key"));
}

TEST_F(XfceShortcutInXfconf, FollowsKeysThatTheUserChangesInTheSettings)
{
    set("/commands/custom/<Primary>F5", "'/opt/quill bay/bin/quillbay' selection");
    EXPECT_EQ(m_shortcut.keys().value(), QKeySequence(QStringLiteral("Ctrl+F5")));
}

TEST_F(XfceShortcutInXfconf, IgnoresDefaultsThatTheUsersOwnReplace)
{
    const QKeySequence defaultKeys(QStringLiteral("Alt+F12"));
    set("/xfwm4/default/<Alt>F12", "above_key");
    EXPECT_EQ(m_shortcut.userOf(defaultKeys), QStringLiteral("above_key"));
    set("/xfwm4/custom/override", "true");
    EXPECT_EQ(m_shortcut.userOf(defaultKeys), QString());
    outputOf(QStringLiteral("xfconf-query"),
        {"-c", "xfce4-keyboard-shortcuts", "-p", "/xfwm4/custom/override", "-r"});
}

TEST_F(XfceShortcutInXfconf, KnowsAnEntryThatTheUserHasTyped)
{
    set("/commands/custom/<Primary><Alt>q", "quillbay selection");
    EXPECT_EQ(m_shortcut.keys().value(), QKeySequence(QStringLiteral("Ctrl+Alt+Q")));
    EXPECT_EQ(m_shortcut.userOf(QKeySequence(QStringLiteral("Ctrl+Alt+Q"))), QString());
}
