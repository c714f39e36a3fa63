// SPDX-License-Identifier: MIT
// What is reported to a presenter about its file, on a real disk and with a fake clock.
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/file_coordination/RecordingPresenter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

class FilePresenterTest : public QuillbayTest {
protected:
    FilePresenterTest() { FileCoordinator::addFilePresenter(&m_presenter, m_clock); }

    /// Runs the event loop for everything that has happened so far.
    void settle(std::chrono::milliseconds duration = 0ms)
    {
        QCoreApplication::processEvents();
        m_clock.advance(duration);
        QCoreApplication::processEvents();
    }
    /// All reports after all timeouts.
    QStringList allNews()
    {
        settle();
        settle(500ms);
        settle(500ms);
        return m_presenter.takeNews();
    }
    static void write(const QString &path, const QByteArray &contents)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        ASSERT_EQ(file.write(contents), contents.size());
    }
    static void replace(const QString &path, const QByteArray &contents)
    {
        write(path + QStringLiteral(".new"), contents);
        rename(path + QStringLiteral(".new"), path);
    }
    static void rename(const QString &from, const QString &to)
    {
        ASSERT_EQ(::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()), 0);
    }
    [[nodiscard]] QString in(const QString &folder, const QString &name = QStringLiteral("f.txt")) const
    {
        return m_folder + u'/' + folder + u'/' + name;
    }
    [[nodiscard]] QString at(const QString &name) const { return m_folder + u'/' + name; }
    static QString movedTo(const QString &path) { return QStringLiteral("moved to ") + path; }

    static bool isOpen(const QString &file)
    {
        const QDir descriptors(QStringLiteral("/proc/self/fd"));
        const QStringList names = descriptors.entryList(QDir::System | QDir::AllEntries);
        return std::ranges::any_of(names,
            [&](const QString &name) { return QFile::symLinkTarget(descriptors.filePath(name)) == file; });
    }

    const QString m_changed = QStringLiteral("changed");
    const QString m_deleted = QStringLiteral("deleted");
    const QString m_path = writeFile(QStringLiteral("above/folder/f.txt"), "before");
    const QString m_folder = world().root() + QStringLiteral("/files");
    FakeClock m_clock;
    RecordingPresenter m_presenter{m_path};
};

TEST_F(FilePresenterTest, AReplacedFileIsClosed)
{
    EXPECT_TRUE(isOpen(m_path));
    replace(m_path, "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    while (isOpen(m_path + QStringLiteral(" (deleted)")))
        QThread::yieldCurrentThread(); // another thread closes it
    EXPECT_TRUE(isOpen(m_path));
}

TEST_F(FilePresenterTest, NothingIsReportedWithoutAChange)
{
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, ReadingAndOtherFilesOfTheFolderAreNotReported)
{
    readFile(m_path);
    write(in(QStringLiteral("above/folder"), QStringLiteral("g.txt")), "other");
    write(in(QStringLiteral("above/folder"), QStringLiteral("f.txt~")), "other");
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, OpeningForWritingAloneIsNotReported)
{
    ::close(::open(QFile::encodeName(m_path).constData(), O_RDWR));
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, AWriteInPlaceIsReportedAtOnce)
{
    write(m_path, "after");
    settle();
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(m_changed));
    EXPECT_EQ(m_presenter.contents(), QByteArray("after"));
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, AFileMovedOverItIsReportedAtOnce)
{
    for (const char *contents : {"one", "two", "three"}) {
        replace(m_path, contents);
        settle();
        EXPECT_THAT(m_presenter.takeNews(), ElementsAre(m_changed));
        EXPECT_EQ(m_presenter.contents(), QByteArray(contents));
        settle(100ms);
    }
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, EverySaveOfQSaveFileIsReported)
{
    for (const char *contents : {"one", "two", "three"}) {
        QSaveFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        ASSERT_TRUE(file.commit());
        EXPECT_THAT(allNews(), ElementsAre(m_changed));
        EXPECT_EQ(m_presenter.contents(), QByteArray(contents));
    }
}

TEST_F(FilePresenterTest, AFileTruncatedBeforeItIsWrittenIsOneChange)
{
    write(m_path, {});
    settle(140ms);
    EXPECT_THAT(m_presenter.takeNews(), IsEmpty());
    write(m_path, "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    EXPECT_EQ(m_presenter.contents(), QByteArray("after"));
}

TEST_F(FilePresenterTest, AFileThatStaysEmptyIsAChange)
{
    write(m_path, {});
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    EXPECT_EQ(m_presenter.contents(), QByteArray());
}

TEST_F(FilePresenterTest, AWriterThatPausesIsWaitedFor)
{
    QFile file(m_path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (int i = 0; i < 5; ++i) {
        file.write("piece ");
        settle(149ms);
        EXPECT_THAT(m_presenter.news(), IsEmpty());
    }
    settle(1ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(m_changed));
    file.write("end");
    file.close();
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    EXPECT_TRUE(m_presenter.contents().endsWith("end"));
}

TEST_F(FilePresenterTest, AnOldFileRenamedAwayAndANewOneIsOneChange)
{
    rename(m_path, m_path + u'~');
    settle(499ms);
    EXPECT_THAT(m_presenter.takeNews(), IsEmpty());
    write(m_path, "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    write(m_path + u'~', "backup");
    EXPECT_THAT(allNews(), IsEmpty());
    write(m_path, "later");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
}

TEST_F(FilePresenterTest, ADeletionAndACreationWithinHalfASecondIsOneChange)
{
    ASSERT_TRUE(QFile::remove(m_path));
    settle(499ms);
    write(m_path, "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    EXPECT_EQ(m_presenter.contents(), QByteArray("after"));
}

TEST_F(FilePresenterTest, ManySavesAtOnceAreOneChangeAndTheLastIsRead)
{
    for (int i = 0; i < 100; ++i)
        i % 2 ? write(m_path, QByteArray::number(i)) : replace(m_path, QByteArray::number(i));
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    EXPECT_EQ(m_presenter.contents(), QByteArray("99"));
}

TEST_F(FilePresenterTest, AWriteThroughMappedMemoryIsOneChange)
{
    // It shows only in the times of the file, which have the resolution of the system's clock.
    const QDateTime before = QFileInfo(m_path).lastModified();
    ASSERT_TRUE(
        waitUntil([&] { return QFileInfo(writeFile(QStringLiteral("tick"), "x")).lastModified() > before; }));
    const int descriptor = ::open(QFile::encodeName(m_path).constData(), O_RDWR);
    void *memory = ::mmap(nullptr, 6, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    ASSERT_NE(memory, MAP_FAILED);
    static_cast<char *>(memory)[0] = 'x';
    ::munmap(memory, 6);
    ::close(descriptor);
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    EXPECT_EQ(m_presenter.contents(), QByteArray("xefore"));
}

TEST_F(FilePresenterTest, AWriteThroughAnotherNameOfTheFileIsAChange)
{
    const QString other = at(QStringLiteral("elsewhere.txt"));
    ASSERT_EQ(::link(QFile::encodeName(m_path).constData(), QFile::encodeName(other).constData()), 0);
    write(other, "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    EXPECT_EQ(m_presenter.contents(), QByteArray("after"));
    ASSERT_TRUE(QFile::remove(other));
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, TheTargetOfASymbolicLinkIsFollowedThroughItsSaves)
{
    const QString second = in(QStringLiteral("links"), QStringLiteral("second.txt"));
    const QString first = at(QStringLiteral("first.txt"));
    QDir().mkpath(m_folder + QStringLiteral("/links"));
    ASSERT_TRUE(QFile::link(QStringLiteral("../above/folder/f.txt"), second));
    ASSERT_TRUE(QFile::link(second, first));
    RecordingPresenter presenter(first);
    FileCoordinator::addFilePresenter(&presenter, m_clock);
    const auto news = [&] {
        allNews();
        return presenter.takeNews();
    };
    write(m_path, "in place");
    EXPECT_THAT(news(), ElementsAre(m_changed));
    replace(m_path, "replaced");
    EXPECT_THAT(news(), ElementsAre(m_changed));
    write(m_path, "in place again");
    EXPECT_THAT(news(), ElementsAre(m_changed));
    ASSERT_TRUE(QFile::remove(second));
    ASSERT_TRUE(QFile::link(writeFile(QStringLiteral("other.txt"), "other"), second));
    EXPECT_THAT(news(), ElementsAre(m_changed));
    EXPECT_EQ(presenter.contents(), QByteArray("other"));
    ASSERT_TRUE(QFile::remove(at(QStringLiteral("other.txt"))));
    EXPECT_THAT(news(), ElementsAre(m_deleted));
}

TEST_F(FilePresenterTest, ALinkAmongTheFoldersThatLeadsElsewhereIsAChange)
{
    const QString other = writeFile(QStringLiteral("other/folder/f.txt"), "other");
    ASSERT_TRUE(QFile::link(at(QStringLiteral("above")), at(QStringLiteral("second"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("./second/../second"), at(QStringLiteral("first"))));
    RecordingPresenter presenter(in(QStringLiteral("first/folder")));
    FileCoordinator::addFilePresenter(&presenter, m_clock);
    const auto news = [&] {
        allNews();
        return presenter.takeNews();
    };
    ASSERT_TRUE(QFile::remove(at(QStringLiteral("second"))));
    ASSERT_TRUE(QFile::link(at(QStringLiteral("other")), at(QStringLiteral("second"))));
    EXPECT_THAT(news(), ElementsAre(m_changed));
    EXPECT_EQ(presenter.contents(), QByteArray("other"));
    write(other, "later");
    EXPECT_THAT(news(), ElementsAre(m_changed));
    write(m_path, "no longer watched");
    EXPECT_THAT(news(), IsEmpty());
    ASSERT_TRUE(QFile::link(at(QStringLiteral("above")), at(QStringLiteral("new"))));
    rename(at(QStringLiteral("new")), at(QStringLiteral("first")));
    EXPECT_THAT(news(), ElementsAre(m_changed));
    EXPECT_EQ(presenter.contents(), QByteArray("no longer watched"));
}

TEST_F(FilePresenterTest, ALinkAmongTheFoldersThatIsRecreatedUnchangedIsNotReported)
{
    ASSERT_TRUE(QFile::link(at(QStringLiteral("above")), at(QStringLiteral("link"))));
    RecordingPresenter presenter(in(QStringLiteral("link/folder")));
    FileCoordinator::addFilePresenter(&presenter, m_clock);
    ASSERT_TRUE(QFile::remove(at(QStringLiteral("link"))));
    settle(300ms);
    ASSERT_TRUE(QFile::link(QStringLiteral("above"), at(QStringLiteral("link"))));
    allNews();
    EXPECT_THAT(presenter.news(), IsEmpty());
}

TEST_F(FilePresenterTest, LoopsOfLinksAreNotReported)
{
    ASSERT_TRUE(QFile::link(QStringLiteral("b"), at(QStringLiteral("a"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("a"), at(QStringLiteral("b"))));
    RecordingPresenter presenter(in(QStringLiteral("a")));
    FileCoordinator::addFilePresenter(&presenter, m_clock);
    allNews();
    EXPECT_THAT(presenter.takeNews(), IsEmpty());
    ASSERT_TRUE(QFile::remove(at(QStringLiteral("b"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("above/folder"), at(QStringLiteral("b"))));
    allNews();
    EXPECT_THAT(presenter.takeNews(), ElementsAre(m_changed));
}

TEST_F(FilePresenterTest, AFileWhoseFolderIsCreatedLaterIsAChangeOnceItAppears)
{
    const QString path = in(QStringLiteral("later/folder"));
    RecordingPresenter presenter(path);
    FileCoordinator::addFilePresenter(&presenter, m_clock);
    allNews();
    writeFile(QStringLiteral("later/folder/f.txt"), "here");
    allNews();
    EXPECT_THAT(presenter.takeNews(), ElementsAre(m_changed));
}

TEST_F(FilePresenterTest, AFolderIsFollowedWithATrailingSlash)
{
    const QString text = writeFile(QStringLiteral("a.rtfd/TXT.rtf"), "{\\rtf1 before}");
    RecordingPresenter presenter(at(QStringLiteral("a.rtfd/")));
    FileCoordinator::addFilePresenter(&presenter, m_clock);
    write(text, "{\\rtf1 after}");
    allNews();
    EXPECT_THAT(presenter.takeNews(), ElementsAre(m_changed));
    rename(at(QStringLiteral("a.rtfd")), at(QStringLiteral("b.rtfd")));
    allNews();
    EXPECT_THAT(presenter.takeNews(), ElementsAre(movedTo(at(QStringLiteral("b.rtfd")))));
}

TEST_F(FilePresenterTest, AChangeOfALockedFileIsReportedOnceItsWriterIsQuiet)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    for (int i = 0; i < 3; ++i) {
        writer.write("piece ");
        settle(299ms);
        EXPECT_THAT(m_presenter.news(), IsEmpty());
    }
    settle(1ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(m_changed));
    EXPECT_THAT(allNews(), IsEmpty());
    writer.write("piece ");
    settle(1ms);
    writer.close();
    settle(0ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(m_changed)) << "at once after the end of the lock";
}

TEST_F(FilePresenterTest, AChangeIsReportedAgainOnRequest)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite));
    FileCoordinator::reportChangeAgain(&m_presenter);
    EXPECT_THAT(m_presenter.news(), IsEmpty()) << "from the event loop";
    settle(0ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(m_changed));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    FileCoordinator::reportChangeAgain(&m_presenter);
    settle(299ms);
    EXPECT_THAT(m_presenter.takeNews(), IsEmpty());
    settle(1ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(m_changed)) << "though the lock is kept";
    const RecordingPresenter another(m_path);
    FileCoordinator::reportChangeAgain(&another);
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, AWriterThatNeverPausesUnderItsLockIsWaitedForTenSeconds)
{
    QFile writer(m_path);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    ASSERT_EQ(::flock(writer.handle(), LOCK_EX), 0);
    const Clock::Time start = m_clock.now();
    while (m_presenter.news().isEmpty() && m_clock.now() - start < 20s) {
        writer.write("piece ");
        settle(100ms);
    }
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(m_changed));
    EXPECT_EQ(m_clock.now() - start, 10s);
}

TEST_F(FilePresenterTest, ARenamedFileHasMovedAndIsFollowed)
{
    const QString there = in(QStringLiteral("above/folder"), QStringLiteral("g.txt"));
    rename(m_path, there);
    settle(499ms);
    EXPECT_THAT(m_presenter.takeNews(), IsEmpty());
    settle(1ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(movedTo(there)));
    replace(there, "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    write(m_path, "a stranger");
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, AFileInAnotherFolderHasMoved)
{
    QDir().mkpath(m_folder + QStringLiteral("/elsewhere"));
    replace(m_path, "saved before");
    allNews();
    rename(m_path, in(QStringLiteral("elsewhere")));
    EXPECT_THAT(allNews(), ElementsAre(movedTo(in(QStringLiteral("elsewhere")))));
    rename(in(QStringLiteral("elsewhere")), m_path);
    EXPECT_THAT(allNews(), ElementsAre(movedTo(m_path)));
}

TEST_F(FilePresenterTest, RenamingAParentFolderMovesTheFile)
{
    rename(in(QStringLiteral("above"), QStringLiteral("folder")),
        in(QStringLiteral("above"), QStringLiteral("new")));
    EXPECT_THAT(allNews(), ElementsAre(movedTo(in(QStringLiteral("above/new")))));
    rename(at(QStringLiteral("above")), at(QStringLiteral("top")));
    EXPECT_THAT(allNews(), ElementsAre(movedTo(in(QStringLiteral("top/new")))));
    write(in(QStringLiteral("top/new")), "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
}

TEST_F(FilePresenterTest, AParentFolderThatComesBackIsNotReported)
{
    const QString above = at(QStringLiteral("above"));
    rename(above, above + u'2');
    settle();
    rename(above + u'2', above);
    EXPECT_THAT(allNews(), IsEmpty());
    write(m_path, "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
}

TEST_F(FilePresenterTest, AFolderThatIsDeletedAndRecreatedIsOneChange)
{
    ASSERT_TRUE(QDir(at(QStringLiteral("above"))).removeRecursively());
    settle(300ms);
    writeFile(QStringLiteral("above/folder/f.txt"), "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    write(m_path, "later");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
}

TEST_F(FilePresenterTest, AFileWrittenWhileItMovesHasMovedAndChanged)
{
    const QString there = in(QStringLiteral("above/folder"), QStringLiteral("g.txt"));
    rename(m_path, there);
    settle();
    write(there, "after");
    EXPECT_THAT(allNews(), ElementsAre(movedTo(there), m_changed));
    EXPECT_EQ(m_presenter.contents(), QByteArray("after"));
}

TEST_F(FilePresenterTest, APresenterThatIsAddedAgainAtAMoveStillLearnsOfTheChange)
{
    const QString there = in(QStringLiteral("above/folder"), QStringLiteral("g.txt"));
    m_presenter.whenTold = [this] {
        if (m_presenter.news().size() > 1)
            return;
        FileCoordinator::removeFilePresenter(&m_presenter);
        FileCoordinator::addFilePresenter(&m_presenter, m_clock);
    };
    rename(m_path, there);
    settle();
    write(there, "after");
    EXPECT_THAT(allNews(), ElementsAre(movedTo(there), m_changed));
}

TEST_F(FilePresenterTest, ANameThatLooksLikeADeletedFileIsAMove)
{
    const QString there = in(QStringLiteral("above/folder"), QStringLiteral("f.txt (deleted)"));
    rename(m_path, there);
    EXPECT_THAT(allNews(), ElementsAre(movedTo(there)));
}

TEST_F(FilePresenterTest, ADeletedFileIsNotConfusedWithASimilarName)
{
    write(in(QStringLiteral("above/folder"), QStringLiteral("f.txt (deleted)")), "a stranger");
    ASSERT_TRUE(QFile::remove(m_path));
    EXPECT_THAT(allNews(), ElementsAre(m_deleted));
}

TEST_F(FilePresenterTest, DeletedIsFinal)
{
    ASSERT_TRUE(QFile::remove(m_path));
    settle(500ms);
    EXPECT_THAT(m_presenter.takeNews(), ElementsAre(m_deleted));
    write(m_path, "another");
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, AFileInTheTrashIsDeleted)
{
    QDir().mkpath(world().data() + QStringLiteral("/Trash/files"));
    rename(m_path, world().data() + QStringLiteral("/Trash/files/f.txt"));
    EXPECT_THAT(allNews(), ElementsAre(m_deleted));
}

TEST_F(FilePresenterTest, AFileInTheTrashOfItsFileSystemIsDeleted)
{
    const QString trash = m_folder + QStringLiteral("/.Trash-%1/files").arg(::getuid());
    QDir().mkpath(trash);
    rename(at(QStringLiteral("above")), trash + QStringLiteral("/above"));
    EXPECT_THAT(allNews(), ElementsAre(m_deleted));
}

TEST_F(FilePresenterTest, AFileOnAnotherFileSystemIsDeleted)
{
    const QString there = QStringLiteral("/dev/shm/quillbay-test-%1.txt").arg(::getpid());
    struct stat one;
    struct stat other;
    if (::stat("/dev/shm", &one) != 0 || ::stat(QFile::encodeName(m_folder).constData(), &other) != 0
        || one.st_dev == other.st_dev)
        GTEST_SKIP() << "/dev/shm is no other file system here";
    ChildProcess(QStringLiteral("/bin/mv")).run({QFile::encodeName(m_path), QFile::encodeName(there)});
    EXPECT_TRUE(QFile::remove(there));
    EXPECT_THAT(allNews(), ElementsAre(m_deleted));
}

TEST_F(FilePresenterTest, AMissingFileIsAChangeOnceItAppears)
{
    const QString path = in(QStringLiteral("above/folder"), QStringLiteral("later.txt"));
    RecordingPresenter presenter(path);
    FileCoordinator::addFilePresenter(&presenter, m_clock);
    allNews();
    EXPECT_THAT(presenter.takeNews(), IsEmpty());
    write(path, "here");
    settle();
    EXPECT_THAT(presenter.takeNews(), ElementsAre(m_changed));
}

TEST_F(FilePresenterTest, AFolderDocumentChangesWithTheFilesInIt)
{
    const QString text = writeFile(QStringLiteral("a.rtfd/TXT.rtf"), "{\\rtf1 before}");
    const QString folder = at(QStringLiteral("a.rtfd"));
    RecordingPresenter presenter(folder);
    FileCoordinator::addFilePresenter(&presenter, m_clock);
    const auto news = [&] {
        allNews();
        return presenter.takeNews();
    };
    write(text, "{\\rtf1 after}");
    EXPECT_THAT(news(), ElementsAre(m_changed));
    replace(text, "{\\rtf1 later}");
    EXPECT_THAT(news(), ElementsAre(m_changed));
    rename(folder, folder + u'2');
    EXPECT_THAT(news(), ElementsAre(movedTo(folder + u'2')));
}

TEST_F(FilePresenterTest, AChangeOfAttributesAloneIsNotReported)
{
    ASSERT_EQ(::chmod(QFile::encodeName(m_path).constData(), 0640), 0);
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, NothingIsReportedAfterTheRemoval)
{
    write(m_path, "after");
    FileCoordinator::removeFilePresenter(&m_presenter);
    EXPECT_THAT(allNews(), IsEmpty());
}

TEST_F(FilePresenterTest, APresenterMayBeDestroyedDuringAReport)
{
    auto presenter = std::make_unique<RecordingPresenter>(m_path);
    FileCoordinator::addFilePresenter(presenter.get(), m_clock);
    RecordingPresenter &presenting = *presenter;
    presenting.whenTold = [&] { presenter.reset(); };
    write(m_path, "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    EXPECT_EQ(presenter, nullptr);
}

TEST_F(FilePresenterTest, EveryPresenterOfAFileIsCalled)
{
    RecordingPresenter other(m_path);
    FileCoordinator::addFilePresenter(&other, m_clock);
    replace(m_path, "after");
    EXPECT_THAT(allNews(), ElementsAre(m_changed));
    EXPECT_THAT(other.news(), ElementsAre(m_changed));
}
