// SPDX-License-Identifier: MIT
#include "documents/loading/RepeatedLoader.h"

#include "documents/rtfd/RtfdReader.h"
#include "platform/files/FileContents.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr size_t maxFiles = 10'000;

/// By their names, so that the order in the folder does not matter; absent for more than maxFiles.
std::optional<std::map<std::string, fs::path>> filesIn(const QByteArray &folder)
{
    std::map<std::string, fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(fs::path(folder.toStdString()), error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (files.size() == maxFiles)
            return std::nullopt;
        files.emplace(entry->path().filename().native(), entry->path());
    }
    return files;
}

void addField(QByteArray &bytes, const QByteArray &field)
{
    bytes += QByteArray::number(field.size()) + ':' + field;
}

/// The names and contents of the files directly in the folder, and the targets of symbolic links: folders
/// that differ in any of these have different bytes. Absent where the contents together have more than
/// maxBytes, or where there are more than maxFiles. path: bytes in any encoding.
std::optional<QByteArray> bytesOfPackage(const QByteArray &path, qint64 maxBytes)
{
    const auto files = filesIn(path);
    if (!files)
        return std::nullopt;
    QByteArray bytes;
    FileLimits limits;
    limits.maxSize = maxBytes;
    for (const auto &[name, file] : *files) {
        std::error_code error;
        addField(bytes, QByteArray::fromStdString(name));
        addField(bytes, QByteArray::fromStdString(fs::canonical(file, error).native()));
        const Result<QByteArray, FileError> contents =
            readFile(QByteArray::fromStdString(file.native()), limits);
        if (contents) {
            limits.maxSize -= contents.value().size();
            addField(bytes, contents.value());
        } else if (contents.error().cause == FileError::Cause::TooLarge) {
            return std::nullopt;
        } else {
            bytes += '-' + QByteArray::number(static_cast<int>(contents.error().cause)) + ';';
        }
    }
    return bytes;
}

} // namespace

Result<AttributedString, DocumentError> RepeatedLoader::load(const QByteArray &path)
{
    return isRtfdPackage(path) ? loadPackage(path) : loadFile(path);
}

Result<AttributedString, DocumentError> RepeatedLoader::loadFile(const QByteArray &path)
{
    const Result<QByteArray, FileError> contents = readFile(path);
    if (!contents)
        return DocumentError(contents.error());
    const QByteArray &bytes = contents.value();
    if (bytes.size() > m_maxBytes) {
        forget();
        return readBytes(bytes, path);
    }
    if (remembers(path, bytes))
        return m_text;
    Result<AttributedString, DocumentError> text = readBytes(bytes, path);
    if (text)
        remember(path, bytes, text.value());
    return text;
}

Result<AttributedString, DocumentError> RepeatedLoader::loadPackage(const QByteArray &path)
{
    const std::optional<QByteArray> bytes = bytesOfPackage(path, m_maxBytes);
    if (bytes && remembers(path, *bytes))
        return m_text;
    forget();
    Result<AttributedString, DocumentError> text = loadDocument(path);
    // The package may have changed between the two reads.
    if (text && bytes && bytesOfPackage(path, m_maxBytes) == bytes)
        remember(path, *bytes, text.value());
    return text;
}

bool RepeatedLoader::remembers(const QByteArray &path, const QByteArray &bytes) const
{
    return m_remembers && path == m_path && bytes == m_bytes;
}

void RepeatedLoader::remember(const QByteArray &path, const QByteArray &bytes, const AttributedString &text)
{
    m_remembers = true;
    m_path = path;
    m_bytes = bytes;
    m_text = text;
}

void RepeatedLoader::forget()
{
    *this = RepeatedLoader(m_maxBytes);
}
