// SPDX-License-Identifier: MIT
// HeldFiles are the files to which this process has opened a security-scoped access: each is held by an open
// descriptor, so that it is found again after a move. Thread: main.
#pragma once

#include "platform/file_coordination/PinnedFile.h"

#include <QByteArray>

#include <memory>
#include <optional>

/// Which file a bookmark was made of, whatever its name; a birth time tells apart two files to which the
/// system has given the same inode number one after the other.
struct FileIdentity {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 birthTime = 0; ///< nanoseconds since 1970; 0 where the file system keeps none

    bool operator==(const FileIdentity &) const = default;
};

/// Of what is at the path, symbolic links not followed; absent where there is nothing.
std::optional<FileIdentity> fileIdentityAt(const QByteArray &path);

/// One file, held from its making to the end of its life.
class HeldFile {
public:
    /// bookmarked: the file of the bookmark, in whose place another one may lie at the path by now.
    static std::unique_ptr<HeldFile> hold(const QByteArray &path, const FileIdentity &bookmarked);

    HeldFile(const HeldFile &) = delete;
    HeldFile &operator=(const HeldFile &) = delete;
    ~HeldFile();

    /// Where the file held for a bookmark of this file is now; absent where none is held or it has gone.
    static std::optional<QByteArray> whereabouts(const FileIdentity &bookmarked);
    /// Another file has been put in the place of the one held at this path, as happens at every save of most
    /// programs; it is held from now on.
    static void replacedAt(const QByteArray &path);

private:
    HeldFile(QByteArray path, const FileIdentity &bookmarked, PinnedFile pin);

    QByteArray m_path;
    FileIdentity m_bookmarked;
    PinnedFile m_pin;
};
