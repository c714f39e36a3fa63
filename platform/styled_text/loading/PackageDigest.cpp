// SPDX-License-Identifier: MIT
#include "platform/styled_text/loading/PackageDigest.h"

#include "platform/files/FileContents.h"

#include <QCryptographicHash>

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

void addField(QCryptographicHash &hash, const QByteArray &bytes)
{
    hash.addData(QByteArray::number(bytes.size()) + ':');
    hash.addData(bytes);
}

} // namespace

QByteArray digestOfPackage(const QByteArray &path, qint64 mostBytes)
{
    const auto files = filesIn(path);
    if (!files)
        return {};
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    FileLimits limits;
    limits.largestSize = mostBytes;
    for (const auto &[name, file] : *files) {
        std::error_code error;
        addField(hash, QByteArray::fromStdString(name));
        addField(hash, QByteArray::fromStdString(fs::canonical(file, error).native()));
        const Result<QByteArray, FileError> contents =
            readFile(QByteArray::fromStdString(file.native()), limits);
        if (contents) {
            limits.largestSize -= contents.value().size();
            addField(hash, contents.value());
        } else if (contents.error().cause == FileError::Cause::TooLarge) {
            return {};
        } else {
            addField(hash, "-" + QByteArray::number(static_cast<int>(contents.error().cause)));
        }
    }
    return hash.result();
}
