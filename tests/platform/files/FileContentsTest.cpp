// SPDX-License-Identifier: MIT
#include "platform/files/FileContents.h"

#include "platform/system/Sanitizers.h"
#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr qint64 mebibyte = 1'048'576;

class FileContents : public QuillbayTest {
protected:
    static QByteArray path(const char *name) { return QFile::encodeName(world().root()) + '/' + name; }

    static QByteArray written(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromLatin1(name), contents));
    }

    /// A sparse file of this length.
    static QByteArray sparseFile(const char *name, qint64 size)
    {
        QByteArray file = written(name, {});
        EXPECT_EQ(::truncate(file.constData(), size), 0);
        return file;
    }

    static QString causeFor(const QByteArray &file, const FileLimits &limits = {})
    {
        const Result<QByteArray, FileError> contents = ::readFile(file, limits);
        return contents ? QStringLiteral("none") : causeText(contents.error());
    }
};

} // namespace

TEST_F(FileContents, AFileIsReadWhole)
{
    const QByteArray bytes = QByteArray("one\0two\xFF\n", 9).repeated(100'000);
    EXPECT_EQ(::readFile(written("text", bytes)).value(), bytes);
    EXPECT_EQ(::readFile(written("empty", {})).value(), QByteArray());
}

TEST_F(FileContents, AFileNameIsBytesInAnyEncoding)
{
    const QByteArray file = path("caf\xE9 \xFF\n.txt");
    const int descriptor = ::open(file.constData(), O_CREAT | O_WRONLY, 0600);
    ASSERT_EQ(::write(descriptor, "text", 4), 4);
    ::close(descriptor);
    EXPECT_EQ(::readFile(file).value(), "text");
}

TEST_F(FileContents, ASymbolicLinkLeadsToItsFile)
{
    ASSERT_EQ(::symlink(written("text", "abc").constData(), path("link").constData()), 0);
    EXPECT_EQ(::readFile(path("link")).value(), "abc");
}

TEST_F(FileContents, AMissingFileIsReportedAsSuch)
{
    EXPECT_EQ(causeFor(path("missing")), QStringLiteral("no such file"));
    EXPECT_EQ(causeFor(written("text", "abc") + "/below"), QStringLiteral("no such file"));
    EXPECT_EQ(causeFor(QByteArray()), QStringLiteral("no such file"));
    ASSERT_EQ(::symlink("nowhere", path("dangling").constData()), 0);
    EXPECT_EQ(causeFor(path("dangling")), QStringLiteral("no such file"));
}

TEST_F(FileContents, ANulInANameDoesNotEndIt)
{
    EXPECT_EQ(causeFor(written("text", "abc") + QByteArray("\0.txt", 5)), QStringLiteral("no such file"));
}

TEST_F(FileContents, AFolderIsRefused)
{
    EXPECT_EQ(causeFor(QFile::encodeName(world().root())), QStringLiteral("is a folder"));
}

TEST_F(FileContents, ANamedPipeWithoutAWriterIsRefusedAtOnce)
{
    ASSERT_EQ(::mkfifo(path("pipe").constData(), 0600), 0);
    EXPECT_EQ(causeFor(path("pipe")), QStringLiteral("is a named pipe"));
}

TEST_F(FileContents, ADeviceIsRefused)
{
    EXPECT_EQ(causeFor("/dev/zero"), QStringLiteral("is a device"));
    EXPECT_EQ(causeFor("/dev/null"), QStringLiteral("is a device"));
    EXPECT_EQ(causeFor("/dev/tty"), QStringLiteral("is a device"));
}

TEST_F(FileContents, ASocketIsRefused)
{
    const QByteArray file = path("socket");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(static_cast<size_t>(file.size()), sizeof address.sun_path);
    std::memcpy(address.sun_path, file.constData(), static_cast<size_t>(file.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    EXPECT_EQ(causeFor(file), QStringLiteral("is a socket"));
    ::close(socket);
}

TEST_F(FileContents, AFileOfAnotherUserIsRefused)
{
    const QByteArray file = written("private", "secret");
    ASSERT_EQ(::chmod(file.constData(), 0), 0);
    EXPECT_EQ(ChildProcess(testProgram(QStringLiteral("read_file"))).asOtherUser().run({file}).output,
        "permission denied");
}

TEST_F(FileContents, AFileInAClosedFolderIsRefused)
{
    const QByteArray file = written("closed/text", "secret");
    ASSERT_EQ(::chmod((path("files/closed")).constData(), 0), 0);
    EXPECT_EQ(ChildProcess(testProgram(QStringLiteral("read_file"))).asOtherUser().run({file}).output,
        "permission denied");
    ASSERT_EQ(::chmod((path("files/closed")).constData(), 0700), 0);
}

TEST_F(FileContents, ALoopOfSymbolicLinksIsRefused)
{
    ASSERT_EQ(::symlink("two", path("one").constData()), 0);
    ASSERT_EQ(::symlink("one", path("two").constData()), 0);
    EXPECT_EQ(causeFor(path("one")), QStringLiteral("too many symbolic links"));
}

TEST_F(FileContents, AnImpossibleNameIsRefused)
{
    EXPECT_EQ(causeFor(path("") + QByteArray(300, 'x')), QStringLiteral("name is too long"));
    EXPECT_EQ(causeFor(QByteArray(100'000, '/')), QStringLiteral("name is too long"));
}

TEST_F(FileContents, AFileUnderAnotherProgramsLeaseIsRefusedInsteadOfWaitedFor)
{
    const QByteArray file = written("leased", "abc");
    const int owner = ::open(file.constData(), O_RDWR | O_CLOEXEC);
    // The kernel signals the owner of a lease when another process opens the file.
    const auto before = std::signal(SIGIO, SIG_IGN);
    if (::fcntl(owner, F_SETLEASE, F_WRLCK) != 0)
        GTEST_SKIP() << "this file system has no leases";
    EXPECT_EQ(causeFor(file), QStringLiteral("is in use by another program"));
    ::close(owner);
    std::signal(SIGIO, before);
    EXPECT_EQ(::readFile(file).value(), "abc");
}

TEST_F(FileContents, AReadFailureHasTheSystemsText)
{
    // Address 0 of a process is not mapped, so reading its memory there fails.
    EXPECT_EQ(causeFor("/proc/self/mem"), QStringLiteral("cannot be read (Input/output error)"));
}

TEST_F(FileContents, AFileLargerThanTheMaximumIsRefusedUnread)
{
    EXPECT_EQ(causeFor(sparseFile("sparse", 10'240 * mebibyte)), QStringLiteral("is larger than 2 GiB"));
    EXPECT_EQ(causeFor(sparseFile("sparse", maxFileSize + 1)), QStringLiteral("is larger than 2 GiB"));
}

TEST_F(FileContents, TheMaximumSizeIsRead)
{
    FileLimits limits;
    limits.maxSize = 100'000;
    EXPECT_EQ(::readFile(sparseFile("sparse", 100'000), limits).value().size(), 100'000);
    EXPECT_EQ(causeFor(sparseFile("sparse", 100'001), limits), QStringLiteral("is larger than 2 GiB"));
}

TEST_F(FileContents, AFileWhoseTextWouldNotFitIntoMemoryIsRefusedUnread)
{
    FileLimits limits;
    limits.memory = 3 * mebibyte;
    EXPECT_EQ(::readFile(sparseFile("sparse", mebibyte), limits).value().size(), mebibyte);
    EXPECT_EQ(causeFor(sparseFile("sparse", mebibyte + 1), limits), QStringLiteral("not enough memory"));
}

TEST_F(FileContents, AFailedAllocationIsReported)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitized program cannot run under a limit of its address space";
    const QByteArray file = sparseFile("sparse", 512 * mebibyte);
    ChildProcess reader(testProgram(QStringLiteral("read_file")));
    reader.afterFork([] {
        const rlimit limit{256 * mebibyte, 256 * mebibyte};
        ::setrlimit(RLIMIT_AS, &limit);
    });
    EXPECT_EQ(reader.run({file}).output, "not enough memory");
}

TEST_F(FileContents, AFileThatReportsSizeZeroIsReadToItsEnd)
{
    EXPECT_TRUE(::readFile("/proc/self/status").value().contains("\nPid:\t"));
    // Larger than the first read.
    EXPECT_EQ(::readFile("/proc/self/smaps").value().right(1), "\n");
    FileLimits limits;
    limits.maxSize = 10;
    EXPECT_EQ(causeFor("/proc/self/status", limits), QStringLiteral("is larger than 2 GiB"));
}

TEST_F(FileContents, AFileShorterThanItsSizeGivesWhatIsThere)
{
    // It reports a size of 4096 bytes, like a file that is shortened after it was opened.
    const QByteArray file = "/sys/devices/system/cpu/online";
    if (::access(file.constData(), R_OK) != 0)
        GTEST_SKIP() << "no /sys here";
    const QByteArray contents = ::readFile(file).value();
    EXPECT_EQ(contents.left(1), "0");
    EXPECT_LT(contents.size(), 1000);
}
