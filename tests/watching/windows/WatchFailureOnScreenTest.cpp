// SPDX-License-Identifier: MIT
// A watched file that has disappeared, on the screen: the alert and the choice of another file.
#include "speech/ApplicationExtension.h"
#include "tests/watching/windows/WatchOnScreen.h"

#include <QPlainTextEdit>

namespace {

const QString errorTitle = QStringLiteral("Quillbay");
constexpr std::chrono::milliseconds pauseOfUser{500};

/// The user's editor, with the focus.
class Editor {
public:
    Editor()
    {
        m_window.setWindowTitle(QStringLiteral("Editor"));
        m_window.setGeometry(20, 20, 400, 200);
        m_window.show();
        m_window.activateWindow();
        TestDisplay::xdotool({QStringLiteral("search"), QStringLiteral("--sync"),
            QStringLiteral("--onlyvisible"), QStringLiteral("--name"), QStringLiteral("^Editor")});
        EXPECT_TRUE(waitUntil([this] {
            if (!m_window.isActiveWindow())
                TestDisplay::xdotool({QStringLiteral("mousemove"), QStringLiteral("100"),
                    QStringLiteral("100"), QStringLiteral("click"), QStringLiteral("1")});
            return m_window.isActiveWindow();
        }));
    }
    [[nodiscard]] bool isActive() const { return m_window.isActiveWindow(); }
    [[nodiscard]] QString text() const { return m_window.toPlainText(); }
    void type(const QStringList &keys) const
    {
        TestDisplay::xdotool(QStringList{QStringLiteral("key")} + keys);
    }

private:
    QPlainTextEdit m_window;
};

QByteArray stateOf(const QString &window)
{
    return TestDisplay::outputOf(
        QStringLiteral("xprop"), {QStringLiteral("-id"), window, QStringLiteral("_NET_WM_STATE")});
}

class WatchFailureOnScreen : public WatchOnScreen {
protected:
    /// Deletes the watched file and returns its alert, which has the file's name as title.
    QString lose()
    {
        const QString window = open(m_novel, 3);
        return loseWatchedIn(window);
    }
    [[nodiscard]] QString loseWatchedIn(const QString &window) const
    {
        QFile::remove(m_novel);
        QStringList found;
        EXPECT_TRUE(waitUntil([&] {
            found = windowsOf(QStringLiteral("novel.txt"));
            return found.size() == 1 && found.front() != window;
        }));
        return found.value(0);
    }
    /// Activates the alert like a click on its title bar. Keys answer it after a second.
    static void activate(const QString &window)
    {
        EXPECT_TRUE(waitUntil([&] {
            if (activeWindow() != window)
                TestDisplay::xdotool({QStringLiteral("windowactivate"), window});
            return activeWindow() == window;
        }));
    }

    static bool isShown(const QString &window)
    {
        return TestDisplay::outputOf(
            QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST")})
            .contains(window.toLatin1());
    }
    /// Presses the key until the alert is closed: it ignores keys in its first second.
    static void answer(const QString &alert, const char *key)
    {
        activate(alert);
        EXPECT_TRUE(waitUntil([&] {
            const bool isThere = isShown(alert);
            if (isThere)
                press(key);
            return !isThere || waitUntil([&] { return !isShown(alert); }, pauseOfUser);
        }));
    }

    /// Presses the second button of the alert and waits until the file chooser has the focus.
    static void chooseAnother(const QString &alert)
    {
        answer(alert, "Escape");
        const QString chooser = waitForWindowsOf(1, QStringLiteral("Open")).value(0);
        EXPECT_TRUE(waitUntil([&] { return activeWindow() == chooser; }));
        saveScreenshot(QStringLiteral("watch-choose-another"));
    }
};

} // namespace

TEST_F(WatchFailureOnScreen, TheProgramStaysWhileItAsksAndEndsWithClose)
{
    const QString alert = lose();
    const pid_t process = provider();
    saveScreenshot(QStringLiteral("watch-failure-alert"));
    EXPECT_TRUE(isRunning(process));
    answer(alert, "Return"); // Close is the default answer
    waitForEnd(process);
}

TEST_F(WatchFailureOnScreen, AnotherFileIsFollowedWithoutAWindowUntilAskedForAgain)
{
    const QString other = writeFile(QStringLiteral("other.txt"), "Two words");
    const QString alert = lose();
    const pid_t process = provider();
    chooseAnother(alert);
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
    const QString alert = lose();
    const pid_t process = provider();
    chooseAnother(alert);
    press("Escape");
    waitForEnd(process);
}

TEST_F(WatchFailureOnScreen, AMissingSpeechCommandIsReportedAndTheCountsGoOn)
{
    if (QFile::exists(QBYExtension::speechLaunchPath()))
        GTEST_SKIP() << "the system has the command";
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch(); // otherwise the launch would reset
                                                                           // it
    QBYUserDefaultsController::setSayWordCountOutLoudOnSaveInWatchFileMode(true);
    EXPECT_EQ(watch({QFile::encodeName(m_novel)}).exitStatus, 0);
    const QString message = waitForWindows(1, errorTitle).value(0);
    saveScreenshot(QStringLiteral("watch-speech-failure"));
    answer(message, "Return");
    const QString window = waitForWindowsOf(1, QStringLiteral("novel.txt")).value(0);
    click(window, 4, 60);
    EXPECT_TRUE(shows(3));
}

TEST_F(WatchFailureOnScreen, TheAlertLeavesTheKeyboardToTheEditorAndDemandsAttention)
{
    const QString window = open(m_novel, 3);
    const pid_t process = provider();
    const Editor editor;
    const QString alert = loseWatchedIn(window);
    EXPECT_TRUE(waitUntil([&] { return stateOf(alert).contains("_NET_WM_STATE_DEMANDS_ATTENTION"); }))
        << stateOf(alert).toStdString();
    editor.type({QStringLiteral("a"), QStringLiteral("Return"), QStringLiteral("space"), QStringLiteral("b"),
        QStringLiteral("Return"), QStringLiteral("c")});
    EXPECT_TRUE(waitUntil([&] { return editor.text() == QStringLiteral("a\n b\nc"); }))
        << editor.text().toStdString();
    EXPECT_TRUE(editor.isActive());
    EXPECT_NE(activeWindow(), alert);
    EXPECT_TRUE(isShown(alert));
    EXPECT_TRUE(isRunning(process));
    saveScreenshot(QStringLiteral("watch-failure-beside-editor"));
}
