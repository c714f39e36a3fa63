// SPDX-License-Identifier: MIT
#include "platform/file_coordination/SecurityScopedBookmark.h"

#include "platform/system/FileURL.h"

#include <QDataStream>
#include <QIODevice>

namespace {

constexpr quint32 signature = 0x51425931; // "QBY1"
constexpr auto streamVersion = QDataStream::Qt_6_4;
constexpr qsizetype maxBookmarkSize = 8192; // bytes; a path has 4,096 at most

struct Bookmark {
    QByteArray path;
    FileIdentity file;
};

std::optional<Bookmark> parseBookmark(const QByteArray &data)
{
    if (data.size() > maxBookmarkSize)
        return std::nullopt;
    QDataStream stream(data);
    stream.setVersion(streamVersion);
    quint32 start = 0;
    Bookmark bookmark;
    stream >> start >> bookmark.path >> bookmark.file.device >> bookmark.file.inode
        >> bookmark.file.birthTime;
    const bool isWhole = stream.status() == QDataStream::Ok && stream.atEnd() && start == signature;
    if (!isWhole || !bookmark.path.startsWith('/') || bookmark.path.contains('\0'))
        return std::nullopt;
    return bookmark;
}

} // namespace

QString causeText(const BookmarkError &error)
{
    switch (error.cause) {
    case BookmarkError::Cause::NotALocalFile:
        return QStringLiteral("is not a file of this machine");
    case BookmarkError::Cause::NoSuchFile:
        return QStringLiteral("no such file");
    case BookmarkError::Cause::Damaged:
        break;
    }
    return QStringLiteral("is not a bookmark");
}

bool SecurityScopedURL::startAccessingSecurityScopedResource()
{
    if (!m_heldFile)
        m_heldFile = HeldFile::hold(pathOfFileURL(m_url), m_bookmarked);
    return m_heldFile != nullptr;
}

Result<QByteArray, BookmarkError> bookmarkDataOfURL(const QUrl &url)
{
    const QByteArray path = pathOfFileURL(url);
    if (path.isEmpty())
        return BookmarkError{BookmarkError::Cause::NotALocalFile};
    const std::optional<FileIdentity> file = fileIdentityAt(path);
    if (!file)
        return BookmarkError{BookmarkError::Cause::NoSuchFile};
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << signature << path << file->device << file->inode << file->birthTime;
    return data;
}

Result<SecurityScopedURL, BookmarkError> URLByResolvingBookmarkData(const QByteArray &bookmarkData)
{
    const std::optional<Bookmark> bookmark = parseBookmark(bookmarkData);
    if (!bookmark)
        return BookmarkError{BookmarkError::Cause::Damaged};
    std::optional<QByteArray> path = bookmark->path;
    if (!fileIdentityAt(bookmark->path))
        path = HeldFile::whereabouts(bookmark->file);
    if (!path)
        return BookmarkError{BookmarkError::Cause::NoSuchFile};
    return SecurityScopedURL(fileURLOfPath(*path), bookmark->file);
}
