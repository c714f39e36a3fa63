// SPDX-License-Identifier: MIT
// SuiteFolder handles the folder of the suites: creates it, locks it for the processes that write there, and
// puts broken files aside. Paths are bytes in any encoding.
// Thread: any.  Owner: UserDefaults for a FolderLock.
#pragma once

#include "platform/system/OwnedDescriptor.h"

#include <QByteArray>

#include <chrono>

/// Creates the folder (for its owner only) and its parents if they are missing. Returns 0 or an errno.
int makeFolder(const QByteArray &path);

/// Holds an advisory lock (flock) on a folder while a suite is written or put aside. If two processes find a
/// suite broken at once, neither puts the new one aside, nor a file in which the other is writing. Readers
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
