// SPDX-License-Identifier: MIT
#include "documents/rtf/writer/RtfEscapes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace {

constexpr std::array<bool, 128> makeLiteralCharacters()
{
    std::array<bool, 128> table{};
    for (size_t character = 0x20; character < 0x7F; ++character)
        table.at(character) = character != '\\' && character != '{' && character != '}';
    return table;
}

constexpr std::array<bool, 128> isLiteral = makeLiteralCharacters();

void appendCodeUnit(QByteArray &rtf, char16_t unit)
{
    char word[sizeof "\\u-32768 "] = "\\u";
    char *const blank = word + sizeof word - 1; // its last possible position
    // NOLINTNEXTLINE(misc-const-correctness): the next line writes through it
    char *end = std::to_chars(word + 2, blank, static_cast<qint16>(unit)).ptr;
    *end++ = ' ';
    rtf.append(word, end - word);
}

void appendEscaped(QByteArray &rtf, char16_t unit)
{
    if (unit == u'\\' || unit == u'{' || unit == u'}')
        rtf.append('\\').append(static_cast<char>(unit));
    else
        appendCodeUnit(rtf, unit);
}

constexpr qsizetype blockLength = 8; // code units
// Of numbers, as Clang 14 crashes over comparisons of vectors of char16_t.
using Units = quint16 __attribute__((vector_size(2 * blockLength)));
using Bytes = uchar __attribute__((vector_size(blockLength)));

bool isLiteralBlock(const char16_t *from)
{
    Units units;
    std::memcpy(&units, from, sizeof units);
    const auto others = (units < 0x20) | (units > 0x7E) | (units == '\\') | (units == '{') | (units == '}');
    std::array<quint64, 2> bits;
    std::memcpy(bits.data(), &others, sizeof bits);
    return (bits[0] | bits[1]) == 0;
}

const char16_t *endOfLiterals(const char16_t *at, const char16_t *end)
{
    while (end - at >= blockLength && isLiteralBlock(at))
        at += blockLength;
    return std::find_if_not(at, end, [](char16_t unit) { return unit < 128 && isLiteral[unit]; });
}

void appendUnescaped(QByteArray &rtf, const char16_t *from, const char16_t *to)
{
    const qsizetype length = rtf.size();
    rtf.resize(length + (to - from));
    char *bytes = rtf.data() + length;
    for (; to - from >= blockLength; from += blockLength, bytes += blockLength) {
        Units units;
        std::memcpy(&units, from, sizeof units);
        const Bytes narrow = __builtin_convertvector(units, Bytes);
        std::memcpy(bytes, &narrow, sizeof narrow);
    }
    std::transform(from, to, bytes, [](char16_t unit) { return static_cast<char>(unit); });
}

} // namespace

void appendRtfText(QByteArray &rtf, QStringView text)
{
    const char16_t *at = text.utf16();
    const char16_t *const end = at + text.size();
    while (at != end) {
        const char16_t *const next = endOfLiterals(at, end);
        if (next != at)
            appendUnescaped(rtf, at, next);
        if (next == end)
            return;
        if (*next == u'\n')
            rtf.append(
                QByteArrayView("\\par\n")); // RTF ignores the line end; it only makes the source readable
        else if (*next == u'\t')
            rtf.append(QByteArrayView("\\tab "));
        else
            appendEscaped(rtf, *next);
        at = next + 1;
    }
}

void appendRtfName(QByteArray &rtf, QStringView name)
{
    for (qsizetype i = 0; i < name.size(); ++i) {
        const char16_t unit = name[i].unicode();
        const bool isAtEdge = i == 0 || i == name.size() - 1;
        if (unit < 128 && isLiteral[unit] && unit != u';' && (unit != u' ' || !isAtEdge))
            rtf.append(static_cast<char>(unit));
        else
            appendEscaped(rtf, unit);
    }
}
