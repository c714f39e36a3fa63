// SPDX-License-Identifier: MIT
#include "tests/documents/package/ZipWriter.h"

#include <array>

namespace {

constexpr quint32 localHeaderMark = 0x04034B50;
constexpr quint32 directoryHeaderMark = 0x02014B50;
constexpr quint32 directoryEndMark = 0x06054B50;
constexpr quint16 versionNeeded = 20;
constexpr quint16 deflated = 8;
constexpr quint16 newYear1980 = 0x21;

void append16(QByteArray &bytes, quint16 number)
{
    bytes.append(static_cast<char>(number));
    bytes.append(static_cast<char>(number >> 8));
}

void append32(QByteArray &bytes, quint32 number)
{
    append16(bytes, static_cast<quint16>(number));
    append16(bytes, static_cast<quint16>(number >> 16));
}

/// Without the length that qCompress() prepends and without the header and checksum of zlib.
QByteArray deflatedBytes(const QByteArray &bytes)
{
    if (bytes.isEmpty()) // qCompress() writes no header then
        return {"\x03\0", 2};
    return qCompress(bytes, 6).sliced(6).chopped(4);
}

/// The fields that the local header and the directory have in common.
QByteArray description(const ZipWriter::Entry &entry, quint32 storedLength)
{
    QByteArray bytes;
    append16(bytes, versionNeeded);
    append16(bytes, entry.isEncrypted ? 1 : 0);
    append16(bytes, entry.method == ZipWriter::Method::Deflated ? deflated : 0);
    append16(bytes, 0);
    append16(bytes, newYear1980);
    append32(bytes, zipChecksum(entry.contents));
    append32(bytes, storedLength);
    append32(bytes, entry.claimedLength.value_or(static_cast<quint32>(entry.contents.size())));
    append16(bytes, static_cast<quint16>(entry.name.size()));
    append16(bytes, 0);
    return bytes;
}

} // namespace

quint32 zipChecksum(const QByteArray &bytes)
{
    static const std::array<quint32, 256> table = [] {
        std::array<quint32, 256> remainders{};
        for (quint32 i = 0; i < remainders.size(); ++i) {
            quint32 remainder = i;
            for (int bit = 0; bit < 8; ++bit)
                remainder = (remainder >> 1) ^ ((remainder & 1) ? 0xEDB88320U : 0);
            remainders[i] = remainder;
        }
        return remainders;
    }();
    quint32 checksum = 0xFFFFFFFF;
    for (const char byte : bytes)
        checksum = table[(checksum ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (checksum >> 8);
    return ~checksum;
}

QByteArray ZipWriter::archive() const
{
    QByteArray bytes;
    QByteArray directory;
    for (const Entry &entry : m_entries) {
        const QByteArray stored =
            entry.method == Method::Deflated ? deflatedBytes(entry.contents) : entry.contents;
        const QByteArray about = description(entry, static_cast<quint32>(stored.size()));
        append32(directory, directoryHeaderMark);
        append16(directory, versionNeeded);
        directory += about;
        append16(directory, 0);
        append16(directory, 0);
        append16(directory, 0);
        append32(directory, 0);
        append32(directory, static_cast<quint32>(bytes.size()));
        directory += entry.name;

        append32(bytes, localHeaderMark);
        bytes += about + entry.name + stored;
    }
    const auto start = static_cast<quint32>(bytes.size());
    bytes += directory;
    append32(bytes, directoryEndMark);
    append32(bytes, 0);
    append16(bytes, static_cast<quint16>(m_entries.size()));
    append16(bytes, static_cast<quint16>(m_entries.size()));
    append32(bytes, static_cast<quint32>(directory.size()));
    append32(bytes, start);
    append16(bytes, 0);
    return bytes;
}
