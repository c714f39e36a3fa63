// SPDX-License-Identifier: MIT
// When the model reads, and what it reports and logs.
#include "platform/system/MainQueue.h"
#include "tests/documents/loading/ReaderPrograms.h"
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/watching/WatchedFileTest.h"

#include <QFile>

#include <csignal>

#include <sys/file.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

using WatchTextFileModelTest = WatchedFileTest;

TEST_F(WatchTextFileModelTest, AFreshModelNeitherWatchesNorReads)
{
    const auto model = makeModel(m_path);
    EXPECT_THAT(takeLog(), ElementsAre(QStringLiteral("debug Started accessing the bookmark.")));
    EXPECT_FALSE(model->isWatchingTextFile());
    EXPECT_TRUE(model->isTextFileReadable());
    EXPECT_FALSE(model->isPresentedItemDocXFile());
    EXPECT_EQ(model->presentedItemURL(), QUrl::fromLocalFile(m_path));
    EXPECT_EQ(model->delegate(), &m_delegate);
    model->forceRead(nullptr);
    model->presentedItemDidChange();
    writeFile(QStringLiteral("f.txt"), "after");
    pass(1s);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(WatchTextFileModelTest, DoesNotReadWhenItBegins)
{
    const auto model = watch(m_path);
    pass(10s);
    EXPECT_TRUE(model->isWatchingTextFile());
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
}

TEST_F(WatchTextFileModelTest, AForcedReadReportsBeforeItReturns)
{
    const auto model = watch(m_path);
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text before")));
}

TEST_F(WatchTextFileModelTest, EveryChangeIsReadAndReported)
{
    const auto model = watch(m_path);
    writeFile(QStringLiteral("f.txt"), "one");
    pass(100ms);
    writeFile(QStringLiteral("g.txt"), "two");
    ASSERT_EQ(::rename(QFile::encodeName(pathOf(QStringLiteral("g.txt"))).constData(),
                  QFile::encodeName(m_path).constData()),
        0);
    pass(100ms);
    EXPECT_THAT(
        m_delegate.takeMessages(), ElementsAre(QStringLiteral("text one"), QStringLiteral("text two")));
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(WatchTextFileModelTest, RichTextIsReadAsSuch)
{
    const auto model = watch(writeFile(QStringLiteral("f.rtf"), "{\\rtf1 rich}"));
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text rich")));
}

// What takes seconds to read.
const QByteArray largePage =
    "<!DOCTYPE html><p>first</p>" + QByteArray("<p class='a'>and <b>more</b></p>").repeated(50'000);

TEST_F(WatchTextFileModelTest, TheEventLoopRunsWhileALargeDocumentIsRead)
{
    const auto model = watch(writeFile(QStringLiteral("f.html"), largePage));
    bool hasRun = false;
    MainQueue::async([&] {
        hasRun = true;
        model->forceRead(nullptr); // one read at a time
        EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    });
    model->forceRead(nullptr);
    EXPECT_TRUE(hasRun);
    EXPECT_THAT(m_delegate.takeMessages(), testing::SizeIs(1));
    EXPECT_TRUE(m_delegate.lastText().string().startsWith(QStringLiteral("first")));
}

TEST_F(WatchTextFileModelTest, AReadIsDroppedWhenTheModelStopsOrTurnsToAnotherDocumentMeanwhile)
{
    const QString page = writeFile(QStringLiteral("f.html"), largePage);
    const auto model = watch(page);
    MainQueue::async([&] { model->setTextFileURLToWatch(QUrl::fromLocalFile(m_path), true); });
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    EXPECT_TRUE(model->isWatchingTextFile());

    const auto second = watch(writeFile(QStringLiteral("slow.html"), slowPage()));
    MainQueue::async([&] {
        const pid_t reader = readerAtWork();
        EXPECT_NE(reader, 0);
        // It cannot exit by itself. kill(0) would stop this group of processes.
        EXPECT_EQ(reader == 0 ? -1 : ::kill(reader, SIGSTOP), 0);
        second->stopWatchingTextFile();
    });
    second->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());

    auto third = watch(page);
    MainQueue::async([&] {
        third->stopWatchingTextFile();
        third.reset();
    });
    third->forceRead(nullptr);
    EXPECT_FALSE(third);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
}

TEST_F(WatchTextFileModelTest, ResigningActiveStartsOneTimerOfTwoSeconds)
{
    const auto model = watch(m_path);
    m_activity.setActive(false);
    EXPECT_THAT(takeLog(), ElementsAre(m_backgroundMessage));
    EXPECT_EQ(m_clock.runningTimers(), 1);
    pass(1999ms);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    pass(1ms);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text before")));
    pass(4s);
    EXPECT_THAT(
        m_delegate.takeMessages(), ElementsAre(QStringLiteral("text before"), QStringLiteral("text before")));
}

TEST_F(WatchTextFileModelTest, APollOfUnchangedBytesReportsTheSameTextObject)
{
    const auto model = watch(m_path);
    m_activity.setActive(false);
    pass(2s);
    const AttributedString first = m_delegate.lastText();
    pass(2s);
    EXPECT_EQ(m_delegate.takeMessages().size(), 2);
    EXPECT_EQ(m_delegate.lastText().string().constData(), first.string().constData());
    writeFile(QStringLiteral("f.txt"), "behind");
    pass(2s);
    EXPECT_EQ(m_delegate.lastText().string(), QStringLiteral("behind"));
}

TEST_F(WatchTextFileModelTest, ResigningTwiceReplacesTheTimer)
{
    const auto model = watch(m_path);
    m_activity.setActive(false);
    pass(1s);
    model->applicationWillResignActiveNotification();
    EXPECT_EQ(m_clock.runningTimers(), 1);
    pass(1999ms);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    pass(1ms);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text before")));
}

TEST_F(WatchTextFileModelTest, ResigningWithoutWatchingDoesNothing)
{
    const auto model = makeModel(m_path);
    takeLog();
    m_activity.setActive(false);
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_EQ(m_clock.runningTimers(), 0);
}

TEST_F(WatchTextFileModelTest, BecomingActiveStopsPolling)
{
    const auto model = watch(m_path);
    m_activity.setActive(false);
    takeLog();
    m_activity.setActive(true);
    EXPECT_THAT(takeLog(), ElementsAre(m_activeMessage));
    EXPECT_EQ(m_clock.runningTimers(), 0);
    EXPECT_TRUE(model->isWatchingTextFile());
}

TEST_F(WatchTextFileModelTest, BecomingActiveIsLoggedEvenWithoutWatching)
{
    const auto model = makeModel(m_path);
    m_activity.setActive(false);
    takeLog();
    m_activity.setActive(true);
    EXPECT_THAT(takeLog(), ElementsAre(m_activeMessage));
}

TEST_F(WatchTextFileModelTest, BeginningWhileInactiveDoesNotPoll)
{
    m_activity.setActive(false);
    const auto model = watch(m_path);
    EXPECT_EQ(m_clock.runningTimers(), 0);
    m_activity.setActive(true);
    m_activity.setActive(false);
    EXPECT_EQ(m_clock.runningTimers(), 1);
    model->beginWatchingTextFile();
    EXPECT_EQ(m_clock.runningTimers(), 0);
}

TEST_F(WatchTextFileModelTest, AWordDocumentIsCheckedButNotRead)
{
    const auto model = watch(m_docx);
    EXPECT_TRUE(model->isPresentedItemDocXFile());
    writeFile(QStringLiteral("f.docx"), "PK after");
    pass(0ms);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("docx f.docx")));
}

TEST_F(WatchTextFileModelTest, AWordDocumentIsNeverPolled)
{
    const auto model = watch(m_docx);
    m_activity.setActive(false);
    EXPECT_EQ(m_clock.runningTimers(), 0);
    EXPECT_THAT(takeLog(), IsEmpty());
    model->_nsTimerForceRead();
    EXPECT_THAT(takeLog(),
        ElementsAre(QStringLiteral("error docx is the current file type. Timer shouldn't be used because it "
                                   "is a waste. Ignoring.")));
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
}

TEST_F(WatchTextFileModelTest, AMissingWordDocumentIsAFailure)
{
    const auto model = watch(m_docx);
    model->setTextFileURLToWatch(QUrl::fromLocalFile(pathOf(QStringLiteral("missing.docx"))), true);
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("failed")));
    EXPECT_THAT(takeLog(), ElementsAre(QStringLiteral("error nil QBYDocxMetaData....")));
    EXPECT_FALSE(model->isWatchingTextFile());
}

TEST_F(WatchTextFileModelTest, AFailedReadStopsWatchingBeforeItIsReported)
{
    const auto model = watch(m_path);
    const QString missing = pathOf(QStringLiteral("missing.txt"));
    model->setTextFileURLToWatch(QUrl::fromLocalFile(missing), true);
    m_activity.setActive(false);
    takeLog();
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("failed")));
    EXPECT_THAT(takeLog(),
        ElementsAre(
            QStringLiteral("error failed to load attributed string for file at file://%1. Error no such file")
                .arg(missing)));
    EXPECT_EQ(m_clock.runningTimers(), 0);
}

TEST_F(WatchTextFileModelTest, ADocumentMissingAtAReadIsReportedAsOneDeletion)
{
    for (const QString &path : {m_path, m_docx}) {
        const auto model = watch(path);
        ASSERT_TRUE(QFile::remove(path));
        model->forceRead(nullptr);
        EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("failed")));
        EXPECT_FALSE(model->isWatchingTextFile());
        pass(10s);
        EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    }
}

TEST_F(WatchTextFileModelTest, ADocumentThatCannotBeLoadedDuringASaveIsNoFailure)
{
    const QString text = writeFile(QStringLiteral("f.rtfd/TXT.rtf"), "{\\rtf1 before}");
    const auto model = watch(text.chopped(8));
    ASSERT_TRUE(QFile::remove(text));
    const auto rest =
        m_clock.makeTimer([] { writeFile(QStringLiteral("f.rtfd/TXT.rtf"), "{\\rtf1 after}"); });
    rest->start(200ms);
    model->_nsTimerForceRead();
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text after")));
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_TRUE(model->isWatchingTextFile());
}

TEST_F(WatchTextFileModelTest, ADocumentThatStillCannotBeLoadedAfterASaveIsAFailure)
{
    const QString text = writeFile(QStringLiteral("f.rtfd/TXT.rtf"), "{\\rtf1 before}");
    const auto model = watch(text.chopped(8));
    ASSERT_TRUE(QFile::remove(text));
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("failed")));
    EXPECT_FALSE(model->isWatchingTextFile());
    EXPECT_GE(m_clock.paused(), 500ms);
}

TEST_F(WatchTextFileModelTest, AMissingURLIsAFailure)
{
    const auto model = watch(m_path);
    model->setTextFileURLToWatch(QUrl(), true);
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("failed")));
    EXPECT_THAT(takeLog(), ElementsAre(QStringLiteral("error URL went nil!!!!")));
}

TEST_F(WatchTextFileModelTest, ADocumentThatStaysLockedIsReadOnceItNoLongerChanges)
{
    const auto model = watch(m_path);
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    writer.write("after!");
    model->_nsTimerForceRead();
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    pass(300ms);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text after!")));
    model->_nsTimerForceRead();
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text after!")));
    EXPECT_EQ(m_clock.paused(), 0ms);
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(WatchTextFileModelTest, ALockedDocumentThatCannotBeLoadedIsAnErrorAndWatchingContinues)
{
    const auto model = watch(m_path);
    model->setTextFileURLToWatch(QUrl::fromLocalFile(m_docx), true); // read like another kind, and damaged
    QFile writer(m_docx);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(QStringLiteral("error NSFileCoordinator error: <private>")));
    EXPECT_TRUE(model->isWatchingTextFile());
    writer.close();
    QStringList messages;
    EXPECT_TRUE(waitUntil([&] {
        pass(100ms); // the model tries again for a while
        messages += m_delegate.takeMessages();
        return !messages.isEmpty();
    }));
    EXPECT_THAT(messages, ElementsAre(QStringLiteral("failed")));
}

TEST_F(WatchTextFileModelTest, ADocumentGrantedToOthersIsNotReadUntilItIsReturned)
{
    const auto model = watch(m_path);
    m_activity.setActive(false);
    takeLog();
    FilePresenter::Reacquirer reacquire;
    model->relinquishPresentedItemToWriter([&](const FilePresenter::Reacquirer &reacquirer) {
        EXPECT_FALSE(model->isTextFileReadable());
        reacquire = reacquirer;
    });
    EXPECT_THAT(takeLog(), ElementsAre(QStringLiteral("debug relinquishPresentedItemToWriter: called.")));
    pass(2s);
    EXPECT_THAT(takeLog(), ElementsAre(m_waitingMessage));
    reacquire();
    EXPECT_TRUE(model->isTextFileReadable());
    EXPECT_THAT(takeLog(), ElementsAre(QStringLiteral("debug writer reacquirer block called.")));
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    pass(2s);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text before")));
}

TEST_F(WatchTextFileModelTest, AReaderOfThisProcessIsGrantedTheDocument)
{
    const auto model = watch(m_path);
    FileCoordinator reader(nullptr, m_clock);
    const auto error = reader.coordinateReadingItemAtURL(
        QUrl::fromLocalFile(m_path), [&](const QUrl &) { EXPECT_FALSE(model->isTextFileReadable()); });
    EXPECT_FALSE(error);
    EXPECT_TRUE(model->isTextFileReadable());
    EXPECT_THAT(takeLog(),
        ElementsAre(QStringLiteral("debug relinquishPresentedItemToReader: called."),
            QStringLiteral("debug reader reacquirer block called.")));
}

TEST_F(WatchTextFileModelTest, TheChangeOfAWriterOfThisProcessIsReadAfterwards)
{
    const auto model = watch(m_path);
    FileCoordinator writer(nullptr, m_clock);
    const auto error = writer.coordinateWritingItemAtURL(QUrl::fromLocalFile(m_path), [&](const QUrl &) {
        writeFile(QStringLiteral("f.txt"), "after");
        pass(1s);
    });
    EXPECT_FALSE(error);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    pass(150ms);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text after")));
}

TEST_F(WatchTextFileModelTest, APdfFileIsFollowedAndMayBeHalfWrittenMeanwhile)
{
    const auto path = QStringLiteral("paper.pdf");
    const auto model = watch(writeFile(path, PdfWriter{{"One"}}.bytes()));
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text One\r\n")));
    writeFile(path, PdfWriter{{"One two"}}.bytes().first(100));
    pass(10s);
    writeFile(path, {});
    pass(10s);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    writeFile(path, PdfWriter{{"One two"}}.bytes());
    pass(10s);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text One two\r\n")));
    EXPECT_TRUE(model->isWatchingTextFile());
}

TEST_F(WatchTextFileModelTest, WhatIsNoTextAnyMoreFailsToLoad)
{
    const auto model = watch(m_path);
    writeFile(QStringLiteral("f.txt"), QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1", 20));
    pass(10s);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("failed")));
    EXPECT_FALSE(model->isWatchingTextFile());
}
