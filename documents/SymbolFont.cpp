// SPDX-License-Identifier: MIT
#include "documents/SymbolFont.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr size_t lowerHalfStart = 0x20;
constexpr std::u16string_view lowerHalf =
    u" !\u2200#\u2203%&\u220B()\u2217+,\u2212./0123456789:;<=>?"
    u"\u2245\u0391\u0392\u03A7\u0394\u0395\u03A6\u0393\u0397\u0399\u03D1\u039A\u039B\u039C\u039D\u039F"
    u"\u03A0\u0398\u03A1\u03A3\u03A4\u03A5\u03C2\u03A9\u039E\u03A8\u0396[\u2234]\u22A5_"
    u"\u203E\u03B1\u03B2\u03C7\u03B4\u03B5\u03C6\u03B3\u03B7\u03B9\u03D5\u03BA\u03BB\u03BC\u03BD\u03BF"
    u"\u03C0\u03B8\u03C1\u03C3\u03C4\u03C5\u03D6\u03C9\u03BE\u03C8\u03B6{|}\u223C";

constexpr size_t upperHalfStart = 0xA0;
constexpr std::u16string_view upperHalf =
    u"\u20AC\u03D2\u2032\u2264\u2044\u221E\u0192\u2663\u2666\u2665\u2660\u2194\u2190\u2191\u2192\u2193"
    u"\u00B0\u00B1\u2033\u2265\u00D7\u221D\u2202\u2022\u00F7\u2260\u2261\u2248\u2026\u23D0\u23AF\u21B5"
    u"\u2135\u2111\u211C\u2118\u2297\u2295\u2205\u2229\u222A\u2283\u2287\u2284\u2282\u2286\u2208\u2209"
    u"\u2220\u2207\u00AE\u00A9\u2122\u220F\u221A\u22C5\u00AC\u2227\u2228\u21D4\u21D0\u21D1\u21D2\u21D3"
    u"\u25CA\u2329\u00AE\u00A9\u2122\u2211\u239B\u239C\u239D\u23A1\u23A2\u23A3\u23A7\u23A8\u23A9\u23AA"
    u"\uF8FF\u232A\u222B\u2320\u23AE\u2321\u239E\u239F\u23A0\u23A4\u23A5\u23A6\u23AB\u23AC\u23AD";

constexpr std::array pictureFamilies{u"wingdings", u"wingdings 2", u"wingdings 3", u"webdings",
    u"zapfdingbats", u"zapf dingbats", u"itc zapf dingbats", u"monotype sorts", u"marlett", u"mt extra"};

bool isSameFamily(QStringView family, QStringView other)
{
    return family.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace

bool isSymbolFamily(QStringView family)
{
    return isSameFamily(family, u"Symbol");
}

bool isSymbolOrPictureFamily(QStringView family)
{
    return isSymbolFamily(family) || std::ranges::any_of(pictureFamilies, [family](const char16_t *name) {
        return isSameFamily(family, name);
    });
}

char16_t symbolFontCharacter(uchar code)
{
    if (code < lowerHalfStart)
        return code;
    if (code < lowerHalfStart + lowerHalf.size())
        return lowerHalf[code - lowerHalfStart];
    if (code >= upperHalfStart && code < upperHalfStart + upperHalf.size())
        return upperHalf[code - upperHalfStart];
    return static_cast<char16_t>(symbolGlyphBase + code);
}

QString replaceSymbolGlyphs(QString text, QStringView family)
{
    constexpr char16_t firstGlyph = symbolGlyphBase + 0x20;
    constexpr char16_t lastGlyph = symbolGlyphBase + 0xFF;
    if (!isSymbolFamily(family))
        return text;
    for (QChar &unit : text) {
        if (unit.unicode() >= firstGlyph && unit.unicode() <= lastGlyph)
            unit = symbolFontCharacter(static_cast<uchar>(unit.unicode() - symbolGlyphBase));
    }
    return text;
}
