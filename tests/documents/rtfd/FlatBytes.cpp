// SPDX-License-Identifier: MIT
#include "tests/documents/rtfd/FlatBytes.h"

QByteArray FlatBytes::word(quint32 value)
{
    QByteArray bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(value >> shift & 0xFFU);
    return bytes;
}

QByteArray FlatBytes::withLength(const QByteArray &bytes)
{
    return word(static_cast<quint32>(bytes.size())) + bytes;
}

QByteArray FlatBytes::withPaddedLength(const QByteArray &bytes, quint32 padding)
{
    return word(0x80000000) + word(static_cast<quint32>(bytes.size())) + word(padding)
        + QByteArray(padding, '\0') + bytes;
}

QByteArray FlatBytes::file(const QByteArray &contents)
{
    return word(1) + withLength(contents);
}

QByteArray FlatBytes::folder(const Entries &entries)
{
    QByteArray names;
    QByteArray sizes;
    QByteArray blocks;
    for (const auto &[name, block] : entries) {
        names += withLength(name);
        sizes += word(static_cast<quint32>(block.size()));
        blocks += block;
    }
    return word(3) + word(static_cast<quint32>(entries.size())) + names + sizes + blocks;
}

QByteArray FlatBytes::rtfd(const Entries &entries)
{
    return "rtfd" + word(0) + folder(entries);
}
