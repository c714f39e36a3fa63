// SPDX-License-Identifier: MIT
// The window of a watched file on the screen: real saves, clicks and keys.
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/harness/FakePortal.h"
#include "tests/watching/windows/WatchOnScreen.h"

#include <QDir>
#include <QMimeData>

using ::testing::HasSubstr;

namespace {

constexpr uint darkScheme = 1;
constexpr uint lightScheme = 2;

/// Runs a shell command in the folder of the test's files.
void shell(const QByteArray &command)
{
    QProcess process;
    process.setWorkingDirectory(TestHome::instance().root() + QStringLiteral("/files"));
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), QString::fromUtf8(command)});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
}

class WatchWindowOnScreen : public WatchOnScreen { };

} // namespace

TEST_F(WatchWindowOnScreen, FollowsEverySaveOfRealPrograms)
{
    open(m_novel, 3);
    shell("printf 'one two three four' > novel.txt");
    EXPECT_TRUE(shows(4));
    shell("printf 'one two three four five' > new && mv new novel.txt");
    EXPECT_TRUE(shows(5));
    shell("sed -i 's/five/five six/' novel.txt");
    EXPECT_TRUE(shows(6));
    shell("printf 'a\\nseven eight\\n.\\nw\\nq\\n' | ed -s novel.txt > /dev/null");
    EXPECT_TRUE(shows(8));
    shell("vim.tiny -es -u NONE -c 'normal Gonine' -c wq novel.txt");
    EXPECT_TRUE(shows(9));
}

TEST_F(WatchWindowOnScreen, FloatsWithoutATitleBarInTheMiddleAndTakesTheKeyboard)
{
    const OtherWindow document;
    const QString window = open(m_novel, 3);
    const QByteArray state = TestDisplay::outputOf(QStringLiteral("xprop"), {QStringLiteral("-id"), window});
    EXPECT_THAT(state.toStdString(), HasSubstr("_NET_WM_STATE_ABOVE"));
    EXPECT_THAT(state.toStdString(), HasSubstr("_NET_FRAME_EXTENTS(CARDINAL) = 0, 0, 0, 0"));
    const QRect rect = rectOf(window);
    EXPECT_NEAR(rect.center().x(), 640, 1);
    EXPECT_NEAR(rect.center().y(), 400, 1);
}

TEST_F(WatchWindowOnScreen, IsShownInTheMiddleAgainWhenAskedForAgain)
{
    const QString window = open(m_novel, 3);
    const QRect middle = rectOf(window);
    drag(window, QPoint(10, 60));
    EXPECT_TRUE(waitUntil([&] { return rectOf(window).x() > middle.x() + 50; }));
    EXPECT_EQ(rectOf(window).size(), middle.size());
    EXPECT_EQ(watch({QFile::encodeName(m_novel)}).exitStatus, 0);
    EXPECT_TRUE(waitUntil([&] { return rectOf(window) == middle; }));
    EXPECT_EQ(windowsOf(QStringLiteral("novel.txt")).size(), 1);
}

TEST_F(WatchWindowOnScreen, StopEndsTheProgramWithItsLastWindow)
{
    const QString other = writeFile(QStringLiteral("other.txt"), "Two words");
    const QString first = open(m_novel, 3);
    const QRect rect = rectOf(first);
    const pid_t process = provider();
    // The second one is wanted in the same place, and shifted so that both are visible.
    const QString second = open(other, 2);
    EXPECT_EQ(rectOf(second).topLeft(), rect.topLeft() + QPoint(32, 32));
    clickStop(second);
    waitForWindowsOf(0, QStringLiteral("other.txt"));
    EXPECT_EQ(provider(), process);
    clickStop(first);
    waitForWindowsOf(0, QStringLiteral("novel.txt"));
    waitForEnd(process);
}

TEST_F(WatchWindowOnScreen, ASpaceTypedForAnotherWindowDoesNotEndTheWatch)
{
    open(m_novel, 3);
    press("space");
    press("Return");
    EXPECT_TRUE(shows(3)); // handled after the other keys
    press("Tab");
    press("space");
    waitForWindowsOf(0, QStringLiteral("novel.txt"));
}

TEST_F(WatchWindowOnScreen, ThereIsNoCloseButtonAndTheKeysForClosingStop)
{
    for (const char *const key : {"Escape", "ctrl+w", "alt+F4"}) {
        const QString window = open(m_novel, 3);
        const pid_t process = provider();
        click(window, rectOf(window).width() - 10, 10); // the place of a hidden button
        EXPECT_TRUE(shows(3));
        EXPECT_TRUE(waitUntil([&] {
            const QStringList shown = windowsOf(QStringLiteral("novel.txt"));
            if (!shown.isEmpty())
                press(key);
            return shown.isEmpty();
        })) << key;
        waitForEnd(process);
    }
}

TEST_F(WatchWindowOnScreen, ARenamedFileIsFollowedUnderItsNewTitle)
{
    const QString window = open(m_novel, 3);
    shell("mv novel.txt book.txt");
    EXPECT_EQ(waitForWindowsOf(1, QStringLiteral("book.txt")), QStringList{window});
    shell("echo four >> book.txt");
    EXPECT_TRUE(shows(4));
}

TEST_F(WatchWindowOnScreen, FollowsSavesWhileTheUserWorksElsewhere)
{
    const OtherWindow document;
    const QString window = open(m_novel, 3);
    document.click();
    shell("echo four five >> novel.txt");
    const QRect rect = rectOf(window);
    // Not at a label, where a press starts a drag.
    TestDisplay::xdotool({QStringLiteral("mousemove"), QString::number(rect.x() + 4),
        QString::number(rect.y() + 60), QStringLiteral("click"), QStringLiteral("1")});
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
    EXPECT_TRUE(shows(5));
}

TEST_F(WatchWindowOnScreen, RelativePathsAndManyFilesAreWatched)
{
    writeFile(QStringLiteral("second file.txt"), "Two words");
    ChildProcess command(productProgram(QStringLiteral("quillbay")));
    const ChildProcess::Outcome outcome =
        command.inFolder(world().root() + QStringLiteral("/files"))
            .run({"watch", "novel.txt", "./second file.txt", "../files//./novel.txt"});
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.toStdString();
    waitForWindowsOf(1, QStringLiteral("second file.txt"));
    // ".." is resolved by the file system only: another path means another watcher.
    waitForWindowsOf(2, QStringLiteral("novel.txt"));
}

TEST_F(WatchWindowOnScreen, AHundredFilesOpenAHundredWindows)
{
    QByteArrayList files;
    for (int i = 1; i <= 100; ++i)
        files.append(QFile::encodeName(writeFile(QStringLiteral("chapter%1.txt").arg(i), "One two three.")));
    const ChildProcess::Outcome outcome = watch(files);
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.toStdString();
    waitForWindowsOf(100, QStringLiteral("chapter"));
    const QString last = windowsOf(QStringLiteral("chapter100.txt")).value(0);
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == last; }));
    EXPECT_TRUE(shows(3));
    writeFile(QStringLiteral("chapter100.txt"), "Now it has five words.");
    EXPECT_TRUE(shows(5));
}

TEST_F(WatchWindowOnScreen, FilesThatWereCopiedInAFileManagerAreWatched)
{
    const ChildProcess::Outcome outcome = watch({"--clipboard", QFile::encodeName(m_novel)});
    EXPECT_EQ(outcome.exitStatus, 2);
    auto copied = std::make_unique<QMimeData>();
    copied->setData(
        QStringLiteral("x-special/gnome-copied-files"), "copy\n" + QUrl::fromLocalFile(m_novel).toEncoded());
    QGuiApplication::clipboard()->setMimeData(copied.release());
    // This process provides the files, so it must process events.
    QProcess command;
    command.start(
        productProgram(QStringLiteral("quillbay")), {QStringLiteral("watch"), QStringLiteral("--clipboard")});
    EXPECT_TRUE(waitUntil([&] { return command.state() == QProcess::NotRunning; }));
    EXPECT_EQ(command.exitCode(), 0) << command.readAllStandardError().toStdString();
    waitForWindowsOf(1, QStringLiteral("novel.txt"));
}

TEST_F(WatchWindowOnScreen, TheCommandReportsFilesThatCannotBeWatched)
{
    ChildProcess::Outcome outcome = watch({});
    EXPECT_EQ(outcome.exitStatus, 2);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("no file given"));
    outcome = watch({"/nonexistent/novel.txt"});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors, "quillbay: /nonexistent/novel.txt: no such file\n");
    EXPECT_EQ(provider(), 0);
    const QString image =
        writeFile(QStringLiteral("picture.txt"), QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1", 20));
    outcome = watch({QFile::encodeName(image)});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors, "quillbay: " + QFile::encodeName(image) + ": is a PNG image, not a text\n");
    EXPECT_EQ(provider(), 0);
    outcome = watch({"/nonexistent/novel.txt", QFile::encodeName(m_novel)});
    EXPECT_EQ(outcome.exitStatus, 1);
    waitForWindowsOf(1, QStringLiteral("novel.txt"));
}

TEST_F(WatchWindowOnScreen, APdfFileAndATextWithoutATypeAreFollowed)
{
    const QString paper = writeFile(QStringLiteral("paper.pdf"), PdfWriter{{"One two"}}.bytes());
    open(paper, 2);
    writeFile(QStringLiteral("paper.pdf"), PdfWriter{{"One two three four"}}.bytes());
    EXPECT_TRUE(shows(4));
    const QString license = writeFile(QStringLiteral("LICENSE"), "You may use it.");
    open(license, 4);
    writeFile(QStringLiteral("LICENSE"), "You may copy and use it.");
    EXPECT_TRUE(shows(6));
}

TEST_F(WatchWindowOnScreen, LooksAsTheDesktopDoes)
{
    for (const uint scheme : {lightScheme, darkScheme}) {
        const FakePortal portal(scheme);
        const QString window = open(m_novel, 3);
        const QString name =
            scheme == darkScheme ? QStringLiteral("watch-window-dark") : QStringLiteral("watch-window-light");
        // The window may be open before it is painted.
        EXPECT_TRUE(waitUntil([&] {
            const QColor pixel = saveScreenshot(name).pixelColor(rectOf(window).topLeft() + QPoint(3, 60));
            return (pixel.lightness() < 128) == (scheme == darkScheme);
        }));
        clickStop(window);
        EXPECT_TRUE(waitUntil([this] { return provider() == 0; }));
    }
}
