// SPDX-License-Identifier: MIT
// LegacyEncoding tells encodings from before Unicode apart by the text that the bytes would be in each.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// The most likely encoding: a name ICU knows, or johabEncoding; "windows-1252" without any evidence. A
/// superset of an encoding is returned in its place.
///
/// Only passages around bytes above 127 count, up to 16 KiB of them. The likelihood of a single-byte encoding
/// depends on the frequency of the letters in its languages, and on whether words keep to one script, have
/// capitals only at the start and punctuation only at their edges. The likelihood of an East Asian encoding
/// depends on the ideographs, syllables and kana that result. The encoding that uchardet guesses gets a
/// bonus, and so do the languages of the user's locale, which decides about texts of a few words. Takes time
/// proportional to the length, plus a few milliseconds. above127: the position of the first byte above 127.
const char *likeliestLegacyEncoding(QByteArrayView bytes, qsizetype above127);
