// SPDX-License-Identifier: MIT
#include "platform/files/FileContents.h"

#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr qint64 oneMebibyte = 1'048'576;

class DescriptorContents : public QuillbayTest {
protected:
    static QByteArray written(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromLatin1(name), contents));
    }

    static QString causeFor(int descriptor, const FileLimits &limits = {})
    {
        const Result<QByteArray, FileError> contents = readDescriptor(descriptor, limits);
        return contents ? QStringLiteral("none") : causeText(contents.error());
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

TEST_F(DescriptorContents, AFileThatGrowsIsReadUpToItsFirstSize)
{
    const int descriptor = ::open(written("log", {}).constData(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::ftruncate(descriptor, oneMebibyte), 0);
    // Writer and reader share the position, so the reader never reaches the end of the file.
    std::atomic<bool> started = false;
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        while (!stop) {
            const off_t position = ::lseek(descriptor, 0, SEEK_CUR);
            EXPECT_EQ(::ftruncate(descriptor, position + oneMebibyte), 0);
            started = true;
        }
    });
    while (!started)
        std::this_thread::yield();
    EXPECT_EQ(readDescriptor(descriptor).value().size(), oneMebibyte);
    stop = true;
    writer.join();
    ::close(descriptor);
}

TEST_F(DescriptorContents, ADescriptorOfAFileIsReadFromItsPosition)
{
    const int descriptor = ::open(written("text", "first\nsecond\n").constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::lseek(descriptor, 6, SEEK_SET), 6);
    EXPECT_EQ(readDescriptor(descriptor).value(), "second\n");
    EXPECT_EQ(readDescriptor(descriptor).value(), QByteArray());
    ASSERT_EQ(::lseek(descriptor, 100, SEEK_SET), 100);
    EXPECT_EQ(readDescriptor(descriptor).value(), QByteArray());
    ::close(descriptor);
}

TEST_F(DescriptorContents, AFolderOnADescriptorIsRefused)
{
    const int descriptor = ::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    EXPECT_EQ(causeFor(descriptor), QStringLiteral("is a folder"));
    ::close(descriptor);
}

TEST_F(DescriptorContents, AClosedDescriptorIsAnError)
{
    EXPECT_EQ(causeFor(-1), QStringLiteral("cannot be read (Bad file descriptor)"));
}

TEST_F(DescriptorContents, APipeIsReadToItsEnd)
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

TEST_F(DescriptorContents, AnEmptyDeviceAsInputIsAnEmptyText)
{
    const int descriptor = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(readDescriptor(descriptor).value(), QByteArray());
    ::close(descriptor);
}

TEST_F(DescriptorContents, AnEndlessInputIsRefusedAtTheLimit)
{
    const int descriptor = ::open("/dev/zero", O_RDONLY | O_CLOEXEC);
    FileLimits limits;
    limits.maxSize = 10 * oneMebibyte;
    EXPECT_EQ(causeFor(descriptor, limits), QStringLiteral("is larger than 2 GiB"));
    limits.memory = 3 * oneMebibyte;
    EXPECT_EQ(causeFor(descriptor, limits), QStringLiteral("not enough memory"));
    ::close(descriptor);
}

TEST_F(DescriptorContents, AnInputOfTheMaximumSizeIsRead)
{
    FileLimits limits;
    limits.maxSize = 5;
    Pipe pipe;
    pipe.write("12345");
    pipe.closeWriting();
    EXPECT_EQ(readDescriptor(pipe.reading, limits).value(), "12345");
}

TEST_F(DescriptorContents, ANonBlockingDescriptorIsWaitedFor)
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

TEST_F(DescriptorContents, ASignalDoesNotEndTheReading)
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

TEST_F(DescriptorContents, StandardInputOfAProgramIsRead)
{
    ChildProcess reader(testProgram(QStringLiteral("read_file")));
    EXPECT_EQ(reader.run({}, QByteArray(200'000, 'x')).output, "200000 bytes");
}
