// SPDX-License-Identifier: MIT
// Security-scoped bookmarks: data that names a file the user has chosen, and the access to it that is opened
// by that data and follows the file through moves. What the desktop has no rules for, a bookmark does not
// grant: it makes no file readable that was not. Thread: main.
#pragma once

#include "platform/file_coordination/HeldFiles.h"
#include "platform/system/Result.h"

#include <QUrl>

#include <memory>

struct BookmarkError {
    enum class Cause {
        NotALocalFile, ///< no file: URL
        NoSuchFile, ///< nor has the bookmarked file been moved where it could be found
        Damaged, ///< the data is no bookmark
    };

    Cause cause;

    bool operator==(const BookmarkError &) const = default;
};

/// The cause in English, on one line.
QString causeText(const BookmarkError &error);

/// The URL to which a bookmark leads, with the access that it can open. Its end closes an open access.
class SecurityScopedURL {
public:
    [[nodiscard]] const QUrl &url() const { return m_url; }

    /// Opens the access, which takes one descriptor; false where the file has gone or may not be read. An
    /// access that is open already stays so.
    [[nodiscard]] bool startAccessingSecurityScopedResource();
    /// Closes the access. Harmless where there is none.
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

/// Leads to what is at the bookmarked path, be it the same file or one that a program has saved in its place;
/// where nothing is there, to where the file has been moved while an access to it was open.
Result<SecurityScopedURL, BookmarkError> URLByResolvingBookmarkData(const QByteArray &bookmarkData);
