// SPDX-License-Identifier: MIT
#include "documents/rtfd/FlatFolderWriter.h"

#include "documents/rtfd/FlatFolder.h"

#include <QtEndian>

namespace {

constexpr qint64 maxRtfdSize = INT32_MAX - 1; // bytes
constexpr qint64 wordSize = sizeof(quint32);

qint64 blockSizeOf(const FlatEntry &entry)
{
    return 2 * wordSize + entry.contents.size();
}

} // namespace

void appendFlatWord(QByteArray &bytes, quint32 word)
{
    const quint32 littleEndian = qToLittleEndian(word);
    bytes.append(reinterpret_cast<const char *>(&littleEndian), sizeof littleEndian);
}

Result<QByteArray, DocumentError> flatFolderOf(const std::vector<FlatEntry> &entries)
{
    qint64 size = 4 * wordSize; // with the magic, which is as long as a word
    for (const FlatEntry &entry : entries)
        size += wordSize + entry.name.size() + wordSize + blockSizeOf(entry);
    if (size > maxRtfdSize)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::Rtfd);

    QByteArray bytes(FlatFormat::magic);
    bytes.reserve(size);
    appendFlatWord(bytes, FlatFormat::version);
    appendFlatWord(bytes, FlatFormat::folderBlock);
    appendFlatWord(bytes, static_cast<quint32>(entries.size()));
    for (const FlatEntry &entry : entries) {
        appendFlatWord(bytes, static_cast<quint32>(entry.name.size()));
        bytes.append(entry.name);
    }
    for (const FlatEntry &entry : entries)
        appendFlatWord(bytes, static_cast<quint32>(blockSizeOf(entry)));
    for (const FlatEntry &entry : entries) {
        appendFlatWord(bytes, entry.isFolder ? FlatFormat::folderBlock : FlatFormat::fileBlock);
        appendFlatWord(bytes, static_cast<quint32>(entry.contents.size())); // of a folder: the entries
        bytes.append(entry.contents);
    }
    return bytes;
}
