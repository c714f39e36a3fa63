// SPDX-License-Identifier: MIT
// WordCache remembers what shaping found of short words, so that a text shapes each of its words about once.
// Its size is bounded: when it is full, it forgets everything.
// Thread: one at a time.  Owner: the code that shapes.
#pragma once

#include <QStringView>

#include <span>
#include <vector>

/// Refers to the cache; valid until the next insert().
struct CachedWord {
    bool isSeparable = false; ///< shaped the same with or without the words around it
    std::span<float> advances; ///< as of Shaper, by code unit
    std::span<quint8> flags;
};

class WordCache {
public:
    static constexpr qsizetype maxWordLength = 240; ///< UTF-16 code units; five letters with many marks

    /// unitCount: code units of all words; about 10 bytes each.
    WordCache(size_t wordCount, size_t unitCount);

    /// style: any number that tells apart words with the same text. Null if the word is not held.
    [[nodiscard]] const CachedWord *find(quint64 style, QStringView word);

    /// Holds a word that find() has just failed to find, of 1 to maxWordLength code units. The caller fills
    /// the advances and flags.
    CachedWord &insert(quint64 style, QStringView word, bool isSeparable);

private:
    struct Entry {
        quint64 hash = 0; // 0 if there is none
        quint64 style = 0;
        quint32 start = 0; // in the vectors below
        quint8 length = 0;
        bool isSeparable = false;
    };

    [[nodiscard]] bool holds(const Entry &entry, quint64 style, QStringView word) const;
    CachedWord &refer(const Entry &entry);
    void clear();

    size_t m_wordCount;
    size_t m_unitCount;
    size_t m_held = 0;
    quint64 m_seed;
    std::vector<Entry> m_entries; // made at the first use
    size_t m_place = 0; // of the word that was not found
    quint64 m_hash = 0;
    std::vector<char16_t> m_text;
    std::vector<float> m_advances;
    std::vector<quint8> m_flags;
    CachedWord m_referred;
};
