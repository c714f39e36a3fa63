// SPDX-License-Identifier: MIT
// FileState is what the system says of a file without opening it: which file it is, how long, when changed.
// Thread: any; a value.
#pragma once

#include <QByteArray>

#include <optional>

struct FileState {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0; ///< bytes; of a folder the bytes of its files
    // Nanoseconds since 1970; of a folder the latest of its own and its files'.
    qint64 modified = 0;
    qint64 changed = 0; ///< of the contents or of the attributes

    bool operator==(const FileState &) const = default;
};

/// Whether both tell of the same file with the same contents; another mode or owner is left out of account.
bool haveSameContents(const FileState &one, const FileState &other);

/// Of the document behind the path, symbolic links followed; absent where there is none. A folder is taken
/// with the files directly in it, as a document with attachments has them. path: bytes in any encoding.
std::optional<FileState> fileStateAt(const QByteArray &path);
