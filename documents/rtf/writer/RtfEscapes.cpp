// SPDX-License-Identifier: MIT
#include "documents/rtf/writer/RtfEscapes.h"

#include <algorithm>
#include <array>
#include <charconv>

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

void appendUnescaped(QByteArray &rtf, const char16_t *from, const char16_t *to)
{
    const qsizetype length = rtf.size();
    rtf.resize(length + (to - from));
    std::transform(from, to, rtf.data() + length, [](char16_t unit) { return static_cast<char>(unit); });
}

} // namespace

void appendRtfText(QByteArray &rtf, QStringView text)
{
    const char16_t *at = text.utf16();
    const char16_t *const end = at + text.size();
    while (at != end) {
        const char16_t *const next =
            std::find_if_not(at, end, [](char16_t unit) { return unit < 128 && isLiteral[unit]; });
        if (next != at)
            appendUnescaped(rtf, at, next);
        if (next == end)
            return;
        if (*next == u'\n')
            rtf.append("\\par\n"); // RTF ignores the line end; it only makes the source readable
        else if (*next == u'\t')
            rtf.append("\\tab ");
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
