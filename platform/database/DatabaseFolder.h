// SPDX-License-Identifier: MIT
// DatabaseFolder handles the folder of databases: creates it, locks it for the processes that write there,
// and puts broken files aside. Paths are bytes in any encoding.
// Thread: any.  Owner: the function that writes, for a FolderLock.
#pragma once

#include "platform/database/DatabaseFile.h"
#include "platform/system/OwnedDescriptor.h"

#include <QByteArray>

#include <chrono>
#include <functional>
#include <optional>

/// Creates the folder (for its owner only) and its parents if they are missing. Returns 0 or an errno.
int makeFolder(const QByteArray &path);

/// Holds an advisory lock (flock) on a folder while a database is written or put aside. If two processes find
/// one broken at once, neither puts the new one aside, nor a file in which the other is writing. Readers
/// need no lock: the database has its own.
class FolderLock {
public:
    /// Waits for other holders until the timeout.
    FolderLock(const QByteArray &folder, std::chrono::milliseconds timeout);
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;
    ~FolderLock();

    /// 0 if the lock is held, EWOULDBLOCK after the timeout, otherwise the errno of the failure.
    [[nodiscard]] int error() const { return m_error; }

private:
    OwnedDescriptor m_descriptor;
    int m_error = 0;
};

/// Renames a database and its journals, so that the path is free and the old content is not lost. To be
/// called while the folder is locked. Returns the new path, empty on failure (see errno).
QByteArray putAside(const QByteArray &databasePath);

/// Writes to a database of the folder, which is created if it is missing. A broken file is put aside, and
/// its user told, before the second attempt.
std::optional<DatabaseFault> writeInFolder(DatabaseFile &database, std::chrono::milliseconds timeout,
    const std::function<std::optional<DatabaseFault>()> &write,
    const std::function<void(const DatabaseFault &fault, const QByteArray &newName)> &putAsideDone);
