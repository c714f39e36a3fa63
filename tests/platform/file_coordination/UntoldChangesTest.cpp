// SPDX-License-Identifier: MIT
// Files whose changes have no events.
#include "platform/file_coordination/FileState.h"

#include "tests/harness/QuillbayTest.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/file_coordination/RecordingPresenter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <fcntl.h>
#include <sched.h>
#include <unistd.h>

using ::testing::SizeIs;
using namespace std::chrono_literals;

namespace {

/// Takes all of one kind of the system's means of inotify away, by its file in /proc/sys/user. Only in a
/// user namespace of its own can a process have other limits than the user.
void useUp(const char *limit)
{
    constexpr int unsupported = 1;
    if (::unshare(CLONE_NEWUSER) != 0)
        ::_exit(unsupported);
    const int file = ::open(limit, O_WRONLY);
    if (file < 0 || ::write(file, "0", 1) != 1)
        ::_exit(unsupported);
    ::close(file);
}

// Shell commands that mount $1 on $2 by FUSE, run $3 with the document there, and leave nothing mounted.
constexpr char mounted[] =
    "bindfs -o attr_timeout=0,entry_timeout=0,negative_timeout=0 \"$1\" \"$2\" || exit;"
    "\"$3\" \"$2/f.txt\"; status=$?; umount \"$2\"; exit $status";

} // namespace

class UntoldChangesTest : public QuillbayTest {
protected:
    const QString m_path = writeFile(QStringLiteral("f.txt"), "before");
};

class UsedUpLimitTest : public UntoldChangesTest, public ::testing::WithParamInterface<const char *> {
protected:
    void SetUp() override
    {
        const auto useUpLimit = [limit = GetParam()] { useUp(limit); };
        if (ChildProcess(QStringLiteral("/bin/true")).afterFork(useUpLimit).run({}).exitStatus != 0)
            GTEST_SKIP() << "no user namespaces here";
        m_presenter.afterFork(useUpLimit).start({QFile::encodeName(m_path)});
        ASSERT_EQ(newsAfter("0"), QByteArray("."));
    }

    QByteArray newsAfter(const char *command)
    {
        m_presenter.writeLine(command);
        return m_presenter.readLine();
    }
    void replaceFile() const
    {
        writeFile(QStringLiteral("f.new"), "replaced");
        ASSERT_EQ(::rename(QFile::encodeName(world().root() + QStringLiteral("/files/f.new")).constData(),
                      QFile::encodeName(m_path).constData()),
            0);
    }

    ChildProcess m_presenter{testProgram(QStringLiteral("presenter"))};
};

TEST_P(UsedUpLimitTest, ThePresenterChecksEveryTwoSecondsAndLogsOneLine)
{
    writeFile(QStringLiteral("f.txt"), "in place");
    EXPECT_EQ(newsAfter("1999"), QByteArray("."));
    EXPECT_EQ(newsAfter("151"), QByteArray("changed."));
    replaceFile();
    EXPECT_EQ(newsAfter("2150"), QByteArray("changed."));
    EXPECT_EQ(newsAfter("10000"), QByteArray("."));
    ASSERT_TRUE(QFile::rename(m_path, m_path + u'2'));
    EXPECT_EQ(newsAfter("2500"), "moved to " + QFile::encodeName(m_path) + "2.");
    ASSERT_TRUE(QFile::remove(m_path + u'2'));
    EXPECT_EQ(newsAfter("2500"), QByteArray("deleted."));
    const ChildProcess::Outcome outcome = m_presenter.finish();
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors.count('\n'), 2)
        << outcome.errors.toStdString(); // one before and one after the move
}

TEST_P(UsedUpLimitTest, AFileReplacedReadAndRenamedBetweenTwoChecksHasMoved)
{
    replaceFile();
    EXPECT_EQ(newsAfter("read"), QByteArray("."));
    EXPECT_EQ(newsAfter("0"), QByteArray("."));
    ASSERT_TRUE(QFile::rename(m_path, m_path + u'2'));
    EXPECT_EQ(newsAfter("2500"), "moved to " + QFile::encodeName(m_path) + "2,changed.");
}

INSTANTIATE_TEST_SUITE_P(Inotify, UsedUpLimitTest,
    ::testing::Values("/proc/sys/user/max_inotify_instances", "/proc/sys/user/max_inotify_watches"));

/// The presenter has the document under a FUSE mount of its folder.
class MountedFileTest : public UntoldChangesTest {
protected:
    void SetUp() override
    {
        const QByteArray folder = QFile::encodeName(QFileInfo(m_path).path());
        const QByteArray mountPoint = QFile::encodeName(world().root()) + "/mount";
        ASSERT_TRUE(QDir().mkdir(QFile::decodeName(mountPoint)));
        SKIP_WITHOUT_PACKAGE(!QStandardPaths::findExecutable(QStringLiteral("bindfs")).isEmpty(), "bindfs");
        const auto argumentsFor = [&](const QByteArray &program) {
            return QByteArrayList{"--mount", "sh", "-c", mounted, "sh", folder, mountPoint, program};
        };
        if (ChildProcess(QStringLiteral("unshare")).run(argumentsFor("true")).exitStatus != 0)
            GTEST_SKIP() << "no FUSE here";
        m_presenter.start(argumentsFor(QFile::encodeName(testProgram(QStringLiteral("presenter")))));
        ASSERT_EQ(newsAfter("0"), QByteArray("."));
    }

    QByteArray newsAfter(const char *milliseconds)
    {
        m_presenter.writeLine(milliseconds);
        return m_presenter.readLine();
    }

    ChildProcess m_presenter{QStringLiteral("unshare")};
};

TEST_F(MountedFileTest, IsCheckedEveryTwoSecondsWithOneLineInTheLog)
{
    writeFile(QStringLiteral("f.txt"), "behind the back of the mounted file system");
    EXPECT_EQ(newsAfter("1999"), QByteArray("."));
    EXPECT_EQ(newsAfter("151"), QByteArray("changed."));
    ASSERT_TRUE(QFile::remove(m_path));
    EXPECT_EQ(newsAfter("2500"), QByteArray("deleted."));
    const ChildProcess::Outcome outcome = m_presenter.finish();
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.toStdString();
}

TEST_F(MountedFileTest, IsDeletedIfItIsRenamedBehindTheMount)
{
    ASSERT_TRUE(QFile::rename(m_path, m_path + u'2'));
    EXPECT_EQ(newsAfter("2500"), QByteArray("deleted."));
}

TEST_F(UntoldChangesTest, FilesGeneratedByTheKernelAreChecked)
{
    EXPECT_TRUE(mayChangeUnnoticed("/proc/self/status"));
    EXPECT_FALSE(mayChangeUnnoticed(QFile::encodeName(m_path)));
    const RecordingLogSink log;
    FakeClock clock;
    RecordingPresenter presenter(QStringLiteral("/proc/self/status"));
    FileCoordinator::addFilePresenter(&presenter, clock);
    EXPECT_THAT(log.messages(), SizeIs(1));
    EXPECT_EQ(clock.runningTimers(), 1);
    RecordingPresenter local(m_path);
    FileCoordinator::addFilePresenter(&local, clock);
    EXPECT_THAT(log.messages(), SizeIs(1));
    EXPECT_EQ(clock.runningTimers(), 1);
}
