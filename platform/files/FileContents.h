// SPDX-License-Identifier: MIT
// FileContents reads whole files, within limits and without ever waiting for another program.
// Thread: any.
#pragma once

#include "platform/system/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Why a file cannot be read; the caller knows which file.
struct FileError {
    enum class Cause {
        NoSuchFile,
        Folder,
        NamedPipe,
        Device,
        Socket,
        NoPermission,
        TooLarge, ///< larger than a document may be
        NotEnoughMemory, ///< for the contents and their text
        TooManySymbolicLinks,
        NameTooLong,
        InUse, ///< another program holds a lease on the file
        ReadFailed, ///< any other cause; see systemError
    };

    Cause cause;
    int systemError = 0; ///< errno for ReadFailed, otherwise 0

    bool operator==(const FileError &) const = default;
};

/// The cause in the user's language, on one line, to follow the name of the file: "is a folder".
QString causeText(const FileError &error);

/// The maximum size of a file in bytes. The positions in a text are 32 bits wide, so a text has less than
/// 2^31 - 1 UTF-16 code units, and no encoding makes more code units than it has bytes.
inline constexpr qint64 maxFileSize = INT32_MAX - 1;

struct FileLimits {
    qint64 maxSize = maxFileSize; ///< bytes
    std::optional<qint64> memory; ///< bytes for the contents and their text; absent: the memory available now
};

/// Reads a regular file, also through symbolic links; refuses anything else without opening it. Of a file
/// that grows meanwhile, reads the size at the time it was opened; of one that shrinks, what is left. Reads a
/// file of size 0 to its end, because files in /proc report that size. path: bytes in any encoding.
Result<QByteArray, FileError> readFile(const QByteArray &path, const FileLimits &limits = {});

/// Reads an open descriptor, such as standard input, from its position on. Reads a regular file as above;
/// waits for the end of anything else, except a folder. The descriptor stays open.
Result<QByteArray, FileError> readDescriptor(int descriptor, const FileLimits &limits = {});
