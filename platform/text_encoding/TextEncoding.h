// SPDX-License-Identifier: MIT
// TextEncoding detects the encoding of plain text from its bytes; EncodingConverter turns them into text.
// Thread: any.
#pragma once

#include <QByteArrayView>

#include <optional>

struct TextEncoding {
    const char *name; ///< a name ICU knows: "UTF-8", "UTF-16LE", "Shift_JIS", "windows-1252" …
    qsizetype markLength = 0; ///< bytes of a leading byte order mark, which is not text
};

/// Always returns an encoding. Checks, in this order:
///  1. a byte order mark;
///  2. UTF-32 or UTF-16 without a mark (UnmarkedUnicode.h);
///  3. ISO-2022: 7-bit text with an escape sequence that switches to an East Asian character set;
///  4. UTF-8: no byte above 127, or more well-formed sequences than broken ones; a sequence cut off by the
///     end of the text is neither;
///  5. the declared encoding;
///  6. the most likely older encoding (LegacyEncoding.h), in doubt Windows-1252.
/// Takes time proportional to the length; most checks read only the beginning.
/// declared: the encoding that the text declares, by a name ICU knows; null if it declares none.
TextEncoding detectTextEncoding(QByteArrayView bytes, const char *declared = nullptr);

/// The encoding that a byte order mark announces: UTF-8, UTF-16 or UTF-32. Absent without a mark.
std::optional<TextEncoding> markedEncoding(QByteArrayView bytes);

/// Check 4 of detectTextEncoding().
bool mayBeUtf8(QByteArrayView bytes);
