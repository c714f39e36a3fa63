// SPDX-License-Identifier: MIT
// FileState is what the system says about a file without reading it: which file it is, its size and times,
// whether a writer has locked it, and what follows from where it lies.
// Thread: any.
#pragma once

#include <QByteArray>

#include <optional>

struct FileState {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0; ///< bytes; of a folder the sum of its files
    // Nanoseconds since 1970; of a folder the latest of its own and its files' times.
    qint64 modified = 0;
    qint64 changed = 0; ///< of the contents or of the attributes

    bool operator==(const FileState &) const = default;
};

/// Whether both describe the same file with the same contents. Ignores changes of mode and owner.
bool haveSameContents(const FileState &one, const FileState &other);

/// The state of the document at the path, symbolic links followed; absent if there is none. A folder includes
/// the files directly in it, since a document with attachments is one. path: bytes in any encoding.
std::optional<FileState> fileStateAt(const QByteArray &path);

/// Whether another program holds a writer's lock on the file: an exclusive lock of flock(2), or a write lock
/// of fcntl(2) on any part of it, owned by the process or by the open file. Locks for reading do not count,
/// nor does anything at a path that is not a regular file or may not be read. Keeps no lock itself: it would
/// make the saves of programs fail that do not wait for theirs.
bool isLockedByWriter(const QByteArray &path);

/// Whether the path is in a trash folder of this user (Trash 1.0 of freedesktop.org): the home trash, or that
/// of a file system, .Trash/UID or .Trash-UID. path: absolute.
bool isInTrash(const QByteArray &path);

/// Whether the file is on a file system whose files can change without events on this machine: a network file
/// system, one in user space (FUSE), one shared with a host, or one that the kernel generates.
bool mayChangeUnnoticed(const QByteArray &path);
