// SPDX-License-Identifier: MIT
#include "platform/segmentation/CharacterClasses.h"

#include "platform/segmentation/Paragraphs.h"
#include "platform/segmentation/Segmenter.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>

namespace {

// The scripts that ICU segments with one dictionary.
bool isKanaOrHan(UChar32 character)
{
    UErrorCode status = U_ZERO_ERROR;
    switch (uscript_getScript(character, &status)) {
    case USCRIPT_HAN:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
        return true;
    default:
        return false;
    }
}

bool isHangulSyllable(UChar32 character)
{
    return character >= 0xAC00 && character <= 0xD7A3;
}

// ICU's root rules differ from UAX #29 in these: the at sign is a letter, a colon joins nothing.
UWordBreakValues wordClass(UChar32 character)
{
    switch (character) {
    case u'@':
        return U_WB_ALETTER;
    case u':':
    case 0xFE55:
    case 0xFF1A:
        return U_WB_OTHER;
    default:
        return static_cast<UWordBreakValues>(u_getIntPropertyValue(character, UCHAR_WORD_BREAK));
    }
}

SentenceClass sentenceClass(UChar32 character)
{
    switch (u_getIntPropertyValue(character, UCHAR_SENTENCE_BREAK)) {
    case U_SB_EXTEND:
    case U_SB_FORMAT:
        return SentenceClass::Extender;
    case U_SB_SP:
        return SentenceClass::Space;
    case U_SB_LOWER:
        return SentenceClass::Lower;
    case U_SB_UPPER:
        return SentenceClass::Upper;
    case U_SB_OLETTER:
        return SentenceClass::OtherLetter;
    case U_SB_NUMERIC:
        return SentenceClass::Number;
    case U_SB_ATERM:
        return SentenceClass::FullStop;
    case U_SB_STERM:
        return SentenceClass::Terminator;
    case U_SB_SCONTINUE:
        return SentenceClass::Continuing;
    case U_SB_CLOSE:
        return SentenceClass::Close;
    case U_SB_SEP:
    case U_SB_CR:
    case U_SB_LF:
        return SentenceClass::Separator;
    default:
        return SentenceClass::Other;
    }
}

class Flags {
public:
    void set(CharacterClass value, bool isSet = true)
    {
        if (isSet)
            m_flags |= 1U << static_cast<int>(value);
    }

    [[nodiscard]] bool any(CharacterClass first, CharacterClass last) const
    {
        const quint32 below = (1U << static_cast<int>(first)) - 1;
        return m_flags & ((2U << static_cast<int>(last)) - 1) & ~below;
    }

    [[nodiscard]] quint32 value() const { return m_flags; }

private:
    quint32 m_flags = 0;
};

void setWordClass(Flags &flags, UWordBreakValues value)
{
    switch (value) {
    case U_WB_HEBREW_LETTER:
        flags.set(CharacterClass::Hebrew);
        [[fallthrough]];
    case U_WB_ALETTER:
        flags.set(CharacterClass::Letter);
        break;
    case U_WB_NUMERIC:
        flags.set(CharacterClass::Number);
        break;
    case U_WB_EXTENDNUMLET:
        flags.set(CharacterClass::Connector);
        break;
    case U_WB_MIDLETTER:
        flags.set(CharacterClass::MiddleOfLetters);
        break;
    case U_WB_MIDNUM:
        flags.set(CharacterClass::MiddleOfNumbers);
        break;
    case U_WB_MIDNUMLET:
    case U_WB_SINGLE_QUOTE:
        flags.set(CharacterClass::MiddleOfLetters);
        flags.set(CharacterClass::MiddleOfNumbers);
        break;
    case U_WB_EXTEND:
    case U_WB_FORMAT:
    case U_WB_ZWJ:
        flags.set(CharacterClass::Extender);
        break;
    default:
        break;
    }
}

void setWordFlags(Flags &flags, UChar32 character)
{
    if (isHangulSyllable(character))
        return flags.set(CharacterClass::Hangul);
    const UWordBreakValues value = wordClass(character);
    const bool hasDictionary = isKanaOrHan(character) || value == U_WB_KATAKANA
        || u_getIntPropertyValue(character, UCHAR_LINE_BREAK) == U_LB_COMPLEX_CONTEXT;
    if (hasDictionary)
        return flags.set(CharacterClass::Hard);
    setWordClass(flags, value);
    const bool joins = flags.any(CharacterClass::Letter, CharacterClass::Connector);
    const bool isMiddle = flags.any(CharacterClass::MiddleOfLetters, CharacterClass::MiddleOfNumbers);
    const bool hasLetter = isLetterOrDigit(static_cast<char32_t>(character));
    flags.set(CharacterClass::Unlettered, joins && !hasLetter);
    // Words of one character that nothing joins; pictographs that a zero-width joiner joins to what is before
    // it; and combinations that do not occur.
    const bool isJoinedPictograph = joins && u_hasBinaryProperty(character, UCHAR_EXTENDED_PICTOGRAPHIC);
    flags.set(CharacterClass::Hard,
        (hasLetter && !joins) || isJoinedPictograph || (isMiddle && character > 0xFFFF));
}

CharacterClasses makeClasses(char32_t character)
{
    Flags flags;
    setWordFlags(flags, static_cast<UChar32>(character));
    const SentenceClass sentence = sentenceClass(static_cast<UChar32>(character));
    const bool isEnd = sentence == SentenceClass::FullStop || sentence == SentenceClass::Terminator;
    flags.set(CharacterClass::Terminator, isEnd);
    if (character <= 0xFFFF) {
        const auto unit = static_cast<char16_t>(character);
        const bool isParagraphEnd = isParagraphSeparator(unit);
        flags.set(CharacterClass::Sign, isEnglishWordOfOneLetter(unit));
        flags.set(CharacterClass::White, QChar::isSpace(unit));
        flags.set(CharacterClass::ParagraphSeparator, isParagraphEnd);
        flags.set(CharacterClass::LineSeparator, sentence == SentenceClass::Separator && !isParagraphEnd);
    }
    return {flags.value(), sentence};
}

} // namespace

namespace CharacterClassPages {

constinit std::array<std::atomic<const Page *>, 0x110000 / pageLength> pages{};

const Page &makePage(char32_t index)
{
    auto page = std::make_unique<Page>();
    for (char32_t i = 0; i < pageLength; ++i)
        (*page)[i] = makeClasses(index * pageLength + i);
    const Page *present = nullptr;
    // Another thread may have been faster; its page is the same.
    if (pages[index].compare_exchange_strong(present, page.get(), std::memory_order_acq_rel))
        present = page.release();
    return *present;
}

} // namespace CharacterClassPages
