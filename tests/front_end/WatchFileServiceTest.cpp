// SPDX-License-Identifier: MIT
// The delegate's service that watches files.
#include "front_end/QBYServiceProviderAppDelegate.h"

#include "platform/system/FileURL.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/session_bus/ServiceStandIn.h"
#include "tests/platform/views/FakeDesktop.h"
#include "tests/presentation/StatsPanel.h"

#include <QDir>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

const QString noWatchError = QStringLiteral("as before");
const QString noFiles = QStringLiteral("Quillbay failed to retrieve file urls.");
const QString noneAccepted = QStringLiteral("Quillbay failed to validate file urls.");

class WatchFileService : public QuillbayTest {
protected:
    WatchFileService() { preferOnly(everyStatistic); }

    /// The error that the service reports.
    QString ask(const Pasteboard &pasteboard)
    {
        QString error = noWatchError;
        delegate.watchTheTextFileService(pasteboard, QString(), &error);
        return error;
    }
    QString watch(const QStringList &paths)
    {
        QByteArray list;
        for (const QString &path : paths)
            list += QUrl::fromLocalFile(path).toEncoded() + "\r\n";
        return watchList(list);
    }
    QString watchList(const QByteArray &uriList)
    {
        return ask(Pasteboard({{QStringLiteral("text/uri-list"), uriList}}));
    }
    [[nodiscard]] QStringList watchedFiles() const
    {
        QStringList paths;
        for (const auto &watcher : delegate.watchTextFileControllers())
            paths.append(watcher->urlBeingWatched().toLocalFile());
        return paths;
    }
    static Window &windowOf(const WatchTextFileMenuBarController &watcher)
    {
        return *watcher.detachableWindowForPopover();
    }

    ServiceStandIn service{WordCounterServiceProtocol::serviceName(), {"answer 1 2 3 4 5 6 7 8"}};
    RecordingLogSink log;
    FakeDesktop desktop;
    ApplicationActivity activity{true};
    QBYServiceProviderAppDelegate delegate{{desktop, activity}, [](ServicesProvider &) {}};
    const QString novel = writeFile(QStringLiteral("novel.txt"), "Once upon a time.");
    const QString letter = writeFile(QStringLiteral("letter.rtf"), "{\\rtf1 Dear all,}");
    const QString image = writeFile(QStringLiteral("picture.png"), "\x89PNG\r\n\x1a\n");
};

} // namespace

TEST_F(WatchFileService, OpensAWindowForEachFileInTheirOrder)
{
    EXPECT_EQ(watch({novel, letter}), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(novel, letter));
    for (const auto &watcher : delegate.watchTextFileControllers()) {
        EXPECT_TRUE(windowOf(*watcher).isVisible());
        EXPECT_FALSE(watcher->showsCloseButton());
        EXPECT_FALSE(watcher->popover());
        EXPECT_EQ(watcher->delegate(), &delegate);
        EXPECT_TRUE(watcher->watchFileModel()->isWatchingTextFile());
    }
    EXPECT_TRUE(delegate.isInUse());
}

TEST_F(WatchFileService, AcceptsTheFourKinds)
{
    const QString word = writeFile(QStringLiteral("report.docx"), "PK");
    const QString package = world().root() + QStringLiteral("/files/notes.rtfd");
    ASSERT_TRUE(QDir().mkpath(package));
    writeFile(QStringLiteral("notes.rtfd/TXT.rtf"), "{\\rtf1 Notes}");
    const QString page = writeFile(QStringLiteral("page.html"), "<p>Page");
    EXPECT_EQ(watch({letter, package, novel, page, word}), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(letter, package, novel, page, word));
}

TEST_F(WatchFileService, ReportsARequestWithoutFiles)
{
    for (const QByteArray list : {"", "# only a comment\r\n", "https://example.com/novel.txt\r\n",
             "sftp://server/novel.txt\r\nhttp://example.com/", "novel.txt\r\n",
             "file://server/share/novel.txt"})
        EXPECT_EQ(watchList(list), noFiles) << list.constData();
    EXPECT_EQ(ask(Pasteboard()), noFiles);
    EXPECT_EQ(ask(Pasteboard({{QStringLiteral("text/plain"), novel.toUtf8()}})), noFiles);
    EXPECT_THAT(delegate.watchTextFileControllers(), IsEmpty());
    EXPECT_EQ(desktop.numberOnScreen, 0);
}

TEST_F(WatchFileService, ReportsARequestWithoutAcceptedFiles)
{
    EXPECT_EQ(watch({image}), noneAccepted);
    EXPECT_EQ(watch({image, world().root(), novel + QStringLiteral(".missing.txt")}), noneAccepted);
    EXPECT_FALSE(delegate.isInUse());
}

TEST_F(WatchFileService, IgnoresFilesThatAreNotAccepted)
{
    EXPECT_EQ(watch({image, novel, world().root()}), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(novel));
    EXPECT_EQ(
        watchList("https://example.com/a.txt\r\n" + QUrl::fromLocalFile(letter).toEncoded()), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(novel, letter));
}

TEST_F(WatchFileService, TheErrorMayBeIgnored)
{
    delegate.watchTheTextFileService(Pasteboard(), QString(), nullptr);
    delegate.watchTheTextFileService(
        Pasteboard({{QStringLiteral("text/uri-list"), QUrl::fromLocalFile(image).toEncoded()}}), QString(),
        nullptr);
    EXPECT_FALSE(delegate.isInUse());
}

TEST_F(WatchFileService, BringsTheWindowOfAWatchedFileToTheFront)
{
    watch({novel, letter});
    const auto watcher = delegate.watchTextFileControllers().front();
    Window &window = windowOf(*watcher);
    window.close();
    int shown = 0;
    QObject::connect(&window, &Window::orderedFront, &window, [&] { ++shown; });
    EXPECT_EQ(watch({novel}), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(novel, letter));
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(WatchFileService, AFileNamedTwiceInOneRequestHasOneWatcher)
{
    EXPECT_EQ(watch({novel, letter, novel}), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(novel, letter));
}

TEST_F(WatchFileService, AFolderIsTheSameWithATrailingSlash)
{
    const QString folder = writeFile(QStringLiteral("novel.rtfd/TXT.rtf"), "{\\rtf1 one}").chopped(8);
    EXPECT_EQ(watch({folder + u'/', folder, folder + u'/'}), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(folder));
}

TEST_F(WatchFileService, AFileIsTheSameInEverySpellingOfItsURL)
{
    const QString path = writeFile(QStringLiteral("one & two ü.txt"), "One");
    watch({path});
    const QByteArray folder = QUrl::fromLocalFile(path).toEncoded().chopped(
        static_cast<qsizetype>(qstrlen("one%20&%20two%20%C3%BC.txt")));
    EXPECT_EQ(watchList(folder + "one%20%26%20two%20%c3%bc.txt"), noWatchError);
    EXPECT_EQ(watchList("file://localhost" + folder.mid(7) + "%6Fne%20&%20two%20%C3%BC.txt"), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(path));
}

TEST_F(WatchFileService, AFileReachedByAnotherPathHasASecondWatcher)
{
    const QString link = world().root() + QStringLiteral("/files/link.txt");
    ASSERT_TRUE(QFile::link(novel, link));
    const QString detour = world().root() + QStringLiteral("/files/../files/novel.txt");
    EXPECT_EQ(watch({novel, link, detour}), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(novel, link, detour));
}

TEST_F(WatchFileService, ReadsTheListsOfFileManagers)
{
    EXPECT_EQ(ask(Pasteboard({{QStringLiteral("x-special/gnome-copied-files"),
                  "copy\n" + QUrl::fromLocalFile(novel).toEncoded()}})),
        noWatchError);
    EXPECT_EQ(ask(Pasteboard(
                  {{QStringLiteral("application/x-kde4-urilist"), QUrl::fromLocalFile(letter).toEncoded()}})),
        noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(novel, letter));
}

TEST_F(WatchFileService, AFinishedWatcherIsDroppedAndItsFileGetsANewOne)
{
    watch({novel, letter});
    int endings = 0;
    delegate.setFinishedHandler([&] { ++endings; });
    const std::weak_ptr<WatchTextFileMenuBarController> first = delegate.watchTextFileControllers().front();
    first.lock()->watchTextFileViewControllerForPopover()->stopButton()->performClick();
    EXPECT_TRUE(first.expired());
    EXPECT_EQ(endings, 1);
    EXPECT_THAT(watchedFiles(), ElementsAre(letter));
    EXPECT_EQ(watch({novel}), noWatchError);
    EXPECT_THAT(watchedFiles(), ElementsAre(letter, novel));
}

TEST_F(WatchFileService, FollowsARenamedFileUnderItsNewName)
{
    watch({novel});
    const QString book = world().root() + QStringLiteral("/files/book.txt");
    ASSERT_TRUE(QFile::rename(novel, book));
    EXPECT_TRUE(waitUntil([&] { return watchedFiles() == QStringList{book}; }));
    EXPECT_EQ(watch({book}), noWatchError);
    EXPECT_THAT(delegate.watchTextFileControllers(), SizeIs(1));
}

TEST_F(WatchFileService, AHundredFilesAreFollowedByAHundredWatchers)
{
    QStringList paths;
    for (int i = 0; i < 100; ++i)
        paths.append(writeFile(QStringLiteral("chapter%1.txt").arg(i), "Once"));
    EXPECT_EQ(watch(paths), noWatchError);
    ASSERT_EQ(watchedFiles(), paths);
    service.waitForRequests(100);
    const auto allRest = [this] {
        return std::ranges::none_of(delegate.watchTextFileControllers(), [](const auto &watcher) {
            return watcher->watchTextFileViewControllerForPopover()
                ->wordCounterViewController()
                ->isAsyncCountOperationInProgress();
        });
    };
    EXPECT_TRUE(waitUntil(allRest));
    for (const QString &path : paths) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("Once upon a time");
    }
    service.waitForRequests(200);
    EXPECT_TRUE(waitUntil(allRest));
    EXPECT_THAT(desktop.notes, IsEmpty());
}

TEST_F(WatchFileService, AFileWhoseNameIsNotUtf8IsWatchedOnce)
{
    const QByteArray url = fileURLOfPath(writeFileOfBytes("caf\xE9.txt", "One two.")).toEncoded();
    EXPECT_THAT(url.toStdString(), testing::EndsWith("/caf%E9.txt"));
    EXPECT_EQ(watchList(url + "\r\n" + QByteArray(url).replace("%E9", "\xE9") + "\r\n"), noWatchError);
    ASSERT_THAT(delegate.watchTextFileControllers(), SizeIs(1));
    const auto &watcher = delegate.watchTextFileControllers().front();
    EXPECT_EQ(watcher->urlBeingWatched().toEncoded(), url);
    EXPECT_TRUE(watcher->watchFileModel()->isWatchingTextFile());
}
