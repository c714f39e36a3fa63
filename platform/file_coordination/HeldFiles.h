// SPDX-License-Identifier: MIT
// HeldFiles follow files through moves by open descriptors: PinnedFile one file, HeldFile the file of a
// security-scoped access.
// Thread: any for PinnedFile, main for HeldFile.  Owner: whoever follows the file.
#pragma once

#include "platform/system/OwnedDescriptor.h"

#include <QByteArray>

#include <memory>
#include <optional>

/// Keeps a descriptor of one file and knows where the file is now, whatever happens to its name. A symbolic
/// link is pinned itself, not its target. While a file is pinned, the system gives its inode number to no
/// other file, and a removable disk cannot be unmounted.
class PinnedFile {
public:
    /// Pins nothing.
    PinnedFile() = default;
    /// Pins nothing if there is no file at the path.
    explicit PinnedFile(const QByteArray &path);

    /// Pins that file instead. The old one is closed on another thread: if it was deleted, closing its last
    /// descriptor frees its blocks, which takes milliseconds for each megabyte.
    void replaceBy(PinnedFile file);

    explicit operator bool() const { return static_cast<bool>(m_descriptor); }

    /// Whether the path names this very file.
    [[nodiscard]] bool isAt(const QByteArray &path) const;
    /// Its absolute path; absent if it has no name any more. Of several names, the one by which it was
    /// pinned.
    [[nodiscard]] std::optional<QByteArray> whereabouts() const;

private:
    OwnedDescriptor m_descriptor;
};

/// Identifies the file of a bookmark, whatever its name. The birth time tells two files apart that had the
/// same inode number one after the other.
struct FileIdentity {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 birthTime = 0; ///< nanoseconds since 1970; 0 if the file system keeps none

    bool operator==(const FileIdentity &) const = default;
};

/// The identity of what is at the path, symbolic links not followed; absent if there is nothing.
std::optional<FileIdentity> fileIdentityAt(const QByteArray &path);

/// A file with a security-scoped access, held as long as this object exists.
class HeldFile {
public:
    /// bookmarked: the file of the bookmark; by now another one may be at the path. Null if no file can be
    /// read there.
    static std::unique_ptr<HeldFile> hold(const QByteArray &path, const FileIdentity &bookmarked);

    HeldFile(const HeldFile &) = delete;
    HeldFile &operator=(const HeldFile &) = delete;
    ~HeldFile();

    /// Where the file held for a bookmark of this file is now; absent if none is held or it was deleted.
    static std::optional<QByteArray> whereabouts(const FileIdentity &bookmarked);
    /// Holds the new file at this path instead of the old one: most programs replace the file when they save.
    static void replaceAt(const QByteArray &path);

private:
    HeldFile(QByteArray path, const FileIdentity &bookmarked, PinnedFile pin);

    QByteArray m_path;
    FileIdentity m_bookmarked;
    PinnedFile m_pin;
};
