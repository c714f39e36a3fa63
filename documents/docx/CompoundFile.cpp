// SPDX-License-Identifier: MIT
#include "documents/docx/CompoundFile.h"

#include "platform/text_encoding/AsciiBytes.h"

#include <algorithm>

bool isCompoundFile(QByteArrayView bytes)
{
    return bytes.startsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
}

bool hasStream(QByteArrayView compoundFile, std::string_view name)
{
    // Directory entries may be anywhere in the file, at multiples of their length. They begin with the name
    // in UTF-16 and a NUL (MS-CFB 2.6).
    constexpr qsizetype entryLength = 128;
    const auto length = 2 * static_cast<qsizetype>(name.size() + 1);
    for (qsizetype entry = 0; entry + length <= compoundFile.size(); entry += entryLength) {
        const QByteArrayView stored = compoundFile.sliced(entry, length);
        qsizetype at = 0;
        const bool isName = std::ranges::all_of(name, [&](char letter) {
            const bool isSame = startsWithWord(stored.sliced(at), {&letter, 1}) && stored[at + 1] == '\0';
            at += 2;
            return isSame;
        });
        if (isName && stored[at] == '\0' && stored[at + 1] == '\0')
            return true;
    }
    return false;
}
