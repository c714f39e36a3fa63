// SPDX-License-Identifier: MIT
// EncodingEvidence says how likely it is that some bytes are text in one encoding. Comparing is left to
// LegacyEncoding.
// Thread: any; values.
#pragma once

#include <QByteArrayView>

#include <string_view>
#include <vector>

struct EncodingEvidence {
    const char *encoding = nullptr; ///< a name ICU knows, or johabEncoding
    std::string_view language; ///< ISO 639
    double likelihood = 0; ///< a natural logarithm; comparable for the same bytes only
};

/// For the encodings in which each byte is a character: one value for each language of each encoding. Takes
/// time proportional to the number of distinct pairs of bytes and to the length of the sample.
std::vector<EncodingEvidence> singleByteEvidence(QByteArrayView sample);

/// For the East Asian encodings, in which most characters take two bytes: one value for each encoding. Takes
/// time proportional to the length of the sample.
std::vector<EncodingEvidence> multiByteEvidence(QByteArrayView sample);
