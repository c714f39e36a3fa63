// SPDX-License-Identifier: MIT
// Reading a file whole, within bounds and without ever waiting for another program.
// Thread: any.
#pragma once

#include "platform/files/FileError.h"
#include "platform/system/Result.h"

#include <QByteArray>

#include <optional>

/// The most bytes that a file may have. The positions in a text are 32 bits wide, so a text has less than
/// 2^31 - 1 UTF-16 code units, and no encoding makes more code units than it has bytes.
inline constexpr qint64 largestFileSize = INT32_MAX - 1;

/// How many bytes of memory each byte of a file takes until it is a text: itself and one UTF-16 code unit.
inline constexpr qint64 memoryPerByte = 3;

struct FileLimits {
    qint64 largestSize = largestFileSize; ///< bytes
    std::optional<qint64> memory; ///< bytes for the contents and their text; absent: what is available now
};

/// The bytes of a regular file, or of what a symbolic link to one leads to; anything else is refused without
/// being opened. A file that grows meanwhile is read as far as it was long when it was opened; one that
/// shrinks gives what is left. A file that says to be empty is read to its end, since those in /proc say so.
/// path: as the system holds it, bytes in any encoding.
Result<QByteArray, FileError> readFile(const QByteArray &path, const FileLimits &limits = {});

/// What an open descriptor, such as standard input, has from its position on. A regular file is read as
/// above; anything else but a folder to its end, waiting for it. The descriptor stays open.
Result<QByteArray, FileError> readDescriptor(int descriptor, const FileLimits &limits = {});
