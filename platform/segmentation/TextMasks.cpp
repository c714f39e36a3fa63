// SPDX-License-Identifier: MIT
#include "platform/segmentation/TextMasks.h"

#include "platform/segmentation/AsciiMasks.h"

#include <algorithm>

void TextMasks::read(QStringView text, qsizetype start, qsizetype length)
{
    m_length = length;
    for (qsizetype index = 0; index < wordCount(); ++index)
        readWord(text, start, index);
}

void TextMasks::readWord(QStringView text, qsizetype start, qsizetype index)
{
    const qsizetype from = start + index * bitsPerWord;
    const qsizetype length = std::min(bitsPerWord, m_length - index * bitsPerWord);
    const char16_t *units = text.utf16() + from;
    std::array<char16_t, bitsPerWord> rest;
    if (length < bitsPerWord) {
        // NUL is of no class.
        std::fill(std::copy_n(units, length, rest.begin()), rest.end(), u'\0');
        units = rest.data();
    }
    AsciiMasks ascii;
    readAsciiMasks(units, ascii);
    auto &classes = m_classes[static_cast<size_t>(index)];
    const auto mask = [&classes](
                          CharacterClass value) -> quint64 & { return classes[static_cast<size_t>(value)]; };
    classes.fill(0);
    m_facts[static_cast<size_t>(index)].fill(0);
    mask(CharacterClass::Letter) = ascii.letter;
    mask(CharacterClass::Number) = ascii.number;
    mask(CharacterClass::Connector) = ascii.connector;
    mask(CharacterClass::Unlettered) = ascii.unlettered;
    mask(CharacterClass::MiddleOfLetters) = ascii.middleOfLetters;
    mask(CharacterClass::MiddleOfNumbers) = ascii.middleOfNumbers;
    mask(CharacterClass::Sign) = ascii.sign;
    mask(CharacterClass::White) = ascii.white;
    mask(CharacterClass::Terminator) = ascii.terminator;
    mask(CharacterClass::ParagraphSeparator) = ascii.paragraphSeparator;
    for (quint64 left = ascii.notAscii; left; left &= left - 1) {
        const int bit = std::countr_zero(left);
        quint32 flags = classesAt(text.utf16(), text.size(), from + bit).flags();
        for (; flags; flags &= flags - 1)
            classes[static_cast<size_t>(std::countr_zero(flags))] |= quint64{1} << bit;
    }
}

void TextMasks::truncate(qsizetype length)
{
    m_length = length;
    if (length % bitsPerWord == 0)
        return;
    const quint64 left = rangeMask(0, 0, length % bitsPerWord);
    for (quint64 &mask : m_classes[static_cast<size_t>(length / bitsPerWord)])
        mask &= left;
    for (quint64 &mask : m_facts[static_cast<size_t>(length / bitsPerWord)])
        mask &= left;
}
