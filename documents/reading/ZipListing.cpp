// SPDX-License-Identifier: MIT
#include "documents/reading/ZipListing.h"

#include <QtEndian>

#include <algorithm>

namespace {

// APPNOTE.TXT 6.3, sections 4.3.7, 4.3.12 and 4.3.16.
constexpr QByteArrayView localHeader("PK\3\4");
constexpr QByteArrayView centralHeader("PK\1\2");
constexpr QByteArrayView endRecord("PK\5\6");
constexpr qsizetype localHeaderLength = 30;
constexpr qsizetype centralHeaderLength = 46;
constexpr qsizetype endRecordLength = 22;
constexpr qsizetype maxCommentLength = 0xFFFF;
constexpr quint16 hasDescriptor = 0x0008; // the lengths follow the data

constexpr qsizetype maxDeclarationLength = 256;

/// at: such that the number is within the bytes.
template <typename Number>
Number numberAt(QByteArrayView bytes, qsizetype at)
{
    return qFromLittleEndian<Number>(bytes.data() + at);
}

bool hasHeader(QByteArrayView bytes, qsizetype at, QByteArrayView signature, qsizetype length)
{
    return at >= 0 && at <= bytes.size() - length && bytes.sliced(at).startsWith(signature);
}

QByteArray normalizedName(QByteArrayView name)
{
    QByteArray normalized = name.toByteArray().toLower();
    normalized.replace('\\', '/');
    return normalized.startsWith('/') ? normalized.sliced(1) : normalized;
}

struct LocalEntry {
    QByteArrayView name;
    qsizetype data = 0; ///< the position of its bytes
    qsizetype next = 0; ///< the position of the next header; the end if there is none
    bool isStored = false;
};

std::optional<LocalEntry> localEntryAt(QByteArrayView bytes, qsizetype at)
{
    if (!hasHeader(bytes, at, localHeader, localHeaderLength))
        return std::nullopt;
    LocalEntry entry;
    const qsizetype nameLength = numberAt<quint16>(bytes, at + 26);
    entry.data = at + localHeaderLength + nameLength + numberAt<quint16>(bytes, at + 28);
    if (entry.data > bytes.size())
        return std::nullopt;
    entry.name = bytes.sliced(at + localHeaderLength, nameLength);
    entry.isStored = numberAt<quint16>(bytes, at + 8) == 0;
    if (numberAt<quint16>(bytes, at + 6) & hasDescriptor) {
        const qsizetype found = bytes.indexOf(localHeader, entry.data);
        entry.next = found < 0 ? bytes.size() : found;
    } else {
        entry.next =
            std::min(bytes.size(), entry.data + static_cast<qsizetype>(numberAt<quint32>(bytes, at + 18)));
    }
    return entry;
}

QByteArray declaredType(QByteArrayView bytes)
{
    const std::optional<LocalEntry> first = localEntryAt(bytes, 0);
    if (!first || first->name != "mimetype" || !first->isStored)
        return {};
    QByteArrayView content = bytes.sliced(first->data, first->next - first->data);
    content = content.first(std::min(content.size(), maxDeclarationLength));
    const qsizetype descriptor = content.indexOf("PK");
    return (descriptor < 0 ? content : content.first(descriptor)).trimmed().toByteArray();
}

/// Absent where the directory at the end is missing or says nothing of its place, as in archives of 4 GiB.
std::optional<QByteArrayList> namesInDirectory(QByteArrayView bytes)
{
    const QByteArrayView tail = bytes.last(std::min(bytes.size(), endRecordLength + maxCommentLength));
    const qsizetype inTail = tail.lastIndexOf(endRecord);
    const qsizetype end = bytes.size() - tail.size() + inTail;
    if (inTail < 0 || end > bytes.size() - endRecordLength)
        return std::nullopt;
    QByteArrayList names;
    qsizetype at = numberAt<quint32>(bytes, end + 16);
    while (names.size() < maxZipEntries && hasHeader(bytes, at, centralHeader, centralHeaderLength)) {
        const qsizetype nameLength = numberAt<quint16>(bytes, at + 28);
        const qsizetype nameStart = at + centralHeaderLength;
        if (nameStart + nameLength > bytes.size())
            break;
        names.append(normalizedName(bytes.sliced(nameStart, nameLength)));
        at = nameStart + nameLength + numberAt<quint16>(bytes, at + 30) + numberAt<quint16>(bytes, at + 32);
    }
    return names.isEmpty() ? std::nullopt : std::optional(names);
}

QByteArrayList namesInHeaders(QByteArrayView bytes)
{
    QByteArrayList names;
    qsizetype at = 0;
    while (names.size() < maxZipEntries) {
        const std::optional<LocalEntry> entry = localEntryAt(bytes, at);
        if (!entry)
            break;
        names.append(normalizedName(entry->name));
        at = entry->next;
    }
    return names;
}

} // namespace

std::optional<ZipListing> listZip(QByteArrayView bytes)
{
    if (!bytes.startsWith(localHeader) && !bytes.startsWith(endRecord))
        return std::nullopt;
    std::optional<QByteArrayList> names = namesInDirectory(bytes);
    return ZipListing{names ? *names : namesInHeaders(bytes), declaredType(bytes)};
}
