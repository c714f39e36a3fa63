// SPDX-License-Identifier: MIT
#include "platform/shortcuts/GSettingsShortcut.h"
#include "tests/platform/shortcuts/ShortcutTest.h"

namespace {

/// A desktop and the package with its schemas.
struct Desktop {
    const GSettingsLayout *layout;
    const char *package;
};

void PrintTo(const Desktop &desktop, std::ostream *stream)
{
    *stream << desktop.layout->desktop;
}

} // namespace

class GSettingsShortcutInDconf : public ShortcutTest, public ::testing::WithParamInterface<Desktop> {
protected:
    GSettingsShortcutInDconf()
        : ShortcutTest(QStringLiteral("ca.desrt.dconf"))
    {
    }
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(isInstalled(QStringLiteral("dconf")), "dconf-cli dconf-gsettings-backend");
        const QByteArray schemas = outputOf(QStringLiteral("gsettings"), {"list-relocatable-schemas"});
        SKIP_WITHOUT_PACKAGE(schemas.contains(GetParam().layout->itemSchema), GetParam().package);
    }

    void TearDown() override { outputOf(QStringLiteral("dconf"), {"reset", "-f", "/"}); }

    static QByteArray settings() { return outputOf(QStringLiteral("dconf"), {"dump", "/"}); }
    static void write(const QByteArray &path, const QByteArray &value)
    {
        outputOf(QStringLiteral("dconf"), {"write", path, value});
    }

    GSettingsShortcut m_shortcut{*GetParam().layout, command()};
};

TEST_P(GSettingsShortcutInDconf, IsUndoneExactly)
{
    const QByteArray before = settings();
    expectToBindAndUnbind(m_shortcut);
    EXPECT_EQ(settings(), before);
}

TEST_P(GSettingsShortcutInDconf, LeavesTheShortcutsOfTheUserAlone)
{
    if (!GetParam().layout->listSchema)
        GTEST_SKIP() << "has no list";
    const QByteArray folder = GetParam().layout->itemFolder;
    const QByteArray list = '/' + QByteArray(GetParam().layout->listSchema).replace('.', '/') + '/';
    const QByteArray entry = GetParam().layout->listsPaths ? folder + "custom0/" : QByteArray("custom0");
    write(list + GetParam().layout->listKey, "['" + entry + "']");
    write(folder + "custom0/name", "'Notes'");
    write(folder + "custom0/command", "\"it's 'quoted'\"");
    write(folder + "custom0/binding", GetParam().layout->hasManyKeys ? "['<Super>n']" : "'<Super>n'");
    const QByteArray before = settings();
    EXPECT_TRUE(before.contains("Notes")) << before.toStdString();
    EXPECT_EQ(m_shortcut.userOf(QKeySequence(QStringLiteral("Meta+N"))), QStringLiteral("Notes"));
    expectToBindAndUnbind(m_shortcut);
    EXPECT_EQ(settings(), before);
}

TEST_P(GSettingsShortcutInDconf, StartsTheCommandWithItsPathQuoted)
{
    EXPECT_EQ(m_shortcut.bind(keys()), std::nullopt);
    const QByteArray stored = settings();
    EXPECT_TRUE(stored.contains("\"'/opt/quill bay/bin/quillbay' selection\"")) << stored.toStdString();
    EXPECT_TRUE(stored.contains("<Shift><Super>w")) << stored.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Desktops, GSettingsShortcutInDconf,
    ::testing::Values(Desktop{&gnomeLayout, "gnome-settings-daemon-common"},
        Desktop{&cinnamonLayout, "cinnamon-common"}, Desktop{&mateLayout, "mate-control-center-common"}),
    [](const ::testing::TestParamInfo<Desktop> &info) { return std::string(info.param.layout->desktop); });

class GnomeShortcut : public ShortcutTest {
protected:
    GnomeShortcut()
        : ShortcutTest(QStringLiteral("ca.desrt.dconf"))
    {
    }
};

TEST_F(GnomeShortcut, IsNotBoundOverOneOfTheDesktop)
{
    const QByteArray schemas = outputOf(QStringLiteral("gsettings"), {"list-schemas"});
    SKIP_WITHOUT_PACKAGE(schemas.contains("org.gnome.desktop.wm.keybindings"), "gsettings-desktop-schemas");
    GSettingsShortcut shortcut(gnomeLayout, command());
    EXPECT_EQ(shortcut.userOf(QKeySequence(QStringLiteral("Alt+F4"))), QStringLiteral("close"));
}
