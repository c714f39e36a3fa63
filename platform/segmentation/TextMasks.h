// SPDX-License-Identifier: MIT
// TextMasks holds the character classes of a window of text, as one mask of bits for each class. It knows
// nothing of words and sentences.
// Thread: one at a time.  Owner: the code that counts; large, to be reused for the next window.
#pragma once

#include "platform/segmentation/AsciiMasks.h"
#include "platform/segmentation/CharacterClasses.h"

#include <QStringView>

#include <array>
#include <bit>

class TextMasks {
public:
    static constexpr qsizetype bitsPerWord = 64;
    static constexpr qsizetype maxLength = 64 * bitsPerWord; ///< UTF-16 code units

    /// Facts about words, found out after the classes; masks like theirs.
    enum class WordFact {
        Counted, ///< an earlier code unit and this one make, or this one alone makes, a word for every reader
        CountedAcross, ///< the same, but a full stop or the like lies between the two
        Lettered, ///< a letter, digit or ideograph of a word
        Inside, ///< not a place where the words of a sentence may be cut off
    };

    /// Reads the classes of a stretch of text (up to maxLength code units).
    void read(QStringView text, qsizetype start, qsizetype length);

    [[nodiscard]] qsizetype length() const { return m_length; }
    [[nodiscard]] qsizetype wordCount() const { return (m_length + bitsPerWord - 1) / bitsPerWord; }

    /// Forgets everything from a position on.
    void truncate(qsizetype length);

    /// Positions count from the start of the window. Bits from length() on are 0.
    [[nodiscard]] quint64 word(CharacterClass value, qsizetype index) const
    {
        return m_classes[static_cast<size_t>(index)][static_cast<size_t>(value)];
    }
    [[nodiscard]] bool test(CharacterClass value, qsizetype position) const
    {
        return word(value, position / bitsPerWord) >> (position % bitsPerWord) & 1;
    }
    void set(CharacterClass value, qsizetype position)
    {
        m_classes[static_cast<size_t>(position / bitsPerWord)][static_cast<size_t>(value)] |= quint64{1}
            << (position % bitsPerWord);
    }

    [[nodiscard]] quint64 &word(WordFact fact, qsizetype index)
    {
        return m_facts[static_cast<size_t>(index)][static_cast<size_t>(fact)];
    }
    [[nodiscard]] bool test(WordFact fact, qsizetype position) const
    {
        const quint64 bits = m_facts[static_cast<size_t>(position / bitsPerWord)][static_cast<size_t>(fact)];
        return bits >> (position % bitsPerWord) & 1;
    }
    void set(WordFact fact, qsizetype position)
    {
        word(fact, position / bitsPerWord) |= quint64{1} << (position % bitsPerWord);
    }

    /// The number of bits; quicker than std::popcount() where the processor is not known to have an
    /// instruction.
    static quint64 countBits(quint64 bits)
    {
        bits -= bits >> 1 & 0x5555555555555555;
        bits = (bits & 0x3333333333333333) + (bits >> 2 & 0x3333333333333333);
        bits = (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0F;
        return bits * 0x0101010101010101 >> 56;
    }

    /// The bits of word index that lie in [from, to).
    static quint64 rangeMask(qsizetype index, qsizetype from, qsizetype to)
    {
        const qsizetype first = std::max<qsizetype>(from - index * bitsPerWord, 0);
        const qsizetype end = std::min(to - index * bitsPerWord, bitsPerWord);
        if (first >= end)
            return 0;
        return ~quint64{0} >> (bitsPerWord - (end - first)) << first;
    }

    /// The first position in [from, to) of whose word bitsOf(index) has the bit, or to.
    template <typename BitsOf>
    static qsizetype first(qsizetype from, qsizetype to, BitsOf &&bitsOf)
    {
        for (qsizetype index = from / bitsPerWord; index * bitsPerWord < to; ++index) {
            if (const quint64 bits = bitsOf(index) & rangeMask(index, from, to))
                return index * bitsPerWord + std::countr_zero(bits);
        }
        return to;
    }

    /// The last one, or -1.
    template <typename BitsOf>
    static qsizetype last(qsizetype from, qsizetype to, BitsOf &&bitsOf)
    {
        for (qsizetype index = (to - 1) / bitsPerWord; to > from && index >= from / bitsPerWord; --index) {
            if (const quint64 bits = bitsOf(index) & rangeMask(index, from, to))
                return index * bitsPerWord + bitsPerWord - 1 - std::countl_zero(bits);
        }
        return -1;
    }

private:
    static constexpr size_t maxWordCount = maxLength / bitsPerWord;

    void addNotAscii(QStringView text, qsizetype from, ClassMasks &masks);

    std::array<ClassMasks, maxWordCount> m_classes{};
    std::array<std::array<quint64, 4>, maxWordCount> m_facts{};
    qsizetype m_length = 0;
};
