// SPDX-License-Identifier: MIT
#include "platform/segmentation/SentenceEnds.h"

#include "platform/segmentation/CharacterClasses.h"

#include <optional>

namespace {

// Walks over the code units of a text; behind its end there are separators.
class Cursor {
public:
    Cursor(QStringView text, qsizetype position)
        : m_units(text.utf16())
        , m_size(text.size())
        , m_position(position)
    {
        read();
    }

    [[nodiscard]] qsizetype position() const { return m_position; }

    [[nodiscard]] SentenceClass value() const { return m_value; }

    void advance()
    {
        ++m_position;
        read();
    }

    void skip(SentenceClass skipped)
    {
        while (m_value == skipped)
            advance();
    }

    // SB5 lets extenders follow each of them.
    void skipWithExtenders(SentenceClass skipped)
    {
        while (m_value == skipped || m_value == SentenceClass::Extender)
            advance();
    }

    // To the first character that ends the search of SB8.
    void skipNonLetters()
    {
        for (;; advance()) {
            switch (m_value) {
            case SentenceClass::OtherLetter:
            case SentenceClass::Upper:
            case SentenceClass::Lower:
            case SentenceClass::Separator:
            case SentenceClass::FullStop:
            case SentenceClass::Terminator:
                return;
            default:
                break;
            }
        }
    }

private:
    void read()
    {
        m_value = m_position < m_size ? classesAt(m_units, m_size, m_position).sentence()
                                      : SentenceClass::Separator;
    }

    const char16_t *m_units;
    qsizetype m_size;
    qsizetype m_position;
    SentenceClass m_value;
};

// The left side of SB7.
bool followsCasedLetter(QStringView text, qsizetype sentence, qsizetype position)
{
    while (position > sentence) {
        switch (classesAt(text.utf16(), text.size(), --position).sentence()) {
        case SentenceClass::Extender:
            continue;
        case SentenceClass::Upper:
        case SentenceClass::Lower:
            return true;
        default:
            return false;
        }
    }
    return false;
}

bool isEnglishMark(char16_t unit)
{
    return unit == u'.' || unit == u'?' || unit == u'!';
}

// For a mark that is followed by another one, by the end of the paragraph, or by a space and a capital
// letter: nearly all in English, of which the rules need not be asked.
std::optional<SentenceStep> simpleStepAt(QStringView text, qsizetype mark)
{
    const char16_t *const units = text.utf16();
    if (!isEnglishMark(units[mark]) || mark + 2 >= text.size())
        return std::nullopt;
    const char16_t next = units[mark + 1];
    if (next == u'\n')
        return SentenceStep{true, mark + 1};
    if (isEnglishMark(next)) // SB8a
        return SentenceStep{false, mark + 1};
    const char16_t after = units[mark + 2];
    if (next == u' ' && after >= u'A' && after <= u'Z') // SB11
        return SentenceStep{true, mark + 2};
    return std::nullopt;
}

} // namespace

SentenceStep sentenceStepAt(QStringView text, qsizetype sentence, qsizetype terminator)
{
    if (const std::optional<SentenceStep> step = simpleStepAt(text, terminator))
        return *step;
    Cursor cursor(text, terminator);
    const SentenceClass kind = cursor.value();
    cursor.advance();
    if (kind == SentenceClass::Separator)
        return {true, terminator + 1};
    const bool isFullStop = kind == SentenceClass::FullStop;
    cursor.skip(SentenceClass::Extender);
    if (isFullStop) {
        const SentenceClass next = cursor.value();
        if (next == SentenceClass::Number) // SB6
            return {false, cursor.position()};
        if (next == SentenceClass::Upper && followsCasedLetter(text, sentence, terminator)) // SB7
            return {false, cursor.position()};
    }
    cursor.skipWithExtenders(SentenceClass::Close);
    cursor.skipWithExtenders(SentenceClass::Space);
    const qsizetype end = cursor.position();
    switch (cursor.value()) {
    case SentenceClass::Continuing: // SB8a
    case SentenceClass::FullStop:
    case SentenceClass::Terminator:
        return {false, end};
    case SentenceClass::Separator: {
        const bool isPartOfSentence =
            end < text.size() && classesAt(text.utf16(), text.size(), end).has(CharacterClass::LineSeparator);
        return {true, isPartOfSentence ? end + 1 : end};
    }
    default:
        break;
    }
    if (isFullStop) {
        cursor.skipNonLetters();
        if (cursor.value() == SentenceClass::Lower) // SB8
            return {false, cursor.position()};
    }
    return {true, end};
}
