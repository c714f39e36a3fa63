// SPDX-License-Identifier: MIT
// A watched file that is gone, as the user has it: the alert and the choice of another file.
#include "tests/watching/on_screen/WatchOnScreen.h"
#include "watching/speech/ApplicationExtension.h"

namespace {

const QString alertTitle = QStringLiteral("Quillbay");

class WatchFailureOnScreen : public WatchOnScreen {
protected:
    /// Loses the file that is watched, until the alert has the keyboard.
    void lose()
    {
        open(m_novel, 3);
        QFile::remove(m_novel);
        const QString alert = waitForWindows(1, alertTitle).value(0);
        EXPECT_TRUE(waitUntil([&] { return activeWindow() == alert; }));
        waitForWindowsOf(0, QStringLiteral("novel.txt"));
    }

    /// Presses the second button of the alert, until the file chooser has the keyboard.
    static void chooseAnother()
    {
        press("Tab");
        press("Return");
        const QString chooser = waitForWindowsOf(1, QStringLiteral("Open")).value(0);
        EXPECT_TRUE(waitUntil([&] { return activeWindow() == chooser; }));
        saveScreenshot(QStringLiteral("watch-choose-another"));
    }
};

} // namespace

TEST_F(WatchFailureOnScreen, TheProgramStaysWhileItAsksAndEndsWithClose)
{
    lose();
    const pid_t process = provider();
    saveScreenshot(QStringLiteral("watch-failure-alert"));
    EXPECT_TRUE(isRunning(process));
    press("Return"); // Close is the usual answer
    waitForEnd(process);
}

TEST_F(WatchFailureOnScreen, AnotherFileIsFollowedWithoutAWindowUntilAskedForAgain)
{
    const QString other = writeFile(QStringLiteral("other.txt"), "Two words");
    lose();
    const pid_t process = provider();
    chooseAnother();
    TestDisplay::xdotool({QStringLiteral("type"), other});
    press("Return");
    waitForWindowsOf(0, QStringLiteral("Open"));
    EXPECT_EQ(provider(), process);
    EXPECT_EQ(watch({QFile::encodeName(other)}).exitStatus, 0);
    EXPECT_EQ(provider(), process);
    // The title is still the old one, and nothing is read yet.
    const QString window = waitForWindowsOf(1, QStringLiteral("novel.txt")).value(0);
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
    EXPECT_TRUE(shows(3));
    writeFile(QStringLiteral("other.txt"), "Now it has five words.");
    EXPECT_TRUE(shows(5));
}

TEST_F(WatchFailureOnScreen, CancellingTheChoiceEndsTheWatcher)
{
    lose();
    const pid_t process = provider();
    chooseAnother();
    press("Escape");
    waitForEnd(process);
}

TEST_F(WatchFailureOnScreen, ASpeechCommandThatIsMissingIsToldAndTheCountsGoOn)
{
    if (QFile::exists(QBYExtension::speechLaunchPath()))
        GTEST_SKIP() << "the system has the command";
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch(); // which would set it back
    QBYUserDefaultsController::setSayWordCountOutLoudOnSaveInWatchFileMode(true);
    EXPECT_EQ(watch({QFile::encodeName(m_novel)}).exitStatus, 0);
    const QString message = waitForWindows(1, alertTitle).value(0);
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == message; }));
    saveScreenshot(QStringLiteral("watch-speech-failure"));
    press("Return");
    waitForWindows(0, alertTitle);
    const QString window = waitForWindowsOf(1, QStringLiteral("novel.txt")).value(0);
    click(window, 4, 60);
    EXPECT_TRUE(shows(3));
}
