// SPDX-License-Identifier: MIT
#include "documents/docx/CompoundFile.h"

#include <algorithm>
#include <string_view>

namespace {

bool isCompoundFile(QByteArrayView bytes)
{
    return bytes.startsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
}

/// Whether a compound file has the stream of an encrypted package (MS-OFFCRYPTO 2.3.4.4). Directory entries
/// may be anywhere in the file, at multiples of their length. They begin with the name of the stream in
/// UTF-16 and a NUL; names are not case-sensitive (MS-CFB 2.6.4).
bool hasEncryptedPackage(QByteArrayView bytes)
{
    constexpr qsizetype entryLength = 128;
    constexpr std::string_view name("encryptedpackage\0", 17);
    constexpr auto nameLength = 2 * static_cast<qsizetype>(name.size());
    for (qsizetype entry = 0; entry + nameLength <= bytes.size(); entry += entryLength) {
        qsizetype place = entry;
        const bool isName = std::ranges::all_of(name, [&](char letter) {
            const char low = bytes[place++];
            const char lower = low >= 'A' && low <= 'Z' ? static_cast<char>(low - 'A' + 'a') : low;
            return lower == letter && bytes[place++] == '\0';
        });
        if (isName)
            return true;
    }
    return false;
}

} // namespace

std::optional<DocumentError::Cause> causeOfCompoundFile(QByteArrayView bytes)
{
    if (!isCompoundFile(bytes))
        return std::nullopt;
    return hasEncryptedPackage(bytes) ? DocumentError::Cause::Encrypted : DocumentError::Cause::OldFormat;
}
