// SPDX-License-Identifier: MIT
#include "platform/system/SealedMemory.h"

#include "tests/harness/QuillbayTest.h"

#include <QFile>
#include <QRegularExpression>

#include <cerrno>
#include <limits>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using Cause = SealedMemoryError::Cause;

constexpr int allSeals = F_SEAL_WRITE | F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL;

SealedMemory copied(QByteArrayView bytes)
{
    auto memory = SealedMemory::copyOf(bytes);
    EXPECT_TRUE(memory);
    return std::move(memory).value();
}

// A memory file of an unknown sender.
class MemoryFile {
public:
    explicit MemoryFile(const QByteArray &bytes = "text", int seals = allSeals)
        : descriptor(memfd_create("test", MFD_CLOEXEC | MFD_ALLOW_SEALING))
    {
        EXPECT_EQ(::write(descriptor, bytes.constData(), static_cast<size_t>(bytes.size())), bytes.size());
        EXPECT_EQ(fcntl(descriptor, F_ADD_SEALS, seals), 0);
    }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;
    ~MemoryFile() { ::close(descriptor); }

    const int descriptor;
};

int numberOf(const SealedMemory::MemoryResult &memory)
{
    return memory ? 0 : memory.error().systemError;
}

std::optional<Cause> causeOf(const SealedMemory::MemoryResult &memory)
{
    return memory ? std::nullopt : std::optional(memory.error().cause);
}

bool isOpen(int descriptor)
{
    return fcntl(descriptor, F_GETFD) >= 0;
}

// Keeps the process from opening more descriptors.
class NoMoreDescriptors {
public:
    NoMoreDescriptors()
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        const int next = dup(0);
        ::close(next);
        rlimit now = m_before;
        now.rlim_cur = static_cast<rlim_t>(next);
        setrlimit(RLIMIT_NOFILE, &now);
    }
    NoMoreDescriptors(const NoMoreDescriptors &) = delete;
    NoMoreDescriptors &operator=(const NoMoreDescriptors &) = delete;
    ~NoMoreDescriptors() { setrlimit(RLIMIT_NOFILE, &m_before); }

private:
    rlimit m_before = {};
};

} // namespace

TEST(SealedMemory, ACopyHasTheBytes)
{
    const QByteArray bytes("text \0 with a zero", 18);
    const SealedMemory memory = copied(bytes);
    EXPECT_EQ(memory.bytes(), bytes);
    EXPECT_EQ(memory.size(), bytes.size());
}

TEST(SealedMemory, AnEmptyBlockHasADescriptorToo)
{
    const SealedMemory memory = copied({});
    EXPECT_TRUE(memory.bytes().isEmpty());
    EXPECT_EQ(memory.size(), 0);
    EXPECT_TRUE(isOpen(memory.descriptor()));
    auto received = SealedMemory::receive(memory.descriptor(), 0);
    ASSERT_TRUE(received);
    EXPECT_TRUE(received.value().bytes().isEmpty());
}

TEST(SealedMemory, ItCannotBeChanged)
{
    const SealedMemory memory = copied("text");
    EXPECT_EQ(fcntl(memory.descriptor(), F_GET_SEALS), allSeals);
    EXPECT_EQ(pwrite(memory.descriptor(), "T", 1, 0), -1);
    EXPECT_EQ(ftruncate(memory.descriptor(), 2), -1);
    EXPECT_EQ(ftruncate(memory.descriptor(), 20), -1);
    EXPECT_EQ(mmap(nullptr, 4, PROT_READ | PROT_WRITE, MAP_SHARED, memory.descriptor(), 0), MAP_FAILED);
    EXPECT_EQ(memory.bytes(), "text");
}

TEST(SealedMemory, ItsDescriptorIsNotInherited)
{
    const SealedMemory memory = copied("text");
    EXPECT_EQ(fcntl(memory.descriptor(), F_GETFD), FD_CLOEXEC);
    const auto received = SealedMemory::receive(memory.descriptor(), 4);
    ASSERT_TRUE(received);
    EXPECT_EQ(fcntl(received.value().descriptor(), F_GETFD), FD_CLOEXEC);
}

TEST(SealedMemory, AFillerWritesThroughTheDescriptor)
{
    auto memory = SealedMemory::fillAndSeal(
        [](int descriptor) { return ::write(descriptor, "filled", 6) == 6 ? 0 : errno; });
    ASSERT_TRUE(memory);
    EXPECT_EQ(memory.value().bytes(), "filled");
    EXPECT_EQ(fcntl(memory.value().descriptor(), F_GET_SEALS), allSeals);
}

TEST(SealedMemory, AFillerThatFailsLeavesNoDescriptorBehind)
{
    int seen = -1;
    const auto memory = SealedMemory::fillAndSeal([&seen](int descriptor) {
        seen = descriptor;
        return EIO;
    });
    EXPECT_EQ(causeOf(memory), Cause::SystemError);
    EXPECT_EQ(numberOf(memory), EIO);
    EXPECT_FALSE(isOpen(seen));
}

TEST(SealedMemory, AFillerThatKeepsAWritableMappingIsRefused)
{
    void *kept = nullptr;
    const auto memory = SealedMemory::fillAndSeal([&kept](int descriptor) {
        if (ftruncate(descriptor, 4096) != 0)
            return errno;
        kept = mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
        return 0;
    });
    EXPECT_EQ(numberOf(memory), EBUSY);
    munmap(kept, 4096);
}

TEST(SealedMemory, AReceivedBlockIsTheSendersFileUnderANewDescriptor)
{
    std::optional<SealedMemory> received;
    {
        const MemoryFile file("document");
        auto memory = SealedMemory::receive(file.descriptor, 8);
        ASSERT_TRUE(memory);
        EXPECT_NE(memory.value().descriptor(), file.descriptor);
        received = std::move(memory).value();
        EXPECT_TRUE(isOpen(file.descriptor));
    }
    EXPECT_EQ(received->bytes(), "document");
}

TEST(SealedMemory, TheSendersFilePositionDoesNotMatter)
{
    const MemoryFile file("document"); // its position is at the end
    auto memory = SealedMemory::receive(file.descriptor, 8);
    ASSERT_TRUE(memory);
    EXPECT_EQ(memory.value().bytes(), "document");
}

TEST(SealedMemory, AFileThatItsSenderCanChangeIsRefused)
{
    for (const int seals : {0, F_SEAL_WRITE, F_SEAL_SHRINK, F_SEAL_GROW, F_SEAL_SHRINK | F_SEAL_GROW,
             F_SEAL_FUTURE_WRITE | F_SEAL_SHRINK}) {
        const MemoryFile file("text", seals);
        EXPECT_EQ(causeOf(SealedMemory::receive(file.descriptor, 4)), Cause::NotSealed) << seals;
    }
    const MemoryFile file("text", F_SEAL_WRITE | F_SEAL_SHRINK);
    EXPECT_TRUE(SealedMemory::receive(file.descriptor, 4));
}

class SealedMemoryTest : public QuillbayTest { };

TEST_F(SealedMemoryTest, ADescriptorOfAnotherKindIsRefused)
{
    QFile file(writeFile(QStringLiteral("file"), "text"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(causeOf(SealedMemory::receive(file.handle(), 4)), Cause::NotSealed);
    int pipe[2];
    ASSERT_EQ(::pipe(pipe), 0);
    EXPECT_EQ(causeOf(SealedMemory::receive(pipe[0], 0)), Cause::NotSealed);
    ::close(pipe[0]);
    ::close(pipe[1]);
    EXPECT_EQ(causeOf(SealedMemory::receive(-1, 0)), Cause::NotSealed);
}

TEST(SealedMemory, AFileOfADifferentLengthIsRefused)
{
    const MemoryFile file("text");
    for (const quint64 length :
        {quint64{0}, quint64{3}, quint64{5}, quint64{1} << 32 | 4, std::numeric_limits<quint64>::max()})
        EXPECT_EQ(causeOf(SealedMemory::receive(file.descriptor, length)), Cause::LengthDiffers) << length;
    EXPECT_EQ(causeOf(SealedMemory::receive(MemoryFile(QByteArray()).descriptor, 1)), Cause::LengthDiffers);
}

TEST(SealedMemory, AMovedBlockKeepsBytesAndDescriptor)
{
    SealedMemory first = copied("first");
    const char *where = first.bytes().data();
    const int descriptor = first.descriptor();
    SealedMemory second(std::move(first));
    EXPECT_EQ(second.bytes().data(), where);
    EXPECT_EQ(second.bytes(), "first");

    int old = -1;
    {
        SealedMemory third = copied("third");
        old = third.descriptor();
        third = std::move(second);
        EXPECT_EQ(third.bytes().data(), where);
        EXPECT_EQ(third.descriptor(), descriptor);
    }
    EXPECT_FALSE(isOpen(descriptor));
    second = copied("fourth");
    EXPECT_EQ(second.bytes(), "fourth");
    EXPECT_TRUE(!isOpen(old) || second.descriptor() == old);
}

TEST(SealedMemory, DestroyingABlockClosesItsDescriptorAndMapping)
{
    int descriptor = -1;
    const auto isMapped = [] {
        QFile maps(QStringLiteral("/proc/self/maps"));
        EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
        return maps.readAll().contains("memfd:quillbay-document");
    };
    {
        const SealedMemory memory = copied("text");
        descriptor = memory.descriptor();
        EXPECT_TRUE(isMapped());
    }
    EXPECT_FALSE(isOpen(descriptor));
    EXPECT_FALSE(isMapped());
}

TEST(SealedMemory, AProcessWithoutFreeDescriptorsGetsAnError)
{
    const MemoryFile file("text");
    const NoMoreDescriptors limit;
    EXPECT_EQ(numberOf(SealedMemory::copyOf("text")), EMFILE);
    EXPECT_EQ(numberOf(SealedMemory::receive(file.descriptor, 4)), EMFILE);
}

TEST(SealedMemory, EveryCauseHasItsText)
{
    EXPECT_EQ(causeText({Cause::NotSealed}),
        QStringLiteral("is not a memory file sealed against writing and shrinking"));
    EXPECT_EQ(
        causeText({Cause::LengthDiffers}), QStringLiteral("does not have the length that its sender claims"));
    EXPECT_EQ(causeText({Cause::SystemError, EMFILE}), QStringLiteral("Too many open files"));
}
