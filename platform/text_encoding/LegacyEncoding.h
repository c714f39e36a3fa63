// SPDX-License-Identifier: MIT
// The encodings from before Unicode, told apart by the text that the bytes would be in each of them.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// The name of the likeliest, as ICU knows it, or johabEncoding; "windows-1252" where nothing speaks for any.
/// Where one encoding has all letters of another and more, it is named in the other's place.
///
/// Only the stretches around the bytes above 127 count (EncodingSample.h). Each encoding is asked how likely
/// its reading of them is: by how often the letters stand in the languages that it was made for, by whether a
/// word keeps to one script, capitals to the starts of words, and signs to their places
/// (SingleByteEvidence.h), or by which ideographs, syllables and kana come out (MultiByteEvidence.h). What
/// uchardet takes the text for gets a bonus, and so do the languages of the user's locale, which decides
/// where a few words fit several. Takes time proportional to the length; a few milliseconds behind the first
/// 16 KiB of stretches. above127: the position of the first byte above 127.
const char *likeliestLegacyEncoding(QByteArrayView bytes, qsizetype above127);
