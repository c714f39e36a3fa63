// SPDX-License-Identifier: MIT
// AsciiBytes classifies bytes of text in any superset of ASCII.
// Thread: any.
#pragma once

#include <QByteArrayView>

inline bool isAbove127(char byte)
{
    return static_cast<signed char>(byte) < 0;
}

/// ASCII whitespace as the HTML standard defines it.
inline bool isHtmlSpace(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\f' || byte == '\r';
}

/// Ignores the case of ASCII letters.
inline bool startsWithWord(QByteArrayView bytes, QByteArrayView word)
{
    return bytes.size() >= word.size()
        && qstrnicmp(bytes.data(), word.data(), static_cast<size_t>(word.size())) == 0;
}
