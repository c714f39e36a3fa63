// SPDX-License-Identifier: MIT
// UnmarkedUnicode detects UTF-16 and UTF-32 without a byte order mark.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// "UTF-32LE", "UTF-32BE", "UTF-16LE" or "UTF-16BE"; null if the bytes are more likely something else, such
/// as text with a stray NUL. Reads the first 64 KiB and relies on these facts:
///  - UTF-16 and UTF-32 contain many bytes that are control characters in other encodings.
///  - UTF-32 consists almost entirely of valid characters other than NUL. Four other bytes rarely make one.
///  - UTF-16 in an alphabet is mostly below U+2000. Pairs of other bytes rarely are.
///  - UTF-16 in ideographs, kana or hangul contains spaces, line ends, commas or full stops, which become
///    rare characters in the wrong byte order; it has almost nothing outside of these blocks and of the
///    alphabets; and it is not valid UTF-8.
const char *unmarkedUnicodeEncoding(QByteArrayView bytes);
