// SPDX-License-Identifier: MIT
// Alphabets lists the single-byte encodings, and the letters of the languages written in them by frequency.
// Thread: any; constants.
#pragma once

#include <QChar>

#include <span>
#include <string_view>

struct Alphabet {
    std::string_view language; ///< ISO 639
    /// Lower case, the most frequent first. Of the Latin script, only letters beyond ASCII.
    std::u16string_view letters;
    /// Frequent words in ASCII, separated by spaces.
    std::string_view words = {};
};

/// The encodings of one script, and the alphabets written in it.
struct EncodingFamily {
    struct Member {
        const char *encoding; ///< a name ICU knows
        /// The prior likelihood: a natural logarithm, at most 0. Among equals the first wins.
        double prior;
    };
    QChar::Script script;
    std::span<const Member> encodings;
    std::span<const Alphabet> alphabets;
};

std::span<const EncodingFamily> encodingFamilies();
