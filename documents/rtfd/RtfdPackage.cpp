// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdPackage.h"

#include "documents/rtfd/FlatFolder.h"
#include "documents/rtfd/FlatFolderWriter.h"
#include "platform/files/FileContents.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <new>
#include <set>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace {

constexpr size_t maxFiles = 10'000; // in a package; the others count as missing
constexpr qint64 maxNamesSize = 4'194'304; // bytes; room for the names and lengths of that many files

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
    qint64 m_bytesLeft = maxFileSize - maxNamesSize;
};

/// In the order of their names; without TXT.rtf.
std::set<std::string> attachmentNamesIn(const QByteArray &folder)
{
    std::set<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder.toStdString(), error);
         !error && entry != std::filesystem::directory_iterator() && names.size() < maxFiles;
         entry.increment(error)) {
        std::string name = entry->path().filename().native();
        if (name != FlatFormat::textName)
            names.insert(std::move(name));
    }
    return names;
}

Result<QByteArray, DocumentError> flatPackage(const QByteArray &path)
{
    PackageFolder folder(path);
    const Contents rtf = folder.contents(FlatFormat::textName);
    if (!rtf) {
        if (rtf.error().cause == FileError::Cause::NoSuchFile)
            return DocumentError(DocumentError::Cause::TextMissing, DocumentKind::Rtfd);
        DocumentError error(DocumentError::Cause::TextUnreadable, DocumentKind::Rtfd);
        error.file = rtf.error();
        return error;
    }
    std::vector<FlatEntry> entries{{FlatFormat::textName, rtf.value()}};
    for (const std::string &entry : attachmentNamesIn(path)) {
        const auto name = QByteArray::fromStdString(entry);
        const Contents contents = folder.contents(name);
        if (contents)
            entries.push_back({name, contents.value()});
        else if (contents.error().cause == FileError::Cause::Folder)
            entries.push_back({.name = name, .contents = {}, .isFolder = true});
    }
    return flatFolderOf(entries);
}

} // namespace

bool looksLikeFlatRtfd(QByteArrayView bytes)
{
    return FlatFolder::hasMagic(bytes);
}

bool isRtfdPackage(const QByteArray &path)
{
    struct stat status;
    return isFolder(path) && ::lstat((path + '/' + FlatFormat::textName).constData(), &status) == 0;
}

Result<QByteArray, DocumentError> flatRtfdOfPackage(const QByteArray &path)
{
    try {
        const Contents real = realPath(path);
        if (!real)
            return DocumentError(real.error());
        if (!isFolder(real.value()))
            return DocumentError(DocumentError::Cause::WrongKind, DocumentKind::Rtfd);
        return flatPackage(real.value());
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtfd);
    }
}
