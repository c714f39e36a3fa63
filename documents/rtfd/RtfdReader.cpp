// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdReader.h"

#include "documents/rtf/RtfReader.h"
#include "documents/rtfd/FlatFolder.h"
#include "platform/files/FileContents.h"

#include <cerrno>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <sys/stat.h>

namespace {

/// Whether an attachment can be stored in the folder under that name.
bool isFileName(const QByteArray &name)
{
    return !name.isEmpty() && name != "." && name != ".." && name != FlatFormat::textName
        && !name.contains('/') && !name.contains('\0');
}

DocumentError errorFor(DocumentError::Cause causeOfRtf)
{
    const bool isNotRtf = causeOfRtf == DocumentError::Cause::WrongKind;
    return {isNotRtf ? DocumentError::Cause::TextNotRtf : causeOfRtf, DocumentKind::Rtfd};
}

/// The contents of a file by its name in UTF-8, empty for a folder; absent where the file is missing or must
/// not be read. Called once for each name, and only for names that an attachment in a folder can have.
using FileSource = std::function<std::optional<QByteArray>(const QByteArray &name)>;

Result<AttributedString, DocumentError> readRtfWithFiles(QByteArrayView rtf, const FileSource &contentsOf)
{
    const auto attachmentOf = [&](const QString &storedName) -> std::shared_ptr<const Attachment> {
        const QByteArray name = storedName.toUtf8();
        std::optional<QByteArray> contents = isFileName(name) ? contentsOf(name) : std::nullopt;
        return contents ? std::make_shared<const Attachment>(Attachment{storedName, *std::move(contents)})
                        : nullptr;
    };
    Result<AttributedString, DocumentError> text = readRtf(rtf, attachmentOf);
    if (!text)
        return errorFor(text.error().cause);
    return std::move(text).value();
}

Result<AttributedString, DocumentError> readFolder(const FlatFolder &folder)
{
    const FlatFolder::Entry text = folder.entry(FlatFormat::textName);
    switch (text.kind) {
    case FlatFolder::Kind::Missing:
    case FlatFolder::Kind::Other:
        return DocumentError(DocumentError::Cause::TextMissing, DocumentKind::Rtfd);
    case FlatFolder::Kind::Damaged:
        return DocumentError(DocumentError::Cause::Damaged, DocumentKind::Rtfd);
    case FlatFolder::Kind::File:
        break;
    }
    return readRtfWithFiles(text.contents, [&](const QByteArray &name) -> std::optional<QByteArray> {
        const FlatFolder::Entry file = folder.entry(name);
        if (file.kind == FlatFolder::Kind::Missing || file.kind == FlatFolder::Kind::Damaged)
            return std::nullopt;
        return file.contents.toByteArray();
    });
}

using Contents = Result<QByteArray, FileError>;

FileError fileErrorFor(int systemError)
{
    if (systemError == ENOENT || systemError == ENOTDIR)
        return {FileError::Cause::NoSuchFile};
    if (systemError == EACCES)
        return {FileError::Cause::NoPermission};
    return {FileError::Cause::ReadFailed, systemError};
}

/// The path without symbolic links.
Contents realPath(const QByteArray &path)
{
    // The system would end the name at the NUL.
    if (path.contains('\0'))
        return FileError{FileError::Cause::NoSuchFile};
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.constData(), nullptr), &std::free);
    return real ? Contents(QByteArray(real.get())) : Contents(fileErrorFor(errno));
}

bool isFolder(const QByteArray &path)
{
    struct stat status;
    return !path.contains('\0') && ::stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// The folder of a package. Reads no file outside of it, and no more bytes than a document may have.
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
        limits.maxSize = m_bytesLeft;
        Contents contents = ::readFile(path.value(), limits);
        if (contents)
            m_bytesLeft -= contents.value().size();
        return contents;
    }

private:
    const QByteArray m_prefix;
    qint64 m_bytesLeft = maxFileSize;
};

Result<AttributedString, DocumentError> readPackage(PackageFolder &folder)
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

bool looksLikeFlatRtfd(QByteArrayView bytes)
{
    return FlatFolder::hasMagic(bytes);
}

Result<AttributedString, DocumentError> readFlatRtfd(QByteArrayView bytes)
{
    if (!FlatFolder::hasMagic(bytes))
        return DocumentError(DocumentError::Cause::WrongKind, DocumentKind::Rtfd);
    try {
        const std::optional<FlatFolder> folder = FlatFolder::parse(bytes);
        return folder ? readFolder(*folder)
                      : DocumentError(DocumentError::Cause::Damaged, DocumentKind::Rtfd);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtfd);
    }
}

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
        return readPackage(folder);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtfd);
    }
}
