// SPDX-License-Identifier: MIT
// The page that binds the count of the selected text to keys, with the real settings of GNOME.
#include "tests/desk/DeskTest.h"

#include <QCheckBox>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStandardPaths>

using ::testing::HasSubstr;

class ShortcutPageTest : public DeskTest {
protected:
    ShortcutPageTest()
    {
        qputenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
        qputenv("GSETTINGS_BACKEND", "keyfile"); // in the test's home; needs no service
    }
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(gsettings({"list-relocatable-schemas"})
                                 .contains("org.gnome.settings-daemon.plugins.media-keys.custom-keybinding"),
            "gnome-settings-daemon-common libglib2.0-bin");
    }

    static QByteArray gsettings(const QByteArrayList &words)
    {
        const QString program = QStandardPaths::findExecutable(QStringLiteral("gsettings"));
        return program.isEmpty() ? QByteArray() : ChildProcess(program).run(words).output;
    }
    static QByteArray shortcuts()
    {
        return gsettings({"get", "org.gnome.settings-daemon.plugins.media-keys", "custom-keybindings"})
            .trimmed();
    }

    void openPage()
    {
        open();
        showPage("ShortcutPage");
        waitForAnswer();
    }
    void waitForAnswer()
    {
        EXPECT_TRUE(waitUntil([this] {
            return control<QWidget>("switchWidget").isEnabled()
                && !control<QWidget>("ShortcutPage")
                        .findChild<QLabel *>(QStringLiteral("stateLabel"))
                        ->text()
                        .isEmpty();
        }));
    }
    void clickSwitch()
    {
        const std::string before = state();
        click(control<QCheckBox>("switchCheckBox"));
        EXPECT_TRUE(
            waitUntil([&] { return state() != before && control<QWidget>("switchWidget").isEnabled(); }));
    }
    [[nodiscard]] bool isOn() { return control<QCheckBox>("switchCheckBox").isChecked(); }
    [[nodiscard]] std::string state()
    {
        return control<QWidget>("ShortcutPage")
            .findChild<QLabel *>(QStringLiteral("stateLabel"))
            ->text()
            .toStdString();
    }
};

TEST_F(ShortcutPageTest, SwitchBindsTheKeysAndFreesThemAgain)
{
    openPage();
    EXPECT_FALSE(isOn());
    const QByteArray before = shortcuts();
    clickSwitch();
    EXPECT_TRUE(isOn());
    EXPECT_THAT(state(), HasSubstr("Select text anywhere and press"));
    EXPECT_THAT(shortcuts().toStdString(), HasSubstr("/quillbay/"));
    clickSwitch();
    EXPECT_FALSE(isOn());
    EXPECT_EQ(shortcuts(), before);
}

TEST_F(ShortcutPageTest, SwitchShowsTheTrueStateAtASecondStart)
{
    openPage();
    control<QKeySequenceEdit>("keysEdit").setKeySequence(QKeySequence(QStringLiteral("Ctrl+Alt+Shift+Q")));
    clickSwitch();
    close();
    openPage();
    EXPECT_TRUE(isOn());
    EXPECT_EQ(control<QKeySequenceEdit>("keysEdit").keySequence(),
        QKeySequence(QStringLiteral("Ctrl+Alt+Shift+Q")));
}

TEST_F(ShortcutPageTest, KeysThatTheDesktopUsesAreLeftToIt)
{
    SKIP_WITHOUT_PACKAGE(gsettings({"list-schemas"}).contains("org.gnome.desktop.wm.keybindings"),
        "gsettings-desktop-schemas");
    openPage();
    control<QKeySequenceEdit>("keysEdit").setKeySequence(QKeySequence(QStringLiteral("Alt+F4")));
    clickSwitch();
    EXPECT_FALSE(isOn());
    EXPECT_THAT(state(), HasSubstr("is used for “close” in GNOME"));
    EXPECT_EQ(shortcuts(), "@as []");
}

TEST_F(ShortcutPageTest, KeysThatWriteACharacterAreRefused)
{
    openPage();
    control<QKeySequenceEdit>("keysEdit").setKeySequence(QKeySequence(QStringLiteral("Shift+W")));
    click(control<QCheckBox>("switchCheckBox"));
    EXPECT_TRUE(waitUntil([this] { return state().find("Ctrl, Alt or Meta") != std::string::npos; }));
    EXPECT_FALSE(isOn());
}

TEST_F(ShortcutPageTest, AnotherDesktopGetsTheCommandToBind)
{
    qputenv("XDG_CURRENT_DESKTOP", "sway");
    open();
    showPage("ShortcutPage");
    EXPECT_FALSE(control<QCheckBox>("switchCheckBox").isVisible());
    EXPECT_TRUE(control<QLineEdit>("commandEdit").isVisible());
    EXPECT_THAT(control<QLineEdit>("commandEdit").text().toStdString(), HasSubstr("/quillbay selection"));
}
