// SPDX-License-Identifier: MIT
// UTF-16 and UTF-32 that no byte order mark announces: known by what their beginning would be as a text.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// "UTF-32LE", "UTF-32BE", "UTF-16LE" or "UTF-16BE", or null where the bytes are rather of another kind, as
/// those of a text with a stray NUL are. Looks at the first 64 KiB:
///  - All of these are full of bytes that elsewhere are control characters.
///  - UTF-32 is nearly all characters other than NUL. Of other bytes, hardly any four make a character.
///  - UTF-16 in an alphabet is mostly below U+2000. Of other bytes, hardly any two are.
///  - UTF-16 in ideographs, kana or hangul has spaces, line ends, commas or full stops, which the wrong byte
///    order turns into something rare, and has nearly nothing from outside these blocks and those of the
///    alphabets; and it is no UTF-8.
const char *unmarkedUnicodeEncoding(QByteArrayView bytes);
