// SPDX-License-Identifier: MIT
#include "platform/shortcuts/LxqtShortcut.h"
#include "tests/platform/shortcuts/ShortcutTest.h"

class LxqtShortcutInGlobalkeys : public ShortcutTest {
protected:
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(isInstalled(QStringLiteral("lxqt-globalkeysd")), "lxqt-globalkeys");
        startDaemon(QStringLiteral("lxqt-globalkeysd"), QStringLiteral("org.lxqt.global_key_shortcuts"));
    }

    LxqtShortcut m_shortcut{command()};
};

TEST_F(LxqtShortcutInGlobalkeys, BindsAndUnbinds)
{
    expectToBindAndUnbind(m_shortcut);
}

TEST_F(LxqtShortcutInGlobalkeys, FindsOtherUsersOfTheKeys)
{
    ShortcutCommand other = command();
    other.title = QStringLiteral("Another program");
    other.words = QStringList{QStringLiteral("/usr/bin/another")};
    EXPECT_EQ(LxqtShortcut(other).bind(keys()), std::nullopt);
    EXPECT_EQ(m_shortcut.userOf(keys()), QStringLiteral("Another program"));
}
