// SPDX-License-Identifier: MIT
#include "platform/files/FileContents.h"

#include "platform/system/OwnedDescriptor.h"
#include "platform/system/SystemError.h"

#include <QByteArrayView>
#include <QCoreApplication>

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

/// Bytes of memory for each byte of a file: itself and one UTF-16 code unit of its text.
constexpr qint64 memoryPerByte = 3;

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
        // The descriptor may be non-blocking for a purpose of its owner.
        if (errno == EAGAIN && waiting == Waiting::Allowed)
            waitUntilReadable(descriptor);
        else if (errno != EINTR)
            return -1;
    }
}

/// Bytes that are available without taking memory from other programs; no limit if the system does not report
/// it, as in a sandbox.
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

/// Absent if contents of this size may be read.
std::optional<FileError> errorForSize(qint64 size, const FileLimits &limits)
{
    if (size > limits.maxSize)
        return FileError{FileError::Cause::TooLarge};
    // Checked first: the system may grant memory that it does not have, and kill the process later.
    if (size > *limits.memory / memoryPerByte)
        return FileError{FileError::Cause::NotEnoughMemory};
    return std::nullopt;
}

/// size: the maximum number of bytes.
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
            contents.resize(std::min(std::max(2 * length, firstPieceSize), limits.maxSize + 1));
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

/// Reads a regular file from the descriptor's position on.
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
    // The system would cut the name there, and open another file.
    if (path.contains('\0'))
        return FileError{FileError::Cause::NoSuchFile};
    struct stat status;
    if (::stat(path.constData(), &status) != 0)
        return errorFor(errno);
    // Checked before it is opened: opening a device can rewind a tape or start a watchdog.
    if (const std::optional<FileError> error = errorForKind(status.st_mode))
        return *error;
    const OwnedDescriptor descriptor(openForReading(path));
    if (!descriptor && errno == EWOULDBLOCK)
        return FileError{FileError::Cause::InUse};
    if (!descriptor || ::fstat(descriptor.get(), &status) != 0)
        return errorFor(errno);
    // Checked again: another file may have got that name.
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

/// Applies all limits, and turns a failed allocation into an error.
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

QString causeText(const FileError &error)
{
    switch (error.cause) {
    case FileError::Cause::NoSuchFile:
        return QCoreApplication::translate("platform/files", "no such file");
    case FileError::Cause::Folder:
        return QCoreApplication::translate("platform/files", "is a folder");
    case FileError::Cause::NamedPipe:
        return QCoreApplication::translate("platform/files", "is a named pipe");
    case FileError::Cause::Device:
        return QCoreApplication::translate("platform/files", "is a device");
    case FileError::Cause::Socket:
        return QCoreApplication::translate("platform/files", "is a socket");
    case FileError::Cause::NoPermission:
        return QCoreApplication::translate("platform/files", "permission denied");
    case FileError::Cause::TooLarge:
        return QCoreApplication::translate("platform/files", "is larger than 2 GiB");
    case FileError::Cause::NotEnoughMemory:
        return QCoreApplication::translate("platform/files", "not enough memory");
    case FileError::Cause::TooManySymbolicLinks:
        return QCoreApplication::translate("platform/files", "too many symbolic links");
    case FileError::Cause::NameTooLong:
        return QCoreApplication::translate("platform/files", "name is too long");
    case FileError::Cause::InUse:
        return QCoreApplication::translate("platform/files", "is in use by another program");
    case FileError::Cause::ReadFailed:
        break;
    }
    return QCoreApplication::translate("platform/files", "cannot be read (%1)")
        .arg(translatedSystemError(error.systemError));
}

Contents readFile(const QByteArray &path, const FileLimits &limits)
{
    return readWithin(limits, [&](const FileLimits &bounds) { return contentsOfPath(path, bounds); });
}

Contents readDescriptor(int descriptor, const FileLimits &limits)
{
    return readWithin(
        limits, [&](const FileLimits &bounds) { return contentsOfDescriptor(descriptor, bounds); });
}
