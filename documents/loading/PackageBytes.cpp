// SPDX-License-Identifier: MIT
#include "documents/loading/PackageBytes.h"

#include "platform/files/FileContents.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr size_t mostFiles = 10'000;

/// By their names, so that the order in the folder does not matter; absent for too many.
std::optional<std::map<std::string, fs::path>> filesIn(const QByteArray &folder)
{
    std::map<std::string, fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(fs::path(folder.toStdString()), error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (files.size() == mostFiles)
            return std::nullopt;
        files.emplace(entry->path().filename().native(), entry->path());
    }
    return files;
}

void addField(QByteArray &bytes, const QByteArray &field)
{
    bytes += QByteArray::number(field.size()) + ':' + field;
}

} // namespace

std::optional<QByteArray> bytesOfPackage(const QByteArray &path, qint64 mostBytes)
{
    const auto files = filesIn(path);
    if (!files)
        return std::nullopt;
    QByteArray bytes;
    FileLimits limits;
    limits.maxSize = mostBytes;
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
