// SPDX-License-Identifier: MIT
// SecurityScopedBookmark makes data that names a file the user has chosen, and opens an access with it that
// follows the file through moves. A bookmark grants no permissions: the user must be able to read the file
// without it.
// Thread: main.
#pragma once

#include "platform/file_coordination/HeldFiles.h"
#include "platform/system/Result.h"

#include <QUrl>

#include <memory>

struct BookmarkError {
    enum class Cause {
        NotALocalFile, ///< not a file: URL of this machine
        NoSuchFile, ///< and no known place to which the bookmarked file was moved
        Damaged, ///< the data is not a bookmark
    };

    Cause cause;

    bool operator==(const BookmarkError &) const = default;
};

/// The cause in English, on one line.
QString causeText(const BookmarkError &error);

/// The URL of a bookmark, with the access that it can open. Destroying it closes the access.
class SecurityScopedURL {
public:
    [[nodiscard]] const QUrl &url() const { return m_url; }

    /// Opens the access, which needs one descriptor; false if the file does not exist or may not be read.
    /// Does nothing if the access is open.
    [[nodiscard]] bool startAccessingSecurityScopedResource();
    /// Closes the access. Harmless if there is none.
    void stopAccessingSecurityScopedResource() { m_heldFile.reset(); }

private:
    friend Result<SecurityScopedURL, BookmarkError> URLByResolvingBookmarkData(
        const QByteArray &bookmarkData);

    SecurityScopedURL(QUrl url, const FileIdentity &bookmarked)
        : m_url(std::move(url))
        , m_bookmarked(bookmarked)
    {
    }

    QUrl m_url;
    FileIdentity m_bookmarked;
    std::unique_ptr<HeldFile> m_heldFile;
};

/// The bookmark of a file that exists: its path, device, inode number and birth time.
Result<QByteArray, BookmarkError> bookmarkDataOfURL(const QUrl &url);

/// The URL of what is at the bookmarked path, the same file or one that a program saved in its place. If
/// nothing is there, the place to which the file was moved while an access to it was open.
Result<SecurityScopedURL, BookmarkError> URLByResolvingBookmarkData(const QByteArray &bookmarkData);
