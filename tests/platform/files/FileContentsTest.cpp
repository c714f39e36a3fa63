// SPDX-License-Identifier: MIT
#include "platform/files/FileContents.h"

#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <atomic>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <thread>
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

    /// A file of this length that takes no room on the disk.
    static QByteArray sparseFile(const char *name, qint64 size)
    {
        QByteArray file = written(name, {});
        EXPECT_EQ(::truncate(file.constData(), size), 0);
        return file;
    }

    static QString cause(const Result<QByteArray, FileError> &contents)
    {
        return contents ? QStringLiteral("none") : causeText(contents.error());
    }

    static QString causeFor(const QByteArray &file, const FileLimits &limits = {})
    {
        return cause(::readFile(file, limits));
    }
};

struct Pipe {
    explicit Pipe(int flags = 0)
    {
        int ends[2];
        EXPECT_EQ(::pipe2(ends, flags | O_CLOEXEC), 0);
        reading = ends[0];
        writing = ends[1];
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;
    ~Pipe()
    {
        ::close(reading);
        closeWriting();
    }
    void write(const QByteArray &bytes) const
    {
        EXPECT_EQ(::write(writing, bytes.constData(), static_cast<size_t>(bytes.size())), bytes.size());
    }
    void closeWriting()
    {
        if (writing >= 0)
            ::close(writing);
        writing = -1;
    }

    int reading = -1;
    int writing = -1;
};

/// Waits until a thread of this process sleeps in the kernel.
void waitUntilAsleep(pid_t thread)
{
    const QByteArray file = "/proc/self/task/" + QByteArray::number(thread) + "/stat";
    QByteArray status;
    do {
        QFile stat(QFile::decodeName(file));
        ASSERT_TRUE(stat.open(QIODevice::ReadOnly));
        status = stat.readAll();
    } while (!status.contains(") S "));
}

pid_t currentThread()
{
    return static_cast<pid_t>(::syscall(SYS_gettid));
}

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

TEST_F(FileContents, AMissingFileIsNamedSo)
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

TEST_F(FileContents, AFileOfSomebodyElseIsRefused)
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

TEST_F(FileContents, SymbolicLinksInACircleAreRefused)
{
    ASSERT_EQ(::symlink("two", path("one").constData()), 0);
    ASSERT_EQ(::symlink("one", path("two").constData()), 0);
    EXPECT_EQ(causeFor(path("one")), QStringLiteral("too many symbolic links"));
}

TEST_F(FileContents, ANameThatNoFileCanHaveIsRefused)
{
    EXPECT_EQ(causeFor(path("") + QByteArray(300, 'x')), QStringLiteral("name is too long"));
    EXPECT_EQ(causeFor(QByteArray(100'000, '/')), QStringLiteral("name is too long"));
}

TEST_F(FileContents, AFileUnderAnotherProgramsLeaseIsRefusedInsteadOfWaitedFor)
{
    const QByteArray file = written("leased", "abc");
    const int owner = ::open(file.constData(), O_RDWR | O_CLOEXEC);
    // The kernel tells the owner of a lease that somebody wants the file.
    const auto before = std::signal(SIGIO, SIG_IGN);
    if (::fcntl(owner, F_SETLEASE, F_WRLCK) != 0)
        GTEST_SKIP() << "this file system has no leases";
    EXPECT_EQ(causeFor(file), QStringLiteral("is in use by another program"));
    ::close(owner);
    std::signal(SIGIO, before);
    EXPECT_EQ(::readFile(file).value(), "abc");
}

TEST_F(FileContents, AFailureOfTheDiskIsToldInTheSystemsWords)
{
    // Address 0 of a process is mapped nowhere, so its memory cannot be read there.
    EXPECT_EQ(causeFor("/proc/self/mem"), QStringLiteral("cannot be read (Input/output error)"));
}

TEST_F(FileContents, AFileLargerThanADocumentMayBeIsRefusedUnread)
{
    EXPECT_EQ(causeFor(sparseFile("sparse", 10'240 * mebibyte)), QStringLiteral("is larger than 2 GiB"));
    EXPECT_EQ(causeFor(sparseFile("sparse", largestFileSize + 1)), QStringLiteral("is larger than 2 GiB"));
}

TEST_F(FileContents, TheLargestSizeIsStillRead)
{
    FileLimits limits;
    limits.largestSize = 100'000;
    EXPECT_EQ(::readFile(sparseFile("sparse", 100'000), limits).value().size(), 100'000);
    EXPECT_EQ(causeFor(sparseFile("sparse", 100'001), limits), QStringLiteral("is larger than 2 GiB"));
}

TEST_F(FileContents, AFileWhoseTextWouldNotFitIntoTheMemoryIsRefusedUnread)
{
    FileLimits limits;
    limits.memory = 3 * mebibyte;
    EXPECT_EQ(::readFile(sparseFile("sparse", mebibyte), limits).value().size(), mebibyte);
    EXPECT_EQ(causeFor(sparseFile("sparse", mebibyte + 1), limits), QStringLiteral("not enough memory"));
}

TEST_F(FileContents, AProcessThatMayNotHaveTheMemorySaysSo)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "a sanitized program cannot run under a limit of its address space";
#endif
    const QByteArray file = sparseFile("sparse", 512 * mebibyte);
    ChildProcess reader(testProgram(QStringLiteral("read_file")));
    reader.afterFork([] {
        const rlimit limit{256 * mebibyte, 256 * mebibyte};
        ::setrlimit(RLIMIT_AS, &limit);
    });
    EXPECT_EQ(reader.run({file}).output, "not enough memory");
}

TEST_F(FileContents, AFileThatSaysToBeEmptyIsReadToItsEnd)
{
    EXPECT_TRUE(::readFile("/proc/self/status").value().contains("\nPid:\t"));
    // Larger than the first piece that is read.
    EXPECT_EQ(::readFile("/proc/self/smaps").value().right(1), "\n");
    FileLimits limits;
    limits.largestSize = 10;
    EXPECT_EQ(causeFor("/proc/self/status", limits), QStringLiteral("is larger than 2 GiB"));
}

TEST_F(FileContents, AFileWithLessThanItsSizeGivesWhatIsThere)
{
    // It says to have a page of 4096 bytes, as a file does that is shortened after it was opened.
    const QByteArray file = "/sys/devices/system/cpu/online";
    if (::access(file.constData(), R_OK) != 0)
        GTEST_SKIP() << "no /sys here";
    const QByteArray contents = ::readFile(file).value();
    EXPECT_EQ(contents.left(1), "0");
    EXPECT_LT(contents.size(), 1000);
}

TEST_F(FileContents, AFileThatGrowsIsReadAsFarAsItWasLongAtFirst)
{
    const QByteArray file = sparseFile("log", mebibyte);
    const int descriptor = ::open(file.constData(), O_RDWR | O_CLOEXEC);
    // The position is the reader's too: the end of the file is always out of the reader's reach.
    std::atomic<bool> started = false;
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        while (!stop) {
            const off_t position = ::lseek(descriptor, 0, SEEK_CUR);
            EXPECT_EQ(::ftruncate(descriptor, position + mebibyte), 0);
            started = true;
        }
    });
    while (!started)
        std::this_thread::yield();
    EXPECT_EQ(readDescriptor(descriptor).value().size(), mebibyte);
    stop = true;
    writer.join();
    ::close(descriptor);
}

TEST_F(FileContents, ADescriptorOfAFileIsReadFromItsPosition)
{
    const int descriptor = ::open(written("text", "first\nsecond\n").constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::lseek(descriptor, 6, SEEK_SET), 6);
    EXPECT_EQ(readDescriptor(descriptor).value(), "second\n");
    EXPECT_EQ(readDescriptor(descriptor).value(), QByteArray());
    ASSERT_EQ(::lseek(descriptor, 100, SEEK_SET), 100);
    EXPECT_EQ(readDescriptor(descriptor).value(), QByteArray());
    ::close(descriptor);
}

TEST_F(FileContents, AFolderOnADescriptorIsRefused)
{
    const int descriptor = ::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    EXPECT_EQ(cause(readDescriptor(descriptor)), QStringLiteral("is a folder"));
    ::close(descriptor);
}

TEST_F(FileContents, AClosedDescriptorIsAnError)
{
    EXPECT_EQ(cause(readDescriptor(-1)), QStringLiteral("cannot be read (Bad file descriptor)"));
}

TEST_F(FileContents, APipeIsReadToItsEnd)
{
    Pipe pipe;
    const QByteArray bytes = QByteArray("0123456789").repeated(50'000);
    std::thread writer([&] {
        for (qsizetype at = 0; at < bytes.size(); at += 1000)
            pipe.write(bytes.mid(at, 1000));
        pipe.closeWriting();
    });
    EXPECT_EQ(readDescriptor(pipe.reading).value(), bytes);
    writer.join();
}

TEST_F(FileContents, AnEmptyDeviceAsInputIsAnEmptyText)
{
    const int descriptor = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(readDescriptor(descriptor).value(), QByteArray());
    ::close(descriptor);
}

TEST_F(FileContents, AnEndlessInputIsRefusedAtTheLimit)
{
    const int descriptor = ::open("/dev/zero", O_RDONLY | O_CLOEXEC);
    FileLimits limits;
    limits.largestSize = 10 * mebibyte;
    EXPECT_EQ(cause(readDescriptor(descriptor, limits)), QStringLiteral("is larger than 2 GiB"));
    limits.memory = 3 * mebibyte;
    EXPECT_EQ(cause(readDescriptor(descriptor, limits)), QStringLiteral("not enough memory"));
    ::close(descriptor);
}

TEST_F(FileContents, AnInputAsLongAsTheLimitIsStillRead)
{
    FileLimits limits;
    limits.largestSize = 5;
    Pipe pipe;
    pipe.write("12345");
    pipe.closeWriting();
    EXPECT_EQ(readDescriptor(pipe.reading, limits).value(), "12345");
}

TEST_F(FileContents, ADescriptorThatDoesNotBlockIsWaitedFor)
{
    Pipe pipe(O_NONBLOCK);
    const pid_t reader = currentThread();
    std::thread writer([&] {
        waitUntilAsleep(reader);
        pipe.write("late");
        pipe.closeWriting();
    });
    EXPECT_EQ(readDescriptor(pipe.reading).value(), "late");
    writer.join();
}

TEST_F(FileContents, ASignalDoesNotEndTheReading)
{
    static std::atomic<int> signalCount = 0;
    struct sigaction count { };
    struct sigaction before;
    count.sa_handler = [](int) { ++signalCount; };
    ASSERT_EQ(::sigaction(SIGUSR1, &count, &before), 0); // without SA_RESTART

    Pipe pipe;
    const pid_t reader = currentThread();
    const pthread_t readerHandle = ::pthread_self();
    std::thread writer([&] {
        for (int sent = 1; sent <= 20; ++sent) {
            waitUntilAsleep(reader);
            ::pthread_kill(readerHandle, SIGUSR1);
            while (signalCount < sent)
                std::this_thread::yield();
        }
        pipe.write("whole");
        pipe.closeWriting();
    });
    EXPECT_EQ(readDescriptor(pipe.reading).value(), "whole");
    writer.join();
    ::sigaction(SIGUSR1, &before, nullptr);
}

TEST_F(FileContents, StandardInputOfAProgramIsRead)
{
    ChildProcess reader(testProgram(QStringLiteral("read_file")));
    EXPECT_EQ(reader.run({}, QByteArray(200'000, 'x')).output, "200000 bytes");
}
