// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FileCoordinator.h"

#include "tests/harness/QuillbayTest.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/file_coordination/RecordingPresenter.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

class FileCoordinatorTest : public QuillbayTest {
protected:
    FileCoordinatorTest() { FileCoordinator::addFilePresenter(&m_presenter, m_clock); }

    std::optional<CoordinationError> read() { return readWith(m_coordinator); }
    /// By a coordinator without a presenter, which waits itself.
    std::optional<CoordinationError> readWaiting() { return readWith(m_waiting); }
    std::optional<CoordinationError> readWith(const std::unique_ptr<FileCoordinator> &coordinator)
    {
        return coordinator->coordinateReadingItemAtURL(m_url, [this](const QUrl &url) {
            ++m_reads;
            m_contents = readFile(url.toLocalFile());
            if (m_whileReading)
                m_whileReading();
        });
    }
    void settle(std::chrono::milliseconds duration)
    {
        QCoreApplication::processEvents();
        m_clock.advance(duration);
        QCoreApplication::processEvents();
    }
    std::unique_ptr<ClockTimer> after(std::chrono::milliseconds delay, std::function<void()> call)
    {
        auto timer = m_clock.makeTimer(std::move(call));
        timer->start(delay);
        return timer;
    }
    void write(const QByteArray &contents) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    const QString m_path = writeFile(QStringLiteral("f.txt"), "before");
    const QUrl m_url = QUrl::fromLocalFile(m_path);
    FakeClock m_clock;
    RecordingPresenter m_presenter{m_path};
    std::unique_ptr<FileCoordinator> m_coordinator = std::make_unique<FileCoordinator>(&m_presenter, m_clock);
    std::unique_ptr<FileCoordinator> m_waiting = std::make_unique<FileCoordinator>(nullptr, m_clock);
    int m_reads = 0;
    QByteArray m_contents;
    std::function<void()> m_whileReading;
    const std::optional<CoordinationError> m_granted;
    const std::optional<CoordinationError> m_locked{{CoordinationError::Cause::LockedByWriter}};
};

TEST_F(FileCoordinatorTest, ReadsOnceAndAtOnce)
{
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_reads, 1);
    EXPECT_EQ(m_contents, QByteArray("before"));
    EXPECT_EQ(m_clock.paused(), 0ms);
}

TEST_F(FileCoordinatorTest, WaitsForTheEndOfAnExclusiveLock)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    const auto write = after(200ms, [&] { writer.write("after"); });
    const auto release = after(400ms, [&] {
        writer.write("!");
        writer.close();
    });
    EXPECT_EQ(readWaiting(), m_granted);
    EXPECT_EQ(m_contents, QByteArray("after!"));
    EXPECT_GE(m_clock.paused(), 400ms);
    EXPECT_LT(m_clock.paused(), 500ms);
}

TEST_F(FileCoordinatorTest, WaitsForTheWriteLockOfAnOpenFile)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite));
    struct flock lock { };
    lock.l_type = F_WRLCK;
    lock.l_len = 1;
    ASSERT_EQ(::fcntl(writer.handle(), F_OFD_SETLK, &lock), 0);
    const auto release = after(200ms, [&] { writer.close(); });
    EXPECT_EQ(readWaiting(), m_granted);
    EXPECT_GE(m_clock.paused(), 200ms);
    EXPECT_LT(m_clock.paused(), 300ms);
}

TEST_F(FileCoordinatorTest, ReadsAQuietFileThatAnotherProcessKeepsLocked)
{
    ChildProcess writer(QStringLiteral("/usr/bin/python3"));
    writer.start({"-c",
        "import fcntl, sys\n"
        "f = open(sys.argv[1], 'r+')\n"
        "fcntl.lockf(f, fcntl.LOCK_EX)\n"
        "print('locked', flush=True)\n"
        "sys.stdin.readline()\n",
        QFile::encodeName(m_path)});
    ASSERT_EQ(writer.readLine(), QByteArray("locked"));
    EXPECT_EQ(readWaiting(), m_granted);
    EXPECT_EQ(m_reads, 1);
    EXPECT_GE(m_clock.paused(), 300ms);
    EXPECT_LT(m_clock.paused(), 400ms);
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_reads, 2);
    EXPECT_LT(m_clock.paused(), 400ms) << "a presenter knows that it has been quiet";
}

TEST_F(FileCoordinatorTest, DoesNotWaitForeverForAWriterThatNeverPausesUnderItsLock)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    const auto write = m_clock.makeTimer([&] { writer.write("more "); });
    write->repeat(100ms);
    EXPECT_EQ(readWaiting(), m_granted);
    EXPECT_EQ(m_reads, 1);
    EXPECT_GE(m_clock.paused(), 10s);
    EXPECT_LT(m_clock.paused(), 11s);
}

TEST_F(FileCoordinatorTest, WithAPresenterReportsAChangeInsteadOfReadingOnceTheWriterIsQuiet)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    writer.write("after!");
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_reads, 0);
    EXPECT_EQ(m_clock.paused(), 0ms) << "other files would wait with it";
    m_presenter.whenTold = [this] { EXPECT_EQ(read(), m_granted); };
    settle(299ms);
    EXPECT_EQ(m_reads, 0);
    settle(1ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(QStringLiteral("changed")));
    EXPECT_EQ(m_reads, 1);
    EXPECT_EQ(m_contents, QByteArray("after!"));
}

TEST_F(FileCoordinatorTest, ReadsAtAChangeEvenIfTheWriterNeverPausesUnderItsLock)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    m_presenter.whenTold = [this] { EXPECT_EQ(read(), m_granted); };
    for (int i = 0; i < 110 && m_reads == 0; ++i) {
        writer.write("piece ");
        settle(100ms);
    }
    EXPECT_EQ(m_reads, 1);
}

TEST_F(FileCoordinatorTest, DoesNotWaitForLocksOfReaders)
{
    QFile reader(m_path);
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    ASSERT_EQ(::flock(reader.handle(), LOCK_SH), 0);
    struct flock lock { };
    lock.l_type = F_RDLCK;
    ASSERT_EQ(::fcntl(reader.handle(), F_OFD_SETLK, &lock), 0);
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_clock.paused(), 0ms);
}

TEST_F(FileCoordinatorTest, HoldsNoLockWhileItReads)
{
    m_whileReading = [this] {
        QFile writer(m_path);
        ASSERT_TRUE(writer.open(QIODevice::ReadWrite));
        EXPECT_EQ(::flock(writer.handle(), LOCK_EX | LOCK_NB), 0);
        EXPECT_EQ(::fcntl(writer.handle(), F_SETLEASE, F_WRLCK), 0) << "nor a lease";
        ::fcntl(writer.handle(), F_SETLEASE, F_UNLCK);
    };
    EXPECT_EQ(read(), m_granted);
}

TEST_F(FileCoordinatorTest, ALockedFileWithoutADocumentIsAnErrorAndIsReadOnceItIsUnlocked)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    m_whileReading = [this] { EXPECT_TRUE(m_coordinator->willRetry()); };
    EXPECT_EQ(read(), m_locked);
    EXPECT_EQ(m_clock.paused(), 500ms);
    settle(10s);
    EXPECT_THAT(m_presenter.takeNews(), IsEmpty());
    ::flock(writer.handle(), LOCK_UN);
    settle(2s);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(QStringLiteral("changed")));
    m_whileReading = nullptr;
    EXPECT_EQ(read(), m_granted);
    settle(10s);
    EXPECT_THAT(m_presenter.takeNews(), IsEmpty());
}

TEST_F(FileCoordinatorTest, RunsTheEventLoopWhileItWaits)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    bool isServed = false;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [&] { isServed = true; }, Qt::QueuedConnection);
    ASSERT_EQ(readWaiting(), m_granted);
    EXPECT_TRUE(isServed);
}

TEST_F(FileCoordinatorTest, AReadDuringAReadDoesNothing)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    const auto nested = after(100ms, [&] { EXPECT_EQ(readWaiting(), m_granted); });
    const auto release = after(200ms, [&] {
        EXPECT_EQ(m_reads, 0);
        writer.close();
    });
    EXPECT_EQ(readWaiting(), m_granted);
    EXPECT_EQ(m_reads, 1);
}

TEST_F(FileCoordinatorTest, ACoordinatorDestroyedWhileItWaitsReadsNothingAndReportsNothing)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    const auto end = after(100ms, [&] { m_waiting.reset(); });
    EXPECT_EQ(readWaiting(), m_granted);
    EXPECT_EQ(m_reads, 0);
    EXPECT_LT(m_clock.paused(), 200ms);
}

TEST_F(FileCoordinatorTest, ReadsAgainWhatChangedWhileItWasRead)
{
    m_whileReading = [this] {
        if (m_reads == 1)
            write("after and longer");
    };
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_reads, 2);
    EXPECT_EQ(m_contents, QByteArray("after and longer"));
}

TEST_F(FileCoordinatorTest, AnAccessorThatFoundAHalfSavedFileIsCalledAgain)
{
    const QString aside = m_path + u'~';
    const auto back = m_clock.makeTimer([&] { QFile::rename(aside, m_path); });
    int calls = 0;
    int missing = 0;
    const auto access = [&](const QUrl &) {
        if (++calls == 1) {
            ASSERT_TRUE(QFile::rename(m_path, aside)); // renamed since the coordinator's last check
            back->start(100ms);
        }
        if (!QFile::exists(m_path)) {
            ++missing;
            EXPECT_TRUE(m_coordinator->willRetry());
        }
    };
    EXPECT_EQ(m_coordinator->coordinateReadingItemAtURL(m_url, access), m_granted);
    EXPECT_EQ(missing, 1);
    EXPECT_EQ(calls, 2);
}

TEST_F(FileCoordinatorTest, AnAccessorThatFailsIsCalledAgainForHalfASecond)
{
    int calls = 0;
    bool isLast = false;
    const auto access = [&](const QUrl &) {
        EXPECT_FALSE(isLast);
        ++calls;
        isLast = !m_coordinator->willRetry();
    };
    EXPECT_EQ(m_coordinator->coordinateReadingItemAtURL(m_url, access), m_granted);
    EXPECT_TRUE(isLast);
    EXPECT_GT(calls, 1);
    EXPECT_EQ(m_clock.paused(), 500ms);
    EXPECT_FALSE(m_coordinator->willRetry()); // nothing is under way
}

TEST_F(FileCoordinatorTest, AnAccessorThatFailsWithoutAFileIsNotCalledAgain)
{
    ASSERT_TRUE(QFile::remove(m_path));
    int calls = 0;
    const auto access = [&](const QUrl &) {
        ++calls;
        EXPECT_FALSE(m_coordinator->willRetry());
    };
    EXPECT_EQ(m_coordinator->coordinateReadingItemAtURL(m_url, access), m_granted);
    EXPECT_EQ(calls, 1);
}

TEST_F(FileCoordinatorTest, DoesNotReadForeverAFileThatKeepsChanging)
{
    m_whileReading = [this] { write(QByteArray(m_reads, 'x')); };
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_reads, 3);
}

TEST_F(FileCoordinatorTest, AnAccessorThatDestroysTheCoordinatorIsNotCalledAgain)
{
    m_whileReading = [this] {
        write("after");
        m_coordinator.reset();
    };
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_reads, 1);
}

TEST_F(FileCoordinatorTest, WaitsForABrieflyMissingName)
{
    ASSERT_TRUE(QFile::remove(m_path));
    const auto comeBack = after(300ms, [&] { write("after"); });
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_contents, QByteArray("after"));
}

TEST_F(FileCoordinatorTest, WaitsForANameThatSeveralSavesRemove)
{
    ASSERT_TRUE(QFile::remove(m_path));
    const auto emptied = after(400ms, [this] { write({}); });
    const auto removed = after(450ms, [this] { QFile::remove(m_path); });
    const auto saved = after(850ms, [this] { write("after"); });
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_reads, 1);
    EXPECT_EQ(m_contents, "after");
}

TEST_F(FileCoordinatorTest, DoesNotWaitForeverForANameThatComesAndGoes)
{
    std::unique_ptr<ClockTimer> turn = m_clock.makeTimer([this] {
        if (!QFile::remove(m_path))
            write({});
    });
    turn->repeat(100ms);
    const Clock::Time start = m_clock.now();
    EXPECT_EQ(read(), m_granted);
    EXPECT_LE(m_clock.now() - start, 45s); // at most three reads of ten seconds, and their duration
}

TEST_F(FileCoordinatorTest, LeavesAFileThatStaysMissingToTheAccessor)
{
    ASSERT_TRUE(QFile::remove(m_path));
    int calls = 0;
    EXPECT_EQ(m_coordinator->coordinateReadingItemAtURL(m_url, [&](const QUrl &) { ++calls; }), m_granted);
    EXPECT_EQ(calls, 1);
    EXPECT_GE(m_clock.paused(), 500ms);
    EXPECT_LE(m_clock.paused(), 600ms);
}

TEST_F(FileCoordinatorTest, WaitsForTheContentsOfAnEmptyFileOnce)
{
    write({});
    const auto fill = after(100ms, [&] { write("after"); });
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_contents, QByteArray("after"));
    write({});
    EXPECT_EQ(read(), m_granted);
    const auto before = m_clock.paused();
    EXPECT_EQ(read(), m_granted);
    EXPECT_EQ(m_clock.paused(), before);
}

TEST_F(FileCoordinatorTest, AWriterBorrowsTheFileFromPresentersAndTheyLearnOfTheChangeAfterwards)
{
    FileCoordinator writer(nullptr, m_clock);
    const auto error = writer.coordinateWritingItemAtURL(m_url, [&](const QUrl &) {
        EXPECT_THAT(m_presenter.news(), ElementsAre(QStringLiteral("lent to writer")));
        write("after");
        settle(1000ms);
        EXPECT_THAT(m_presenter.takeNews(), ElementsAre(QStringLiteral("lent to writer")));
    });
    EXPECT_EQ(error, m_granted);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(QStringLiteral("back")));
    settle(150ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(QStringLiteral("changed")));
}

TEST_F(FileCoordinatorTest, AReaderBorrowsTheFileFromOtherPresentersOnly)
{
    RecordingPresenter other(m_path);
    RecordingPresenter elsewhere(writeFile(QStringLiteral("g.txt"), "x"));
    FileCoordinator::addFilePresenter(&other, m_clock);
    FileCoordinator::addFilePresenter(&elsewhere, m_clock);
    EXPECT_EQ(read(), m_granted);
    EXPECT_THAT(m_presenter.news(), IsEmpty());
    EXPECT_THAT(elsewhere.news(), IsEmpty());
    EXPECT_THAT(other.news(), ElementsAre(QStringLiteral("lent to reader"), QStringLiteral("back")));
}

TEST_F(FileCoordinatorTest, APresenterThatKeepsTheFileIsWaitedForTwoSeconds)
{
    m_presenter.keepsFile = true;
    FileCoordinator writer(nullptr, m_clock);
    bool isCalled = false;
    const auto error = writer.coordinateWritingItemAtURL(m_url, [&](const QUrl &) { isCalled = true; });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->cause, CoordinationError::Cause::NotRelinquished);
    EXPECT_FALSE(isCalled);
    EXPECT_GE(m_clock.paused(), 2000ms);
    m_presenter.takeNews();
    write("after");
    settle(0ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(QStringLiteral("changed")));
}
