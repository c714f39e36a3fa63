// SPDX-License-Identifier: MIT
// The letters of the languages that were written in encodings of one byte a character, by how often they
// stand in texts, and those encodings. Thread: any; constants.
#pragma once

#include <QChar>

#include <span>
#include <string_view>

struct Alphabet {
    std::string_view language; ///< ISO 639
    /// Lower case, the most frequent first. Of the Latin script, only those beyond ASCII.
    std::u16string_view letters;
    /// Frequent words in ASCII, separated by spaces.
    std::string_view words = {};
};

/// A group of encodings, in any of which any text of its alphabets may be.
struct EncodingFamily {
    struct Member {
        const char *encoding; ///< as ICU knows it
        /// How unlikely it is before a byte is looked at: a natural logarithm, at most 0. The first of
        /// several equal ones is preferred.
        double prior;
    };
    QChar::Script script;
    std::span<const Member> encodings;
    std::span<const Alphabet> alphabets;
};

std::span<const EncodingFamily> encodingFamilies();
