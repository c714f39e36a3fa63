// SPDX-License-Identifier: MIT
// Moves, deletion, a change of the document, and the destruction of the model.
#include "tests/watching/WatchedFileTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPointer>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

class WatchTextFileModelLifeTest : public WatchedFileTest {
protected:
    static qsizetype openDescriptors()
    {
        return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::AllEntries).size();
    }
    void move(const QString &from, const QString &to)
    {
        ASSERT_TRUE(QFile::rename(from, to));
        pass(0ms);
        pass(500ms);
    }

    const QString m_there = pathOf(QStringLiteral("g.txt"));
    const QString m_movedMessage = QStringLiteral("debug URL's don't match.");
};

TEST_F(WatchTextFileModelLifeTest, ARenamedDocumentIsWatchedUnderItsNewNameAndNotRead)
{
    const auto model = watch(m_path);
    move(m_path, m_there);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("renamed to g.txt")));
    EXPECT_THAT(takeLog(), ElementsAre(m_movedMessage));
    EXPECT_EQ(model->presentedItemURL(), QUrl::fromLocalFile(m_there));
    EXPECT_TRUE(model->isWatchingTextFile());
    EXPECT_EQ(m_clock.runningTimers(), 0);
    writeFile(QStringLiteral("g.txt"), "after");
    pass(0ms);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text after")));
}

TEST_F(WatchTextFileModelLifeTest, ReportsTheNewNameBeforeItWatchesAgain)
{
    const auto model = watch(m_path);
    bool wasWatching = true;
    QUrl urlThen;
    m_delegate.whenTold = [&] {
        wasWatching = model->isWatchingTextFile();
        urlThen = model->presentedItemURL();
    };
    move(m_path, m_there);
    EXPECT_FALSE(wasWatching);
    EXPECT_EQ(urlThen, QUrl::fromLocalFile(m_there));
    EXPECT_TRUE(model->isWatchingTextFile());
}

TEST_F(WatchTextFileModelLifeTest, PollingContinuesAfterARename)
{
    const auto model = watch(m_path);
    m_activity.setActive(false);
    takeLog();
    ASSERT_TRUE(QFile::rename(m_path, m_there));
    pass(0ms);
    pass(500ms);
    EXPECT_THAT(takeLog(),
        ElementsAre(m_movedMessage,
            QStringLiteral("debug Get the timer started again if we are not the active app."),
            m_backgroundMessage));
    EXPECT_EQ(m_clock.runningTimers(), 1);
}

TEST_F(WatchTextFileModelLifeTest, APollDuringAMoveIsNoFailure)
{
    const auto model = watch(m_path);
    ASSERT_TRUE(QFile::rename(m_path, m_there));
    model->_nsTimerForceRead();
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("renamed to g.txt")));
    EXPECT_TRUE(model->isWatchingTextFile());
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text before")));
}

TEST_F(WatchTextFileModelLifeTest, AWordDocumentIsNotPolledAfterARename)
{
    const auto model = watch(m_docx);
    m_activity.setActive(false);
    move(m_docx, pathOf(QStringLiteral("g.docx")));
    EXPECT_THAT(takeLog(),
        ElementsAre(m_movedMessage,
            QStringLiteral("debug Get the timer started again if we are not the active app.")));
    EXPECT_EQ(m_clock.runningTimers(), 0);
}

TEST_F(WatchTextFileModelLifeTest, ADelegateNeedNotHandleNames)
{
    const auto model = watch(m_path);
    TerseDelegate delegate;
    model->setDelegate(&delegate);
    move(m_path, m_there);
    EXPECT_TRUE(model->isWatchingTextFile());
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
}

TEST_F(WatchTextFileModelLifeTest, ADocumentThatItsBookmarkDoesNotFindIsWatchedAnyway)
{
    const auto model = watch(m_path);
    ASSERT_TRUE(QFile::remove(m_path));
    writeFile(QStringLiteral("g.txt"), "another");
    model->presentedItemDidMoveToURL(QUrl::fromLocalFile(m_there));
    EXPECT_THAT(takeLog(),
        ElementsAre(m_movedMessage,
            QStringLiteral(
                "error Resolve bookmark in -presentedItemDidMoveToURL: failed with error: no such file")));
    EXPECT_TRUE(model->isWatchingTextFile());
}

TEST_F(WatchTextFileModelLifeTest, AnAccessThatCannotBeReopenedIsLogged)
{
    const auto model = watch(m_path);
    ASSERT_TRUE(QFile::remove(m_path));
    ASSERT_TRUE(QFile::link(QStringLiteral("nowhere"), m_path)); // a broken link
    model->presentedItemDidMoveToURL(QUrl::fromLocalFile(m_there));
    EXPECT_THAT(takeLog(),
        ElementsAre(m_movedMessage,
            QStringLiteral(
                "error Failed to start accessing security scoped resource. Next attempt to read the "
                "text might fail.")));
}

TEST_F(WatchTextFileModelLifeTest, WorksWithoutADocumentAndABookmark)
{
    const auto model = makeModel(m_there);
    EXPECT_THAT(takeLog(), ElementsAre(QStringLiteral("error Error getting bookmark data: no such file")));
    model->beginWatchingTextFile();
    writeFile(QStringLiteral("g.txt"), "here");
    pass(0ms);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text here")));
}

TEST_F(WatchTextFileModelLifeTest, AnAccessThatCannotBeOpenedIsLoggedAndNoBookmarkKept)
{
    ASSERT_TRUE(QFile::link(QStringLiteral("nowhere"), m_there));
    const auto model = makeModel(m_there);
    EXPECT_THAT(takeLog(),
        ElementsAre(QStringLiteral("error Failed to start accessing the security scoped resource!")));
    model->presentedItemDidMoveToURL(QUrl::fromLocalFile(m_path));
    EXPECT_THAT(takeLog(), ElementsAre(m_movedMessage));
}

TEST_F(WatchTextFileModelLifeTest, AnImpossibleNameIsLoggedAndNoBookmarkKept)
{
    // For the system the name would end at the NUL.
    const auto model = makeModel(m_path + QChar(u'\0') + QStringLiteral("more"));
    EXPECT_THAT(takeLog(),
        ElementsAre(QStringLiteral("error Error getting bookmark data: is not a file of this machine")));
    model->presentedItemDidMoveToURL(QUrl::fromLocalFile(m_path));
    EXPECT_THAT(takeLog(), ElementsAre(m_movedMessage));
}

TEST_F(WatchTextFileModelLifeTest, TheDestructorClosesTheAccessAndLogsNothing)
{
    makeModel(m_path); // makes the MIME database open its cache, which stays open
    const qsizetype before = openDescriptors();
    auto model = watch(m_path);
    m_activity.setActive(false);
    takeLog();
    EXPECT_GT(openDescriptors(), before);
    model.reset();
    EXPECT_EQ(openDescriptors(), before);
    EXPECT_EQ(m_clock.runningTimers(), 0);
    m_activity.setActive(true);
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(WatchTextFileModelLifeTest, ADeletedDocumentIsAFailureAndTheDeletionIsAllowed)
{
    const auto model = watch(m_path);
    ASSERT_TRUE(QFile::remove(m_path));
    pass(0ms);
    pass(500ms);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("failed")));
    EXPECT_FALSE(model->isWatchingTextFile());
    int completions = 0;
    model->beginWatchingTextFile();
    model->accommodatePresentedItemDeletionWithCompletionHandler(
        [&](const std::optional<CoordinationError> &error) {
            EXPECT_FALSE(error);
            ++completions;
            EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("failed")));
        });
    EXPECT_EQ(completions, 1);
}

TEST_F(WatchTextFileModelLifeTest, AnotherDocumentIsWatchedAndNotRead)
{
    const auto model = watch(m_path);
    const QString other = writeFile(QStringLiteral("g.txt"), "other");
    model->setTextFileURLToWatch(QUrl::fromLocalFile(other), true);
    writeFile(QStringLiteral("f.txt"), "unheard");
    pass(1s);
    EXPECT_THAT(m_delegate.takeMessages(), IsEmpty());
    writeFile(QStringLiteral("g.txt"), "after");
    pass(0ms);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text after")));
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(WatchTextFileModelLifeTest, AnotherDocumentNeedNotBeWatchedAtOnce)
{
    const auto model = watch(m_path);
    model->setTextFileURLToWatch(QUrl::fromLocalFile(writeFile(QStringLiteral("g.txt"), "other")), false);
    EXPECT_FALSE(model->isWatchingTextFile());
    EXPECT_EQ(model->presentedItemURL(), QUrl::fromLocalFile(m_there));
}

TEST_F(WatchTextFileModelLifeTest, AWordDocumentAfterAnotherKindIsLoadedLikeThatKind)
{
    const auto model = watch(m_path);
    model->setTextFileURLToWatch(QUrl::fromLocalFile(m_docx), true);
    EXPECT_FALSE(model->isPresentedItemDocXFile());
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("failed"))); // not a valid document
}

TEST_F(WatchTextFileModelLifeTest, StoppingIsHarmlessWithoutWatching)
{
    const auto model = makeModel(m_path);
    model->stopWatchingTextFile();
    model->beginWatchingTextFile();
    model->stopWatchingTextFile();
    model->stopWatchingTextFile();
    EXPECT_FALSE(model->isWatchingTextFile());
}

TEST_F(WatchTextFileModelLifeTest, ADelegateMayDestroyTheModelInEveryMessage)
{
    const auto destroyedBy = [this](const std::function<void(WatchTextFileModel &)> &cause) {
        writeFile(QStringLiteral("f.txt"), "before");
        auto model = watch(m_path);
        m_delegate.whenTold = [&] { model.reset(); };
        cause(*model);
        pass(0ms);
        pass(500ms);
        m_delegate.whenTold = nullptr;
        return model == nullptr;
    };
    EXPECT_TRUE(destroyedBy([](WatchTextFileModel &model) { model.forceRead(nullptr); }));
    EXPECT_TRUE(destroyedBy([](auto &) { writeFile(QStringLiteral("f.txt"), "after"); }));
    EXPECT_TRUE(destroyedBy([this](auto &) { QFile::rename(m_path, m_there); }));
    EXPECT_TRUE(destroyedBy([this](auto &) { QFile::remove(m_path); }));
    EXPECT_TRUE(destroyedBy([this](auto &) {
        m_activity.setActive(false);
        pass(2s);
    }));
}

TEST_F(WatchTextFileModelLifeTest, AModelWithoutADelegateContinues)
{
    auto model = watch(m_path);
    {
        RecordingDelegate delegate;
        model->setDelegate(&delegate);
    }
    EXPECT_EQ(model->delegate(), nullptr);
    model->forceRead(nullptr);
    move(m_path, m_there);
    ASSERT_TRUE(QFile::remove(m_there));
    model->forceRead(nullptr);
    EXPECT_FALSE(model->isWatchingTextFile());
}

TEST_F(WatchTextFileModelLifeTest, AThousandMovesLeaveNoDescriptorOpen)
{
    makeModel(m_path); // makes the MIME database open its cache, which stays open
    const qsizetype before = openDescriptors();
    {
        const auto model = watch(m_path);
        QString path = m_path;
        qsizetype whileWatching = 0;
        for (int count = 0; count < 1000; ++count) {
            const QString next = pathOf(QStringLiteral("%1.txt").arg(count % 2));
            ASSERT_TRUE(QFile::rename(path, next));
            model->presentedItemDidMoveToURL(QUrl::fromLocalFile(next));
            path = next;
            if (count == 0)
                whileWatching = openDescriptors();
            ASSERT_EQ(openDescriptors(), whileWatching);
        }
    }
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(WatchTextFileModelLifeTest, TheRealTimerPollsEveryTwoSeconds)
{
    WatchTextFileModel model(QUrl::fromLocalFile(m_path), &m_delegate, m_activity);
    model.beginWatchingTextFile();
    QElapsedTimer timer;
    timer.start();
    m_activity.setActive(false);
    QStringList messages;
    ASSERT_TRUE(waitUntil([&] { return !(messages = m_delegate.takeMessages()).isEmpty(); }));
    EXPECT_GE(timer.elapsed(), 1990);
    EXPECT_THAT(messages, ElementsAre(QStringLiteral("text before")));
}
