// SPDX-License-Identifier: MIT
// A watcher and its document: the first read, the counts after each save, the title.
#include "tests/documents/loading/ReaderPrograms.h"
#include "tests/watching/windows/WatcherTest.h"

#include <QCryptographicHash>

#include <csignal>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using namespace std::chrono_literals;

using WatchingTest = WatcherTest;

TEST_F(WatchingTest, ReadsCountsAndFollowsTheDocument)
{
    serve({"answer 3 2 3 4 5 6 7 8"});
    Controller &watcher = makeWindowForm();
    EXPECT_FALSE(watcher.watchFileModel());
    EXPECT_EQ(watcher.urlBeingWatched(), QUrl());
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    EXPECT_TRUE(watcher.watchFileModel()->isWatchingTextFile());
    EXPECT_EQ(watcher.watchFileModel()->delegate(), &watcher);
    EXPECT_EQ(watcher.urlBeingWatched(), QUrl::fromLocalFile(m_path));
    EXPECT_TRUE(statisticsOf(watcher).isAsyncCountOperationInProgress());
    waitForCount(watcher);
    EXPECT_EQ(wordsOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("•Words: 3"));
    EXPECT_THAT(m_log.messages(LogLevel::Error), IsEmpty());
}

TEST_F(WatchingTest, ScreenReadersReadTheCountsOfTheRequestAndNoneOfASave)
{
    serve({"answer 3 2 3 4 5 6 7 8", "answer 4 2 3 4 5 6 7 8"});
    Controller &watcher = makeWindowForm();
    const Window &window = *watcher.detachableWindowForPopover();
    QStringList announced;
    QObject::connect(
        &window, &Window::announced, &window, [&] { announced.append(window.accessibleDescription()); });
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    waitForCount(watcher);
    ASSERT_THAT(announced, SizeIs(1));
    EXPECT_TRUE(announced.constFirst().startsWith(QStringLiteral("Words: 3")));
    writeFile(QStringLiteral("novel.txt"), "Another text");
    pass();
    m_service->waitForRequests(2);
    waitForCount(watcher);
    EXPECT_TRUE(window.accessibleDescription().startsWith(QStringLiteral("Words: 4")));
    EXPECT_THAT(announced, SizeIs(1));
}

TEST_F(WatchingTest, ALargeDocumentIsReadBehindTheWindow)
{
    serve({"answer 3 2 3 4 5 6 7 8"});
    Controller &watcher = makeWindowForm();
    const QString path = writeFile(QStringLiteral("large.html"),
        "<!DOCTYPE html>" + QByteArray("<p class='a'>and <b>more</b></p>").repeated(50'000));
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(path));
    EXPECT_TRUE(watcher.watchFileModel()->isWatchingTextFile());
    const WatchTextFileViewController &panel = *watcher.watchTextFileViewControllerForPopover();
    EXPECT_TRUE(panel.spinActivityIndicator());
    EXPECT_FALSE(statisticsOf(watcher).isAsyncCountOperationInProgress());
    m_service->waitForRequests(1);
    waitForCount(watcher);
    EXPECT_FALSE(panel.spinActivityIndicator());
    EXPECT_EQ(wordsOf(panel), QStringLiteral("•Words: 3"));
}

TEST_F(WatchingTest, AWatcherThatStopsEndsItsFirstRead)
{
    Controller &watcher = makeWindowForm();
    const QString path = writeFile(QStringLiteral("slow.html"), slowPage());
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(path));
    const pid_t reader = readerAtWork();
    ASSERT_NE(reader, 0);
    ASSERT_EQ(::kill(reader, SIGSTOP), 0); // it cannot exit by itself
    const auto self = watcher.shared_from_this();
    watcher.watchTextFileViewControllerRequestedStop(nullptr);
    EXPECT_TRUE(waitUntilEnded(reader));
}

TEST_F(WatchingTest, AWatcherThatStopsLeavesItsCountToNobody)
{
    serve({"hold"});
    Controller &watcher = makeWindowForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    m_service->waitForRequests(1);
    const QString client = m_service->requests().front().client;
    const auto self = watcher.shared_from_this();
    watcher.watchTextFileViewControllerRequestedStop(nullptr);
    EXPECT_FALSE(statisticsOf(watcher).isAsyncCountOperationInProgress());
    EXPECT_TRUE(waitUntil([&] { return !m_service->isOnTheBus(client); }));
}

TEST_F(WatchingTest, EverySaveIsCounted)
{
    serve({"answer 1 0 0 0 0 0 0 0", "answer 2 0 0 0 0 0 0 0", "answer 3 0 0 0 0 0 0 0"});
    const Controller &watcher = watch(m_path);
    for (int save = 2; save <= 3; ++save) {
        writeFile(QStringLiteral("novel.txt"), QByteArray("word ").repeated(save));
        pass();
        m_service->waitForRequests(static_cast<size_t>(save));
        waitForCount(watcher);
        EXPECT_EQ(wordsOf(*watcher.watchTextFileViewControllerForPopover()),
            QStringLiteral("•Words: %1").arg(save));
    }
}

TEST_F(WatchingTest, ASaveDuringACountIsShownAfterTheNextPoll)
{
    serve({"hold", "answer 9 0 0 0 0 0 0 0"});
    Controller &watcher = makeWindowForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    m_service->waitForRequests(1);
    writeFile(QStringLiteral("novel.txt"), "another");
    pass();
    m_service->release();
    waitForCount(watcher);
    EXPECT_THAT(m_service->requests(), SizeIs(1)) << "the save was dropped";
    EXPECT_EQ(wordsOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("•Words: 1"));
    m_activity.setActive(false);
    pass(WatchTextFileModel::pollInterval);
    m_service->waitForRequests(2);
    waitForCount(watcher);
    EXPECT_EQ(wordsOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("•Words: 9"));
}

TEST_F(WatchingTest, AWordDocumentIsHandedToTheServiceAsItIs)
{
    serve({"answer 7 0 0 0 0 0 0 0"});
    const QByteArray bytes("PK no real document");
    const QString path = writeFile(QStringLiteral("novel.docx"), bytes);
    const Controller &watcher = watch(path);
    EXPECT_EQ(wordsOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("•Words: 7"));
    EXPECT_TRUE(watcher.watchFileModel()->isPresentedItemDocXFile());
    writeFile(QStringLiteral("novel.docx"), bytes + bytes);
    pass();
    m_service->waitForRequests(2);
    const auto requests = m_service->requests();
    EXPECT_EQ(requests[0].method, QStringLiteral("countWordsForDocX"));
    EXPECT_EQ(requests[1].method, QStringLiteral("countWordsForDocX"));
    const auto hashOf = [](const QByteArray &data) {
        return QCryptographicHash::hash(data, QCryptographicHash::Sha1).toHex();
    };
    EXPECT_EQ(requests[0].hash, hashOf(bytes));
    EXPECT_EQ(requests[1].hash, hashOf(bytes + bytes));
}

TEST_F(WatchingTest, ASaveOfAWordDocumentDuringACountIsReportedAgainAfterwards)
{
    serve({"hold", "hold", "answer 9 0 0 0 0 0 0 0"});
    const QString path = writeFile(QStringLiteral("novel.docx"), "PK 1");
    Controller &watcher = makeWindowForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(path));
    for (size_t held = 1; held <= 2; ++held) {
        m_service->waitForRequests(held);
        for (const char *contents : {"PK again", "PK and again"}) {
            writeFile(QStringLiteral("novel.docx"), contents);
            pass();
        }
        EXPECT_THAT(m_service->requests(), SizeIs(held)) << "the saves were dropped";
        m_service->release();
        waitForCount(watcher);
        EXPECT_THAT(m_service->requests(), SizeIs(held)) << "nothing was queued";
        pass();
    }
    m_service->waitForRequests(3);
    waitForCount(watcher);
    EXPECT_EQ(wordsOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("•Words: 9"));
    pass(10s);
    EXPECT_THAT(m_service->requests(), SizeIs(3));
    EXPECT_EQ(m_clock.runningTimers(), 0) << "nothing is polled";
}

TEST_F(WatchingTest, ADroppedSaveIsNotReportedForAnotherDocument)
{
    serve({"hold", "answer 9 0 0 0 0 0 0 0"});
    Controller &watcher = makeWindowForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(writeFile(QStringLiteral("novel.docx"), "PK")));
    m_service->waitForRequests(1);
    writeFile(QStringLiteral("novel.docx"), "PK again");
    pass();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    m_service->release();
    waitForCount(watcher);
    pass();
    EXPECT_THAT(m_service->requests(), SizeIs(1));
    EXPECT_FALSE(statisticsOf(watcher).isAsyncCountOperationInProgress());
}

TEST_F(WatchingTest, AFolderWithASlashAtItsEndIsTheFolder)
{
    serve({"answer 1 0 0 0 0 0 0 0"});
    const QString text = writeFile(QStringLiteral("novel.rtfd/TXT.rtf"), "{\\rtf1 one}");
    const Controller &watcher = watch(text.chopped(7)); // up to the slash
    EXPECT_EQ(titleOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("novel.rtfd"));
    EXPECT_EQ(watcher.detachableWindowForPopover()->title(), QStringLiteral("novel.rtfd"));
    EXPECT_EQ(watcher.urlBeingWatched(), QUrl::fromLocalFile(text.chopped(8)));
}

TEST_F(WatchingTest, AFirstReadThatFailsIsLoggedAndTheDocumentFollowedAllTheSame)
{
    serve({"answer 4 0 0 0 0 0 0 0"});
    const QString path = writeFile(QStringLiteral("late.txt"), {});
    QFile::remove(path);
    Controller &watcher = makeWindowForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(path));
    ASSERT_THAT(m_log.messages(LogLevel::Error), ::testing::Not(IsEmpty()));
    const LogRecord first = m_log.records().front();
    EXPECT_EQ(first.level, LogLevel::Error);
    EXPECT_EQ(first.category, LogChannel::standard().category());
    EXPECT_TRUE(first.message.startsWith(QStringLiteral("Error loading attributed string ")))
        << first.message.toStdString();
    EXPECT_FALSE(first.message.contains(QStringLiteral("<private>")));
    EXPECT_TRUE(watcher.watchFileModel()->isWatchingTextFile());
    EXPECT_EQ(titleOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("late.txt"));
    EXPECT_FALSE(statisticsOf(watcher).isAsyncCountOperationInProgress());
    EXPECT_THAT(m_desktop.notes, IsEmpty());
    writeFile(QStringLiteral("late.txt"), "Now it is here.");
    pass();
    waitForCount(watcher);
    EXPECT_EQ(wordsOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("•Words: 4"));
}

TEST_F(WatchingTest, AWatcherThatIsGivenAnotherDocumentReadsAndFollowsThatOne)
{
    serve({"answer 1 0 0 0 0 0 0 0", "answer 2 0 0 0 0 0 0 0"});
    Controller &watcher = watch(m_path);
    const WatchTextFileModel *const model = watcher.watchFileModel();
    const QString other = writeFile(QStringLiteral("other.txt"), "Two words");
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(other));
    waitForCount(watcher);
    EXPECT_EQ(watcher.watchFileModel(), model);
    EXPECT_EQ(watcher.urlBeingWatched(), QUrl::fromLocalFile(other));
    EXPECT_TRUE(model->isWatchingTextFile());
    EXPECT_EQ(titleOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("other.txt"));
    EXPECT_EQ(wordsOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("•Words: 2"));
}

TEST_F(WatchingTest, TheTitleFollowsTheName)
{
    serve({"answer 1 0 0 0 0 0 0 0"});
    Controller &watcher = watch(m_path);
    EXPECT_EQ(titleOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("novel.txt"));
    EXPECT_EQ(watcher.detachableWindowForPopover()->title(), QStringLiteral("novel.txt"));
    ASSERT_TRUE(QFile::rename(m_path, pathOf(QStringLiteral("book.txt"))));
    EXPECT_TRUE(waitUntil([&] {
        m_clock.advance(std::chrono::milliseconds(100));
        return titleOf(*watcher.watchTextFileViewControllerForPopover()) == QStringLiteral("book.txt");
    }));
    EXPECT_EQ(watcher.detachableWindowForPopover()->title(), QStringLiteral("book.txt"));
    EXPECT_EQ(watcher.urlBeingWatched(), QUrl::fromLocalFile(pathOf(QStringLiteral("book.txt"))));
    EXPECT_TRUE(watcher.watchFileModel()->isWatchingTextFile());
    EXPECT_THAT(m_service->requests(), SizeIs(1)) << "a new name is nothing to count";
}

TEST_F(WatchingTest, AWatcherThatHasGoneShowsAndSpeaksNothing)
{
    serve({"hold"});
    const QString notes = pathOf(QStringLiteral("spoken"));
    speakInto(notes);
    Controller &watcher = makeWindowForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    m_service->waitForRequests(1);
    const auto panel = watcher.watchTextFileViewControllerForPopover();
    m_registry.watchers.clear();
    m_service->release();
    EXPECT_TRUE(
        waitUntil([&] { return !panel->wordCounterViewController()->isAsyncCountOperationInProgress(); }));
    EXPECT_FALSE(QFile::exists(notes));
}
