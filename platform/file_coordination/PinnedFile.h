// SPDX-License-Identifier: MIT
// PinnedFile holds on to one file, whatever becomes of its name, and knows where the file is now. A symbolic
// link is pinned itself, not what it leads to. While it lives, the system gives the file's inode number to no
// other file, and a removable disk cannot be unmounted. Thread: any.
#pragma once

#include "platform/system/OwnedDescriptor.h"

#include <QByteArray>

#include <optional>

class PinnedFile {
public:
    /// Pins nothing.
    PinnedFile() = default;
    /// Pins nothing where there is no file at the path.
    explicit PinnedFile(const QByteArray &path);

    explicit operator bool() const { return static_cast<bool>(m_descriptor); }

    /// Whether this very file is what the path names.
    [[nodiscard]] bool isAt(const QByteArray &path) const;
    /// Its absolute path; absent once it has no name any more. One of several names is followed: that by
    /// which it was pinned.
    [[nodiscard]] std::optional<QByteArray> whereabouts() const;

private:
    OwnedDescriptor m_descriptor;
};
