// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdWriter.h"

#include "documents/rtfd/FlatFormat.h"
#include "documents/rtfd/StoredFiles.h"

#include <QtEndian>

#include <new>
#include <vector>

namespace {

constexpr qint64 largestRtfd = INT32_MAX - 1; // bytes
constexpr quint32 modificationTime = 0; // nothing of the text depends on when it was written
constexpr quint32 mode = 0644;

struct Entry {
    QByteArray name;
    QByteArray contents;
};

void appendWord(QByteArray &bytes, quint32 word)
{
    const quint32 littleEndian = qToLittleEndian(word);
    bytes.append(reinterpret_cast<const char *>(&littleEndian), sizeof littleEndian);
}

void appendName(QByteArray &bytes, const QByteArray &name)
{
    appendWord(bytes, static_cast<quint32>(name.size()));
    bytes.append(name);
}

constexpr qint64 wordSize = sizeof(quint32);

qint64 blockSizeOf(const Entry &entry)
{
    return 2 * wordSize + entry.contents.size();
}

QByteArray attributesOf(const std::vector<Entry> &entries)
{
    QByteArray attributes;
    appendWord(attributes, 1);
    for (const Entry &entry : entries) {
        appendName(attributes, entry.name);
        for (const quint32 word : {FlatFormat::attributesSize, modificationTime, mode, 0U, 0U})
            appendWord(attributes, word);
    }
    return attributes;
}

Result<QByteArray, DocumentError> flatFolder(const std::vector<Entry> &entries)
{
    qint64 size = 4 * wordSize; // with the magic, which is as long as a word
    for (const Entry &entry : entries)
        size += wordSize + entry.name.size() + wordSize + blockSizeOf(entry);
    if (size > largestRtfd)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::Rtfd);

    QByteArray bytes(FlatFormat::magic);
    bytes.reserve(size);
    appendWord(bytes, FlatFormat::version);
    appendWord(bytes, FlatFormat::folderBlock);
    appendWord(bytes, static_cast<quint32>(entries.size()));
    for (const Entry &entry : entries)
        appendName(bytes, entry.name);
    for (const Entry &entry : entries)
        appendWord(bytes, static_cast<quint32>(blockSizeOf(entry)));
    for (const Entry &entry : entries) {
        appendWord(bytes, FlatFormat::fileBlock);
        appendWord(bytes, static_cast<quint32>(entry.contents.size()));
        bytes.append(entry.contents);
    }
    return bytes;
}

Result<QByteArray, DocumentError> flatRtfd(const AttributedString &text, qsizetype start, qsizetype length)
{
    StoredFiles files;
    const Result<QByteArray, DocumentError> rtf = writeRtf(
        text, start, length, [&](const Attachment &attachment) { return files.nameFor(attachment); });
    if (!rtf)
        return rtf.error();
    std::vector<Entry> entries{{FlatFormat::textName, rtf.value()}};
    for (const StoredFiles::File &file : files.files())
        entries.push_back({file.name.toUtf8(), file.contents});
    entries.push_back({FlatFormat::attributesName, attributesOf(entries)});
    return flatFolder(entries);
}

} // namespace

Result<QByteArray, DocumentError> RTFDFromRange(const AttributedString &text, qsizetype start,
    qsizetype length, const QVariantMap & /*documentAttributes*/)
{
    try {
        return flatRtfd(text, start, length);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtfd);
    }
}
