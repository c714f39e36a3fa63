// SPDX-License-Identifier: MIT
#include "documents/rtfd/FlatFolderWriter.h"

#include "documents/rtfd/FlatFolder.h"

#include <QtEndian>

#include <utility>

namespace {

constexpr qint64 maxRtfdSize = INT32_MAX - 1; // bytes
constexpr qint64 wordSize = sizeof(quint32);

/// Of the block, without the contents of a file.
constexpr qint64 blockHeadSize = 2 * wordSize;

qint64 blockSizeOf(const FlatEntry &entry)
{
    return blockHeadSize + entry.contents.size();
}

/// Where the sizes of the blocks are, in bytes.
qsizetype sizesPosition(const std::vector<FlatEntry> &entries)
{
    qsizetype position = 4 * wordSize; // with the magic, which is as long as a word
    for (const FlatEntry &entry : entries)
        position += wordSize + entry.name.size();
    return position;
}

/// Where the contents of the first entry begin, in bytes.
qsizetype contentsPosition(const std::vector<FlatEntry> &entries)
{
    return sizesPosition(entries) + static_cast<qsizetype>(entries.size()) * wordSize + blockHeadSize;
}

qint64 sizeBehindFirst(const std::vector<FlatEntry> &entries)
{
    qint64 size = 0;
    for (size_t i = 1; i < entries.size(); ++i)
        size += blockSizeOf(entries[i]);
    return size;
}

void appendBlockHead(QByteArray &bytes, const FlatEntry &entry)
{
    appendFlatWord(bytes, entry.isFolder ? FlatFormat::folderBlock : FlatFormat::fileBlock);
    appendFlatWord(bytes, static_cast<quint32>(entry.contents.size())); // of a folder: the entries
}

} // namespace

void appendFlatWord(QByteArray &bytes, quint32 word)
{
    const quint32 littleEndian = qToLittleEndian(word);
    bytes.append(reinterpret_cast<const char *>(&littleEndian), sizeof littleEndian);
}

QByteArray startOfFlatFolder(const std::vector<FlatEntry> &entries)
{
    QByteArray bytes(FlatFormat::magic);
    appendFlatWord(bytes, FlatFormat::version);
    appendFlatWord(bytes, FlatFormat::folderBlock);
    appendFlatWord(bytes, static_cast<quint32>(entries.size()));
    for (const FlatEntry &entry : entries) {
        appendFlatWord(bytes, static_cast<quint32>(entry.name.size()));
        bytes.append(entry.name);
    }
    for (const FlatEntry &entry : entries)
        appendFlatWord(bytes, static_cast<quint32>(blockSizeOf(entry)));
    appendBlockHead(bytes, entries.front());
    return bytes;
}

Result<QByteArray, DocumentError> finishFlatFolder(QByteArray folder, const std::vector<FlatEntry> &entries)
{
    const qint64 size = folder.size() + sizeBehindFirst(entries);
    if (size > maxRtfdSize)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::Rtfd);
    const qsizetype start = contentsPosition(entries);
    const auto length = static_cast<quint32>(folder.size() - start);
    qToLittleEndian(length, folder.data() + start - wordSize);
    qToLittleEndian(static_cast<quint32>(blockHeadSize) + length, folder.data() + sizesPosition(entries));
    folder.reserve(size);
    for (size_t i = 1; i < entries.size(); ++i) {
        appendBlockHead(folder, entries[i]);
        folder.append(entries[i].contents);
    }
    return folder;
}

Result<QByteArray, DocumentError> flatFolderOf(const std::vector<FlatEntry> &entries)
{
    const qint64 size =
        contentsPosition(entries) + entries.front().contents.size() + sizeBehindFirst(entries);
    if (size > maxRtfdSize)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::Rtfd);
    QByteArray bytes = startOfFlatFolder(entries);
    bytes.reserve(size);
    bytes.append(entries.front().contents);
    return finishFlatFolder(std::move(bytes), entries);
}
