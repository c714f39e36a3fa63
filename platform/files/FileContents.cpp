// SPDX-License-Identifier: MIT
#include "platform/files/FileContents.h"

#include "platform/system/OwnedDescriptor.h"

#include <QByteArrayView>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <new>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Contents = Result<QByteArray, FileError>;

/// Whether a read may wait for what is yet to come.
enum class Waiting { Never, Allowed };

constexpr qint64 firstPieceSize = 65'536; // bytes; what a pipe holds

FileError errorFor(int systemError)
{
    switch (systemError) {
    case ENOENT:
    case ENOTDIR:
        return {FileError::Cause::NoSuchFile};
    case EISDIR:
        return {FileError::Cause::Folder};
    case EACCES:
    case EPERM:
        return {FileError::Cause::NoPermission};
    case ELOOP:
        return {FileError::Cause::TooManySymbolicLinks};
    case ENAMETOOLONG:
        return {FileError::Cause::NameTooLong};
    case ENOMEM:
        return {FileError::Cause::NotEnoughMemory};
    default:
        return {FileError::Cause::ReadFailed, systemError};
    }
}

/// Why a file of this kind is not read at all; absent for regular files.
std::optional<FileError> errorForKind(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return std::nullopt;
    case S_IFDIR:
        return FileError{FileError::Cause::Folder};
    case S_IFIFO:
        return FileError{FileError::Cause::NamedPipe};
    case S_IFSOCK:
        return FileError{FileError::Cause::Socket};
    default:
        return FileError{FileError::Cause::Device};
    }
}

int openForReading(const QByteArray &path)
{
    int descriptor;
    do {
        descriptor = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    } while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

void waitUntilReadable(int descriptor)
{
    pollfd request{descriptor, POLLIN, 0};
    ::poll(&request, 1, -1);
}

/// The number of bytes read, 0 at the end, or -1 with errno set.
ssize_t readPiece(int descriptor, char *to, qint64 size, Waiting waiting)
{
    for (;;) {
        const ssize_t count = ::read(descriptor, to, static_cast<size_t>(size));
        if (count >= 0)
            return count;
        // Who gave us the descriptor may have made it non-blocking for a purpose of their own.
        if (errno == EAGAIN && waiting == Waiting::Allowed)
            waitUntilReadable(descriptor);
        else if (errno != EINTR)
            return -1;
    }
}

/// Bytes that can be had without driving other programs out of memory; unbounded where the system does not
/// tell, as in a sandbox.
qint64 availableMemory()
{
    constexpr qint64 unknown = INT64_MAX;
    const OwnedDescriptor descriptor(openForReading("/proc/meminfo"));
    char text[4096];
    const ssize_t length = !descriptor ? -1 : readPiece(descriptor.get(), text, sizeof text, Waiting::Never);
    if (length < 0)
        return unknown;
    const QByteArrayView label("MemAvailable:");
    const qsizetype at = QByteArrayView(text, length).indexOf(label);
    if (at < 0)
        return unknown;
    const char *number = text + at + label.size();
    const char *end = text + length;
    number = std::find_if(number, end, [](char character) { return character != ' '; });
    qint64 kibibytes = 0;
    if (std::from_chars(number, end, kibibytes).ec != std::errc())
        return unknown;
    return kibibytes * 1024;
}

/// Absent where contents of this size may be read.
std::optional<FileError> errorForSize(qint64 size, const FileLimits &limits)
{
    if (size > limits.largestSize)
        return FileError{FileError::Cause::TooLarge};
    // Asked beforehand: memory that the system has promised and cannot give ends the process, not the read.
    if (size > *limits.memory / memoryPerByte)
        return FileError{FileError::Cause::NotEnoughMemory};
    return std::nullopt;
}

/// size: what is read at most.
Contents readUpTo(int descriptor, qint64 size, const FileLimits &limits)
{
    if (const std::optional<FileError> error = errorForSize(size, limits))
        return *error;
    QByteArray contents(size, Qt::Uninitialized);
    qint64 length = 0;
    while (length < size) {
        const ssize_t count = readPiece(descriptor, contents.data() + length, size - length, Waiting::Never);
        if (count < 0)
            return errorFor(errno);
        if (count == 0)
            break;
        length += count;
    }
    contents.truncate(length);
    return contents;
}

Contents readToEnd(int descriptor, const FileLimits &limits, Waiting waiting)
{
    QByteArray contents;
    qint64 length = 0;
    for (;;) {
        if (const std::optional<FileError> error = errorForSize(length, limits))
            return *error;
        if (length == contents.size())
            contents.resize(std::min(std::max(2 * length, firstPieceSize), limits.largestSize + 1));
        const ssize_t count =
            readPiece(descriptor, contents.data() + length, contents.size() - length, waiting);
        if (count < 0)
            return errorFor(errno);
        if (count == 0)
            break;
        length += count;
    }
    contents.truncate(length);
    return contents;
}

/// Of a regular file, from the descriptor's position on.
Contents readRegularFile(int descriptor, qint64 size, const FileLimits &limits)
{
    if (size == 0)
        return readToEnd(descriptor, limits, Waiting::Never);
    const qint64 position = ::lseek(descriptor, 0, SEEK_CUR);
    if (position < 0)
        return errorFor(errno);
    return readUpTo(descriptor, std::max<qint64>(size - position, 0), limits);
}

Contents contentsOfPath(const QByteArray &path, const FileLimits &limits)
{
    // The system would take the name to end there, and open another file.
    if (path.contains('\0'))
        return FileError{FileError::Cause::NoSuchFile};
    struct stat status;
    if (::stat(path.constData(), &status) != 0)
        return errorFor(errno);
    // Asked before it is opened: to open a device can rewind a tape or start a watchdog.
    if (const std::optional<FileError> error = errorForKind(status.st_mode))
        return *error;
    const OwnedDescriptor descriptor(openForReading(path));
    if (!descriptor && errno == EWOULDBLOCK)
        return FileError{FileError::Cause::InUse};
    if (!descriptor || ::fstat(descriptor.get(), &status) != 0)
        return errorFor(errno);
    // Asked again: another file may have come under that name.
    if (const std::optional<FileError> error = errorForKind(status.st_mode))
        return *error;
    return readRegularFile(descriptor.get(), status.st_size, limits);
}

Contents contentsOfDescriptor(int descriptor, const FileLimits &limits)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0)
        return errorFor(errno);
    if (S_ISDIR(status.st_mode))
        return FileError{FileError::Cause::Folder};
    if (S_ISREG(status.st_mode))
        return readRegularFile(descriptor, status.st_size, limits);
    return readToEnd(descriptor, limits, Waiting::Allowed);
}

/// With every bound in place, and every failure to get memory turned into an error.
template <typename Read>
Contents readWithin(FileLimits limits, Read read)
{
    try {
        if (!limits.memory)
            limits.memory = availableMemory();
        return read(limits);
    } catch (const std::bad_alloc &) {
        return FileError{FileError::Cause::NotEnoughMemory};
    }
}

} // namespace

Contents readFile(const QByteArray &path, const FileLimits &limits)
{
    return readWithin(limits, [&](const FileLimits &bounds) { return contentsOfPath(path, bounds); });
}

Contents readDescriptor(int descriptor, const FileLimits &limits)
{
    return readWithin(
        limits, [&](const FileLimits &bounds) { return contentsOfDescriptor(descriptor, bounds); });
}
