// SPDX-License-Identifier: MIT
#include "documents/rtfd/FlatFormat.h"
#include "documents/rtfd/RtfWithFiles.h"
#include "documents/rtfd/RtfdReader.h"
#include "platform/files/FileContents.h"

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <new>
#include <sys/stat.h>

namespace {

using Contents = Result<QByteArray, FileError>;

FileError errorFor(int systemError)
{
    if (systemError == ENOENT || systemError == ENOTDIR)
        return {FileError::Cause::NoSuchFile};
    if (systemError == EACCES)
        return {FileError::Cause::NoPermission};
    return {FileError::Cause::ReadFailed, systemError};
}

/// Without symbolic links, or why there is none.
Contents realPath(const QByteArray &path)
{
    // The system would take the name to end there.
    if (path.contains('\0'))
        return FileError{FileError::Cause::NoSuchFile};
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.constData(), nullptr), &std::free);
    return real ? Contents(QByteArray(real.get())) : Contents(errorFor(errno));
}

bool isFolder(const QByteArray &path)
{
    struct stat status;
    return !path.contains('\0') && ::stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// A folder of which no file is read that lies elsewhere, and no more than one document may have.
class PackageFolder {
public:
    /// path: without symbolic links.
    explicit PackageFolder(const QByteArray &path)
        : m_prefix(path.endsWith('/') ? path : path + '/')
    {
    }

    Contents contents(const QByteArray &name)
    {
        Contents path = realPath(m_prefix + name);
        if (!path)
            return path;
        if (!path.value().startsWith(m_prefix))
            return FileError{FileError::Cause::NoSuchFile};
        FileLimits limits;
        limits.maxSize = m_rest;
        Contents contents = ::readFile(path.value(), limits);
        if (contents)
            m_rest -= contents.value().size();
        return contents;
    }

private:
    const QByteArray m_prefix;
    qint64 m_rest = maxFileSize;
};

Result<AttributedString, DocumentError> textOf(PackageFolder &folder)
{
    const Contents rtf = folder.contents(FlatFormat::textName);
    if (!rtf) {
        if (rtf.error().cause == FileError::Cause::NoSuchFile)
            return DocumentError(DocumentError::Cause::TextMissing, DocumentKind::Rtfd);
        DocumentError error(DocumentError::Cause::TextUnreadable, DocumentKind::Rtfd);
        error.file = rtf.error();
        return error;
    }
    return readRtfWithFiles(rtf.value(), [&](const QByteArray &name) -> std::optional<QByteArray> {
        Contents contents = folder.contents(name);
        if (contents)
            return std::move(contents).value();
        if (contents.error().cause == FileError::Cause::Folder)
            return QByteArray();
        return std::nullopt;
    });
}

} // namespace

bool isRtfdPackage(const QByteArray &path)
{
    struct stat status;
    return isFolder(path) && ::lstat((path + '/' + FlatFormat::textName).constData(), &status) == 0;
}

Result<AttributedString, DocumentError> readRtfdPackage(const QByteArray &path)
{
    try {
        const Contents real = realPath(path);
        if (!real)
            return DocumentError(real.error());
        if (!isFolder(real.value()))
            return DocumentError(DocumentError::Cause::WrongKind, DocumentKind::Rtfd);
        PackageFolder folder(real.value());
        return textOf(folder);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtfd);
    }
}
