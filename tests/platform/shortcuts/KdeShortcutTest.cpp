// SPDX-License-Identifier: MIT
#include "platform/shortcuts/KdeShortcut.h"
#include "tests/platform/shortcuts/ShortcutTest.h"

class KdeShortcutInKglobalaccel : public ShortcutTest {
protected:
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(isInstalled(QStringLiteral("kglobalaccel5")), "libkf5globalaccel-bin");
        startDaemon(QStringLiteral("kglobalaccel5"), QStringLiteral("org.kde.kglobalaccel"));
    }

    KdeShortcut m_shortcut{command()};
};

TEST_F(KdeShortcutInKglobalaccel, BindsAndUnbindsTheActionOfTheApplicationMenu)
{
    expectToBindAndUnbind(m_shortcut);
}

TEST_F(KdeShortcutInKglobalaccel, FindsOtherUsersOfTheKeys)
{
    ShortcutCommand other = command();
    other.desktopAction = QStringLiteral("CountClipboard");
    other.title = QStringLiteral("Count Clipboard");
    KdeShortcut otherShortcut(other);
    EXPECT_EQ(otherShortcut.bind(keys()), std::nullopt);
    EXPECT_TRUE(m_shortcut.userOf(keys()).contains(QStringLiteral("Count Clipboard")))
        << m_shortcut.userOf(keys()).toStdString();
    EXPECT_EQ(otherShortcut.unbind(), std::nullopt);
}
