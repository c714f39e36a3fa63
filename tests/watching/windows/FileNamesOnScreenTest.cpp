// SPDX-License-Identifier: MIT
// Files with unusual names, from the command or a file manager's clipboard to the window.
#include "platform/system/FileURL.h"
#include "tests/watching/windows/WatchOnScreen.h"

#include <QMimeData>

namespace {

class FileNamesOnScreen : public WatchOnScreen {
protected:
    static QString titleOf(const QString &window)
    {
        return QString::fromUtf8(
            TestDisplay::outputOf(QStringLiteral("xdotool"), {QStringLiteral("getwindowname"), window}))
            .trimmed();
    }
};

} // namespace

TEST_F(FileNamesOnScreen, AFileWhoseNameIsNotUtf8IsWatchedAndFollowedToItsNextName)
{
    const QByteArray first = writeFileOfBytes("caf\xE9.txt", "One two three.\n");
    const QByteArray second = first.chopped(5) + "\xE8-new.txt";
    const ChildProcess::Outcome outcome = watch({first});
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.toStdString();
    const QString window = waitForWindowsOf(1, QStringLiteral("caf")).value(0);
    EXPECT_TRUE(titleOf(window).startsWith(QStringLiteral("caf\uFFFD.txt"))) << titleOf(window).toStdString();
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
    EXPECT_TRUE(shows(3));
    saveScreenshot(QStringLiteral("watch-window-name-not-utf8"));
    ASSERT_EQ(::rename(first.constData(), second.constData()), 0);
    EXPECT_TRUE(waitUntil([&] { return titleOf(window).startsWith(QStringLiteral("caf\uFFFD-new.txt")); }));
    writeFileOfBytes("caf\xE8-new.txt", "One two three four.\n");
    EXPECT_TRUE(shows(4));
    EXPECT_EQ(watch({second}).exitStatus, 0);
    EXPECT_EQ(windowsOf(QStringLiteral("caf")).size(), 1);
}

TEST_F(FileNamesOnScreen, AFileWhoseNameIsNotUtf8IsWatchedFromTheClipboard)
{
    const QByteArray url = fileURLOfPath(writeFileOfBytes("caf\xE9.txt", "One two three.\n")).toEncoded();
    auto copied = std::make_unique<QMimeData>();
    copied->setData(QStringLiteral("text/uri-list"), url + "\r\n");
    QGuiApplication::clipboard()->setMimeData(copied.release());
    QProcess command; // asynchronous: this process must process events meanwhile
    command.start(
        productProgram(QStringLiteral("quillbay")), {QStringLiteral("watch"), QStringLiteral("--clipboard")});
    EXPECT_TRUE(waitUntil([&] { return command.state() == QProcess::NotRunning; }));
    EXPECT_EQ(command.exitCode(), 0) << command.readAllStandardError().toStdString();
    // xdotool finds the character only in a UTF-8 locale.
    const QString window = waitForWindowsOf(1, QStringLiteral("caf")).value(0);
    EXPECT_TRUE(titleOf(window).startsWith(QStringLiteral("caf\uFFFD.txt"))) << titleOf(window).toStdString();
}

TEST_F(FileNamesOnScreen, NamesMayLookLikeUrlsAndOptions)
{
    QByteArrayList names;
    for (const char *const name :
        {"a#b.txt", "a?b.txt", "a%b.txt", "a%41.txt", "a\nb.txt", "-a.txt", "a&b;c.txt"}) {
        names.append(name);
        writeFileOfBytes(name, "One two three.\n");
    }
    ChildProcess command(productProgram(QStringLiteral("quillbay")));
    const ChildProcess::Outcome outcome = command.inFolder(world().root() + QStringLiteral("/files"))
                                              .run(QByteArrayList{"watch", "--"} + names);
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.toStdString();
    for (const char *const title : {"a#b.txt", "a?b.txt", "a%b.txt", "a%41.txt", "-a.txt", "a&b;c.txt"})
        waitForWindowsOf(1, QString::fromLatin1(title));
    const QString window = waitForWindowsOf(1, QStringLiteral("a\nb")).value(0);
    TestDisplay::xdotool({QStringLiteral("windowactivate"), window});
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
    EXPECT_TRUE(shows(3));
    saveScreenshot(QStringLiteral("watch-window-line-end-in-name"));
}
