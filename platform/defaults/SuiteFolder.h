// SPDX-License-Identifier: MIT
// What a suite needs of the folder that it lies in: the folder itself, a lock between the processes that
// write there, and a way to put a broken file aside. Thread: any.  Paths are in the file system's bytes.
#pragma once

#include <QByteArray>

#include <chrono>

/// Makes the folder (for its owner only) and those above it where they are missing. Returns 0 or an errno.
int makeFolder(const QByteArray &path);

/// Holds an advisory lock (flock) on a folder. Whoever writes a suite or puts one aside holds it, so that two
/// processes that find a suite broken at once never put aside the fresh one, and none is in the middle of a
/// transaction on a file that another puts aside. Readers need no lock: the database has its own.
class FolderLock {
public:
    /// Waits for other holders for at most the given time.
    FolderLock(const QByteArray &folder, std::chrono::milliseconds limit);
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;
    ~FolderLock();

    /// 0 where the lock is held, EWOULDBLOCK where the time ran out, else why it cannot be had.
    [[nodiscard]] int error() const { return m_error; }

private:
    int m_descriptor;
    int m_error = 0;
};

/// Renames a database and the files that belong to it, so that the path is free and the old content can still
/// be looked at. To be called under the folder's lock. Returns the new path, empty on failure (errno says
/// why).
QByteArray putAside(const QByteArray &databasePath);
