// SPDX-License-Identifier: MIT
// What counting needs to know about characters: their classes in the segmentation of words and sentences (UAX
// #29) with the changes of ICU's root rules, and which are letters, digits or white space. The classes come
// from ICU, a page of characters at a time, when the first of the page is asked for.
// Thread: any.
#pragma once

#include <QtGlobal>

#include <array>
#include <atomic>
#include <memory>

/// The classes that get a mask each, one bit for every code unit of a text.
enum class CharacterClass {
    Letter, ///< letters as words join them, Hebrew ones too
    Number, ///< decimal digits and what counts as such
    Connector, ///< joins letters and digits on both sides, as the low line
    Unlettered, ///< of the three above, but makes no word on its own: not a letter, digit or ideograph
    MiddleOfLetters, ///< joins two letters around it
    MiddleOfNumbers, ///< joins two numbers around it
    Extender, ///< belongs to the character before it: marks, formats, joiners
    Hangul, ///< Hangul syllables, which join each other only
    Hebrew, ///< Hebrew letters, which quotes join too
    Hard, ///< left to ICU: scripts with dictionaries, ideographs, and rare exceptions
    Sign, ///< A, I, O and X in both cases, which are words of their own in English
    White, ///< general category Z, U+0009 to U+000D, U+0085
    Terminator, ///< full stops, question and exclamation marks of all scripts
    LineSeparator, ///< U+0085 and U+2028: end a sentence, but not a paragraph
    ParagraphSeparator, ///< LF, CR, U+2029
};

inline constexpr int characterClassCount = 15;

/// Classes of sentence segmentation (Sentence_Break).
enum class SentenceClass {
    Other,
    Extender, ///< Extend and Format
    Space,
    Lower,
    Upper,
    OtherLetter,
    Number,
    FullStop, ///< ATerm
    Terminator, ///< STerm
    Continuing, ///< SContinue
    Close,
    Separator, ///< Sep, CR and LF
};

/// The classes of one character.
class CharacterClasses {
public:
    CharacterClasses() = default;
    CharacterClasses(quint32 flags, SentenceClass sentence)
        : m_bits(flags | static_cast<quint32>(sentence) << sentenceShift)
    {
    }

    [[nodiscard]] bool has(CharacterClass value) const { return m_bits >> static_cast<int>(value) & 1; }
    [[nodiscard]] SentenceClass sentence() const
    {
        return static_cast<SentenceClass>(m_bits >> sentenceShift);
    }

    /// Bit n is CharacterClass n.
    [[nodiscard]] quint32 flags() const { return m_bits & ((1U << sentenceShift) - 1); }

private:
    static constexpr int sentenceShift = 24;

    quint32 m_bits = 0;
};

namespace CharacterClassPages {

constexpr char32_t pageLength = 256;
using Page = std::array<CharacterClasses, pageLength>;

/// Filled one after another and kept until the process exits; null until then.
extern std::array<std::atomic<const Page *>, 0x110000 / pageLength> pages;

const Page &makePage(char32_t index);

} // namespace CharacterClassPages

/// character: a code point.
inline CharacterClasses classesOf(char32_t character)
{
    using namespace CharacterClassPages;
    const char32_t index = character / pageLength;
    const Page *page = pages[index].load(std::memory_order_acquire);
    if (!page) [[unlikely]]
        page = &makePage(index);
    return (*page)[character % pageLength];
}

/// The classes of the character to which a code unit of a text belongs; both halves of a pair have the same.
inline CharacterClasses classesAt(const char16_t *units, qsizetype size, qsizetype position)
{
    const char32_t unit = units[position];
    if ((unit & 0xF800) != 0xD800) [[likely]]
        return classesOf(unit);
    const bool isHigh = unit < 0xDC00;
    const qsizetype other = isHigh ? position + 1 : position - 1;
    if (other < 0 || other >= size)
        return classesOf(unit);
    const char32_t otherUnit = units[other];
    const char32_t high = isHigh ? unit : otherUnit;
    const char32_t low = isHigh ? otherUnit : unit;
    if ((high & 0xFC00) != 0xD800 || (low & 0xFC00) != 0xDC00)
        return classesOf(unit);
    return classesOf(0x10000 + ((high & 0x3FF) << 10 | (low & 0x3FF)));
}
