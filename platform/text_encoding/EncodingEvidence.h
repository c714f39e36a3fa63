// SPDX-License-Identifier: MIT
// EncodingEvidence is one reading of some bytes, and how likely it is. Thread: any; a value.
#pragma once

#include <string_view>

struct EncodingEvidence {
    const char *encoding = nullptr; ///< as ICU knows it, or johabEncoding
    std::string_view language; ///< ISO 639
    double likelihood = 0; ///< a natural logarithm, to be held against those of the same bytes
};
