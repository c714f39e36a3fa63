// SPDX-License-Identifier: MIT
#include "documents/package/ScriptFormats.h"

#include <algorithm>
#include <array>

namespace {

struct Range {
    char16_t first;
    char16_t last;
};

// The rules of ECMA-376 for w:rFonts. Characters outside of the Basic Multilingual Plane are East Asian.
constexpr std::array complexRanges{Range{0x0590, 0x08FF}, Range{0xFB1D, 0xFDFF}, Range{0xFE70, 0xFEFE}};
constexpr std::array eastAsianRanges{Range{0x1100, 0x11FF}, Range{0x2E80, 0xA4CF}, Range{0xA960, 0xA97F},
    Range{0xAC00, 0xDFFF}, Range{0xF900, 0xFAFF}, Range{0xFE30, 0xFE6F}, Range{0xFF00, 0xFFEF}};
// East Asian only with a hint.
constexpr std::array sharedRanges{Range{0x00A1, 0x00A1}, Range{0x00A4, 0x00A4}, Range{0x00A7, 0x00A8},
    Range{0x00AA, 0x00AA}, Range{0x00AD, 0x00AD}, Range{0x00AF, 0x00B4}, Range{0x00B6, 0x00BA},
    Range{0x00BC, 0x00BF}, Range{0x00D7, 0x00D7}, Range{0x00F7, 0x00F7}, Range{0x02B0, 0x04FF},
    Range{0x2000, 0x2BFF}, Range{0xE000, 0xF8FF}};

template <size_t count>
bool isIn(const std::array<Range, count> &ranges, char16_t unit)
{
    return std::ranges::any_of(
        ranges, [unit](Range range) { return unit >= range.first && unit <= range.last; });
}

} // namespace

const CharacterFormat &ScriptFormats::formatOf(char16_t unit) const
{
    constexpr char16_t firstBeyondAscii = 0x80;
    if (m_isComplex)
        return m_formats.complex;
    if (unit < firstBeyondAscii)
        return m_formats.ascii;
    if (isIn(complexRanges, unit))
        return m_formats.complex;
    if (isIn(eastAsianRanges, unit) || (m_prefersEastAsian && isIn(sharedRanges, unit)))
        return m_formats.eastAsian;
    return m_formats.highAnsi;
}

ScriptFormats::Stretch ScriptFormats::stretchAt(QStringView text) const
{
    const CharacterFormat &first = formatOf(text[0].unicode());
    const auto *const end = std::find_if(
        text.begin() + 1, text.end(), [&](QChar unit) { return &formatOf(unit.unicode()) != &first; });
    return {&first, end - text.begin()};
}
