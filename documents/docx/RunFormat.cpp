// SPDX-License-Identifier: MIT
#include "documents/docx/RunFormat.h"

#include <algorithm>
#include <array>

namespace {

constexpr int regularWeight = 400;
constexpr int boldWeight = 700;
constexpr double defaultSize = 10; // points; what a document means that says nothing

// How Word sets raised and lowered characters: two thirds of the size, a third of it up, a sixth down.
constexpr double smallFactor = 2.0 / 3;
constexpr double superscriptRise = 1.0 / 3;
constexpr double subscriptFall = 1.0 / 6;

struct Range {
    char16_t first;
    char16_t last;
};

// By ECMA-376's rules for w:rFonts. What stands outside of the Basic Multilingual Plane is East Asian there.
constexpr std::array complexRanges{Range{0x0590, 0x08FF}, Range{0xFB1D, 0xFDFF}, Range{0xFE70, 0xFEFE}};
constexpr std::array eastAsianRanges{Range{0x1100, 0x11FF}, Range{0x2E80, 0xA4CF}, Range{0xA960, 0xA97F},
    Range{0xAC00, 0xDFFF}, Range{0xF900, 0xFAFF}, Range{0xFE30, 0xFE6F}, Range{0xFF00, 0xFFEF}};
// With the hint for East Asian fonts.
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

QString either(const QString &text, const QString &otherwise)
{
    return text.isEmpty() ? otherwise : text;
}

struct Look {
    double size;
    bool isBold;
    bool isItalic;
};

CharacterFormat madeFormat(
    const QString &family, const Look &look, const RunProperties &properties, QString language)
{
    CharacterFormat format;
    format.font.family = either(family, QStringLiteral("Times New Roman"));
    format.font.pointSize = look.size;
    format.font.weight = look.isBold ? boldWeight : regularWeight;
    format.font.slant = look.isItalic ? FontSlant::Italic : FontSlant::Upright;
    format.font.tracking = properties.tracking.value_or(0);
    format.font.baselineOffset = properties.raised.value_or(0);
    const VerticalAlignment alignment = properties.verticalAlignment.value_or(VerticalAlignment::Baseline);
    if (alignment != VerticalAlignment::Baseline) {
        format.font.pointSize = look.size * smallFactor;
        format.font.baselineOffset +=
            look.size * (alignment == VerticalAlignment::Superscript ? superscriptRise : -subscriptFall);
    }
    format.language = std::move(language);
    return format;
}

} // namespace

RunFormat::RunFormat(const RunProperties &properties)
    : m_isHidden(properties.isHidden())
    , m_isComplex(properties.isComplex.value_or(false))
    , m_prefersEastAsian(properties.prefersEastAsian.value_or(false))
{
    const ByScript<QString> &fonts = properties.fonts;
    const Look look{properties.size.value_or(defaultSize), properties.bold.value_or(false),
        properties.italic.value_or(false)};
    const Look complexLook{properties.complexSize.value_or(defaultSize),
        properties.complexBold.value_or(false), properties.complexItalic.value_or(false)};
    m_formats.ascii = madeFormat(fonts.ascii, look, properties, properties.language);
    m_formats.highAnsi =
        madeFormat(either(fonts.highAnsi, fonts.ascii), look, properties, properties.language);
    m_formats.eastAsian = madeFormat(either(fonts.eastAsian, fonts.ascii), look, properties,
        either(properties.eastAsianLanguage, properties.language));
    m_formats.complex = madeFormat(either(fonts.complex, fonts.ascii), complexLook, properties,
        either(properties.complexLanguage, properties.language));
}

const CharacterFormat &RunFormat::formatOf(char16_t unit) const
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

RunFormat::Stretch RunFormat::stretchAt(QStringView text) const
{
    const CharacterFormat &first = formatOf(text[0].unicode());
    const auto end = std::find_if(
        text.begin() + 1, text.end(), [&](QChar unit) { return &formatOf(unit.unicode()) != &first; });
    return {&first, end - text.begin()};
}
