// SPDX-License-Identifier: MIT
#include "platform/text_encoding/JohabText.h"

#include "platform/text_encoding/EncodingConverter.h"

#include <array>

namespace {

constexpr int none = -1;

// The three letters of a syllable have five bits each. These functions return their numbers in Unicode's
// order (U+AC00: 19 initials, 21 vowels, 28 finals, of which 0 is no final), or none for a filler or an
// unused code.
int initialOf(int code)
{
    return code >= 2 && code <= 20 ? code - 2 : none;
}

int vowelOf(int code)
{
    constexpr std::array<int, 32> vowels{none, none, none, 0, 1, 2, 3, 4, none, none, 5, 6, 7, 8, 9, 10, none,
        none, 11, 12, 13, 14, 15, 16, none, none, 17, 18, 19, 20, none, none};
    return vowels.at(static_cast<size_t>(code));
}

int finalOf(int code)
{
    if (code >= 1 && code <= 17)
        return code - 1;
    return code >= 19 && code <= 29 ? code - 2 : none;
}

constexpr int filler[] = {1, 2, 1};

/// A single letter, from the block of compatibility letters; 0 if the code is not a single letter.
char16_t loneLetter(int initial, int vowel, int final)
{
    constexpr std::u16string_view initials = u"ㄱㄲㄴㄷㄸㄹㅁㅂㅃㅅㅆㅇㅈㅉㅊㅋㅌㅍㅎ";
    constexpr std::u16string_view finals = u"ㄱㄲㄳㄴㄵㄶㄷㄹㄺㄻㄼㄽㄾㄿㅀㅁㅂㅄㅅㅆㅇㅈㅊㅋㅌㅍㅎ";
    if (vowel == filler[1] && final == filler[2] && initialOf(initial) != none)
        return initials[static_cast<size_t>(initialOf(initial))];
    if (initial == filler[0] && final == filler[2] && vowelOf(vowel) != none)
        return static_cast<char16_t>(u'ㅏ' + vowelOf(vowel));
    if (initial == filler[0] && vowel == filler[1] && finalOf(final) > 0)
        return finals[static_cast<size_t>(finalOf(final) - 1)];
    return 0;
}

char16_t syllableOfCode(int code)
{
    const int initial = code >> 10 & 31;
    const int vowel = code >> 5 & 31;
    const int final = code & 31;
    if (initialOf(initial) == none || vowelOf(vowel) == none || finalOf(final) == none)
        return loneLetter(initial, vowel, final);
    return static_cast<char16_t>(0xAC00 + (initialOf(initial) * 21 + vowelOf(vowel)) * 28 + finalOf(final));
}

/// 0 for an invalid pair. Two rows of KS X 1001 share a first byte: signs from row 1 at D9, hanja from row 42
/// at E0.
char16_t signOrHanja(uchar first, uchar second, const EncodingConverter &eucKr)
{
    const bool isSign = first >= 0xD9 && first <= 0xDE;
    const bool isHanja = first >= 0xE0 && first <= 0xF9;
    const bool isLow = second >= 0x31 && second <= 0x7E;
    if ((!isSign && !isHanja) || (!isLow && second < 0x91) || second == 0xFF)
        return 0;
    const int cell = isLow ? second - 0x31 : second - 0x91 + 0x4E;
    const int row = (isSign ? (first - 0xD9) * 2 : 41 + (first - 0xE0) * 2) + cell / 94;
    const char pair[] = {static_cast<char>(0xA1 + row), static_cast<char>(0xA1 + cell % 94)};
    QString text;
    eucKr.append({pair, 2}, text);
    return text.size() == 1 && text.front() != QChar::ReplacementCharacter ? text.front().unicode() : 0;
}

} // namespace

QString textOfJohab(QByteArrayView bytes)
{
    const EncodingConverter eucKr("windows-949");
    QString text;
    text.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        const auto first = static_cast<uchar>(bytes[at]);
        if (first < 0x80) {
            text.append(QChar(char16_t{first}));
            continue;
        }
        const auto second = at + 1 < bytes.size() ? static_cast<uchar>(bytes[at + 1]) : uchar{0};
        char16_t unit =
            first <= 0xD3 ? syllableOfCode(first << 8 | second) : signOrHanja(first, second, eucKr);
        if (unit == 0)
            unit = QChar::ReplacementCharacter;
        else
            ++at;
        text.append(QChar(unit));
    }
    return text;
}
