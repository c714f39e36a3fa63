// SPDX-License-Identifier: MIT
// What is known of a text before its encoding is: ASCII.
// Thread: any.
#pragma once

#include <QByteArrayView>

inline bool isAbove127(char byte)
{
    return static_cast<signed char>(byte) < 0;
}

/// "ASCII whitespace" of the HTML standard.
inline bool isHtmlSpace(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\f' || byte == '\r';
}

/// Whatever the case of ASCII letters is.
inline bool startsWithWord(QByteArrayView bytes, QByteArrayView word)
{
    return bytes.size() >= word.size()
        && qstrnicmp(bytes.data(), word.data(), static_cast<size_t>(word.size())) == 0;
}
