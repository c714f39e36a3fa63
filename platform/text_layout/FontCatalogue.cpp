// SPDX-License-Identifier: MIT
#include "platform/text_layout/FontCatalogue.h"

#include "platform/text_layout/FontRequest.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

namespace {

bool isTrue(FcPattern *pattern, const char *object)
{
    FcBool value = FcFalse;
    return FcPatternGetBool(pattern, object, 0, &value) == FcResultMatch && value == FcTrue;
}

double number(FcPattern *pattern, const char *object, double absent)
{
    double value = absent;
    return FcPatternGetDouble(pattern, object, 0, &value) == FcResultMatch ? value : absent;
}

QString text(FcPattern *pattern, const char *object, int n)
{
    FcChar8 *value = nullptr;
    if (FcPatternGetString(pattern, object, n, &value) != FcResultMatch)
        return {};
    return QString::fromUtf8(reinterpret_cast<const char *>(value));
}

// Type 1 versions of OpenType fonts have no kerning, and bitmap fonts no unhinted advances. Variable fonts
// are listed by their named instances.
bool isUsable(FcPattern *pattern)
{
    const QString format = text(pattern, FC_FONTFORMAT, 0);
    const bool isSfnt = format == QStringLiteral("TrueType") || format == QStringLiteral("CFF");
    return isSfnt && isTrue(pattern, FC_SCALABLE) && !isTrue(pattern, FC_VARIABLE);
}

FontSlant slantOf(FcPattern *pattern)
{
    const double slant = number(pattern, FC_SLANT, FC_SLANT_ROMAN);
    if (slant >= FC_SLANT_OBLIQUE)
        return FontSlant::Oblique;
    return slant >= FC_SLANT_ITALIC ? FontSlant::Italic : FontSlant::Upright;
}

std::optional<CatalogueFont> describe(FcPattern *pattern)
{
    FcChar8 *path = nullptr;
    FcCharSet *characters = nullptr;
    FcLangSet *languages = nullptr;
    int index = 0;
    if (!isUsable(pattern) || FcPatternGetString(pattern, FC_FILE, 0, &path) != FcResultMatch
        || FcPatternGetCharSet(pattern, FC_CHARSET, 0, &characters) != FcResultMatch
        || FcPatternGetLangSet(pattern, FC_LANG, 0, &languages) != FcResultMatch)
        return std::nullopt;
    FcPatternGetInteger(pattern, FC_INDEX, 0, &index);
    CatalogueFont font{};
    font.path = reinterpret_cast<const char *>(path);
    font.index = index;
    for (const char *object : {FC_FAMILY, FC_FULLNAME, FC_POSTSCRIPT_NAME}) {
        constexpr int maxNames = 16;
        for (int n = 0; n < maxNames; ++n) {
            const QString key = familyKey(text(pattern, object, n));
            if (!key.isEmpty() && !font.families.contains(key))
                font.families.append(key);
        }
    }
    if (font.families.isEmpty())
        return std::nullopt;
    const double weight = FcWeightToOpenTypeDouble(number(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR));
    font.weight = static_cast<int>(std::lround(std::clamp(weight, 1.0, 1000.0)));
    font.width =
        static_cast<int>(std::lround(std::clamp(number(pattern, FC_WIDTH, FC_WIDTH_NORMAL), 1.0, 1000.0)));
    font.slant = slantOf(pattern);
    font.isColored = isTrue(pattern, FC_COLOR);
    font.characters = characters;
    font.languages = languages;
    return font;
}

QByteArray fileName(const QByteArray &path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

} // namespace

bool CatalogueFont::covers(char32_t character) const
{
    constexpr char32_t hyphen = 0x2010;
    constexpr char32_t noBreakHyphen = 0x2011; // shown as a hyphen if it has no glyph
    return FcCharSetHasChar(characters, character) == FcTrue
        || (character == noBreakHyphen && FcCharSetHasChar(characters, hyphen) == FcTrue);
}

bool CatalogueFont::supports(const QByteArray &language) const
{
    return FcLangSetHasLang(languages, reinterpret_cast<const FcChar8 *>(language.constData()))
        != FcLangDifferentLang;
}

void FontCatalogue::ConfigDeleter::operator()(FcConfig *config) const
{
    FcConfigDestroy(config);
}

FontCatalogue::FontCatalogue()
    : m_config(FcInitLoadConfigAndFonts())
{
    for (const FcSetName name : {FcSetSystem, FcSetApplication}) {
        const FcFontSet *set = m_config ? FcConfigGetFonts(m_config.get(), name) : nullptr;
        for (int i = 0; set && i < set->nfont; ++i) {
            if (std::optional<CatalogueFont> font = describe(set->fonts[i]))
                m_fonts.push_back(std::move(*font));
        }
    }
    std::sort(m_fonts.begin(), m_fonts.end(), [](const CatalogueFont &left, const CatalogueFont &right) {
        const auto key = [](const CatalogueFont &font) {
            return std::make_tuple(
                std::cref(font.families.first()), fileName(font.path), font.index, std::cref(font.path));
        };
        return key(left) < key(right);
    });
    if (m_fonts.size() > maxFonts)
        m_fonts.resize(maxFonts);
}
