// SPDX-License-Identifier: MIT
#include "platform/system/SealedMemory.h"

#include "platform/system/SystemError.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using Cause = SealedMemoryError::Cause;

SealedMemoryError systemError(int number)
{
    return {Cause::SystemError, number};
}

int writeAll(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = write(descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno != EINTR)
            return errno;
        if (written > 0)
            bytes = bytes.sliced(written);
    }
    return 0;
}

} // namespace

QString causeText(const SealedMemoryError &error)
{
    switch (error.cause) {
    case Cause::NotSealed:
        return QStringLiteral("is not a memory file sealed against writing and shrinking");
    case Cause::LengthDiffers:
        return QStringLiteral("does not have the length that its sender claims");
    case Cause::SystemError:
        break;
    }
    return systemErrorText(error.systemError);
}

SealedMemory::MemoryResult SealedMemory::copyOf(QByteArrayView bytes)
{
    return fillAndSeal([bytes](int descriptor) { return writeAll(descriptor, bytes); });
}

SealedMemory::MemoryResult SealedMemory::fillAndSeal(const std::function<int(int descriptor)> &fill)
{
    const int descriptor = memfd_create("quillbay-document", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (descriptor < 0)
        return systemError(errno);
    int failure = fill(descriptor);
    if (failure == 0
        && fcntl(descriptor, F_ADD_SEALS, F_SEAL_WRITE | F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL) != 0)
        failure = errno;
    if (failure != 0) {
        close(descriptor);
        return systemError(failure);
    }
    return map(descriptor);
}

SealedMemory::MemoryResult SealedMemory::receive(int descriptor)
{
    const int seals = fcntl(descriptor, F_GET_SEALS);
    constexpr int wanted = F_SEAL_WRITE | F_SEAL_SHRINK;
    if (seals < 0 || (seals & wanted) != wanted)
        return SealedMemoryError{Cause::NotSealed};
    const int copy = fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    if (copy < 0)
        return systemError(errno);
    return map(copy);
}

SealedMemory::MemoryResult SealedMemory::receive(int descriptor, quint64 length)
{
    MemoryResult memory = receive(descriptor);
    if (memory && static_cast<quint64>(memory.value().size()) != length)
        return SealedMemoryError{Cause::LengthDiffers};
    return memory;
}

SealedMemory::MemoryResult SealedMemory::map(int descriptor)
{
    // Not fstat(): the C library makes it from a call that looks up paths, which a sandbox does not allow.
    const off_t size = lseek(descriptor, 0, SEEK_END);
    void *mapping = nullptr;
    bool failed = size < 0;
    if (size > 0) {
        mapping = mmap(nullptr, static_cast<size_t>(size), PROT_READ, MAP_PRIVATE, descriptor, 0);
        failed = mapping == MAP_FAILED;
    }
    if (failed) {
        const int number = errno;
        close(descriptor);
        return systemError(number);
    }
    return SealedMemory(descriptor, mapping, size);
}

SealedMemory::SealedMemory(int descriptor, void *mapping, qsizetype size)
    : m_descriptor(descriptor)
    , m_mapping(mapping)
    , m_size(size)
{
}

SealedMemory::SealedMemory(SealedMemory &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_mapping(std::exchange(other.m_mapping, nullptr))
    , m_size(std::exchange(other.m_size, 0))
{
}

SealedMemory &SealedMemory::operator=(SealedMemory &&other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_mapping, other.m_mapping);
    std::swap(m_size, other.m_size);
    return *this;
}

SealedMemory::~SealedMemory()
{
    if (m_mapping)
        munmap(m_mapping, static_cast<size_t>(m_size));
    if (m_descriptor >= 0)
        close(m_descriptor);
}
