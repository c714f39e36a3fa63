// SPDX-License-Identifier: MIT
// TextEncoding finds out in which encoding the bytes of a plain text are; turning them into text is left to
// EncodedText.
// Thread: any.
#pragma once

#include <QByteArrayView>

#include <optional>

struct TextEncoding {
    const char *name; ///< as ICU knows it: "UTF-8", "UTF-16LE", "Shift_JIS", "windows-1252" …
    qsizetype markLength = 0; ///< bytes of a byte order mark at the start, which is no part of the text
};

/// Always finds one, by these questions, in this order:
///  1. Does a byte order mark say it?
///  2. Is it UTF-32, or UTF-16, in spite of no mark? UnmarkedUnicode.h says how that shows.
///  3. Is it 7 bits wide, and does an escape sequence switch to an East Asian character set? (ISO-2022.)
///  4. Is it UTF-8? It is without a byte above 127, and with more well-formed sequences than broken ones; one
///     that the end cuts off is neither.
///  5. Does it declare an older one?
///  6. Which older encoding is the likeliest? LegacyEncoding.h answers; its last resort is Windows-1252.
/// Takes time proportional to the length; few of the questions look at more than the beginning.
/// declared: what the text says of itself, as ICU knows it; null where it says nothing.
TextEncoding detectTextEncoding(QByteArrayView bytes, const char *declared = nullptr);

/// UTF-8, UTF-16 and UTF-32, the latter two in either byte order; the mark of UTF-32 before that of UTF-16,
/// which it begins with. Absent without a mark.
std::optional<TextEncoding> markedEncoding(QByteArrayView bytes);

/// Question 4.
bool mayBeUtf8(QByteArrayView bytes);
