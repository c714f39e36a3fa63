// SPDX-License-Identifier: MIT
#include "documents/rtf/writer/RtfEscapes.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
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

/// So many code units are escaped at a time, in a buffer that has room for the longest escapes.
constexpr qsizetype escapedAtOnce = 4096;
constexpr qsizetype longestEscape = sizeof "\\u-32768 " - 1; // bytes

char *writeWord(char *to, QByteArrayView word)
{
    return std::copy(word.begin(), word.end(), to);
}

/// Writes longestEscape bytes or fewer, and returns their end.
char *writeEscaped(char *to, char16_t unit)
{
    if (unit == u'\\' || unit == u'{' || unit == u'}') {
        *to++ = '\\';
        *to++ = static_cast<char>(unit);
        return to;
    }
    to = writeWord(to, "\\u");
    to = std::to_chars(to, to + longestEscape, static_cast<qint16>(unit)).ptr;
    *to++ = ' ';
    return to;
}

void appendEscaped(QByteArray &rtf, char16_t unit)
{
    std::array<char, longestEscape> word;
    rtf.append(word.data(), writeEscaped(word.data(), unit) - word.data());
}

char *writeUnit(char *to, char16_t unit)
{
    if (unit < 128 && isLiteral[unit]) {
        *to++ = static_cast<char>(unit);
        return to;
    }
    if (unit == u'\n')
        return writeWord(to, "\\par\n"); // RTF ignores the line end; it only makes the source readable
    if (unit == u'\t')
        return writeWord(to, "\\tab ");
    return writeEscaped(to, unit);
}

constexpr qsizetype blockLength = 8; // code units
// Of numbers, as Clang 14 crashes over comparisons of vectors of char16_t.
using Units = quint16 __attribute__((vector_size(2 * blockLength)));
using Bytes = uchar __attribute__((vector_size(blockLength)));

/// Writes a whole block of bytes, and returns how many of its units are literal, counted from its start:
/// those behind them must be written again.
qsizetype narrowBlock(const char16_t *from, char *to)
{
    Units units;
    std::memcpy(&units, from, sizeof units);
    const Bytes narrow = __builtin_convertvector(units, Bytes);
    std::memcpy(to, &narrow, sizeof narrow);
    const auto others = (units < 0x20) | (units > 0x7E) | (units == '\\') | (units == '{') | (units == '}');
    quint64 bits = 0; // eight for each unit
    const auto narrowOthers = __builtin_convertvector(others, Bytes);
    std::memcpy(&bits, &narrowOthers, sizeof bits);
    if constexpr (std::endian::native == std::endian::big)
        bits = qbswap(bits);
    return bits == 0 ? blockLength : std::countr_zero(bits) / 8;
}

/// There must be room for longestEscape bytes for each unit. Returns the end of what it writes.
char *writeText(char *to, QStringView text)
{
    const char16_t *at = text.utf16();
    const char16_t *const end = at + text.size();
    while (at != end) {
        const qsizetype literal = end - at >= blockLength ? narrowBlock(at, to) : 0;
        at += literal;
        to += literal;
        if (literal < blockLength)
            to = writeUnit(to, *at++);
    }
    return to;
}

} // namespace

void appendRtfText(QByteArray &rtf, QStringView text)
{
    while (!text.isEmpty()) {
        const QStringView piece = text.first(std::min(text.size(), escapedAtOnce));
        const qsizetype length = rtf.size();
        rtf.resize(length + piece.size() * longestEscape);
        rtf.truncate(writeText(rtf.data() + length, piece) - rtf.data());
        text = text.sliced(piece.size());
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
