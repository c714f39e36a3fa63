// SPDX-License-Identifier: MIT
#include "documents/odt/TextFormat.h"

#include "documents/package/XmlValues.h"

#include <algorithm>

namespace {

constexpr double defaultSize = 12; // points
constexpr double minSize = 1;
constexpr double maxSize = 1638;
constexpr double maxFactor = 100;
constexpr qsizetype maxNameLength = 255; // bytes

// Without figures of its own, LibreOffice raises or lowers text by these shares of the size.
constexpr double superscriptRise = 0.33;
constexpr double subscriptRise = -0.08;
constexpr double scriptScale = 0.58;

std::optional<double> shareOf(QByteArrayView value)
{
    if (!value.endsWith('%') || value.size() > maxNameLength)
        return std::nullopt;
    bool isNumber = false;
    const double share = value.chopped(1).trimmed().toDouble(&isNumber) / 100;
    return isNumber && share >= -maxFactor && share <= maxFactor ? std::optional(share) : std::nullopt;
}

QString nameOf(QByteArrayView value)
{
    return value == "none" ? QString()
                           : QString::fromUtf8(value.first(std::min(value.size(), maxNameLength)));
}

void setFamily(TextFormat::Script &script, const QString &family)
{
    if (!family.isEmpty())
        script.family = family;
}

void readSize(TextFormat::Script &script, QByteArrayView value)
{
    if (const std::optional<double> share = shareOf(value); share && *share > 0) {
        script.size.reset();
        script.sizeFactor = *share;
    } else if (const std::optional<double> size = pointsOf(value)) {
        script.size = std::clamp(*size, minSize, maxSize);
        script.sizeFactor = 1;
    }
}

std::optional<bool> boldnessOf(QByteArrayView value)
{
    constexpr int leastBold = 600;
    const std::optional<int> weight = integerOf(value);
    return weight ? *weight >= leastBold : value == "bold";
}

/// "super", "sub" or a share of the size, then optionally a second share: the scale.
std::optional<TextFormat::Position> textPositionOf(QByteArrayView value)
{
    const qsizetype space = value.indexOf(' ');
    const QByteArrayView first = space < 0 ? value : value.first(space);
    const double scale = (space < 0 ? std::nullopt : shareOf(value.sliced(space + 1))).value_or(scriptScale);
    if (first == "super")
        return TextFormat::Position{superscriptRise, scale};
    if (first == "sub")
        return TextFormat::Position{subscriptRise, scale};
    const std::optional<double> rise = shareOf(first);
    return rise ? std::optional(TextFormat::Position{*rise, scale}) : std::nullopt;
}

std::optional<double> trackingOf(QByteArrayView value)
{
    return value == "normal" ? std::optional(0.0) : pointsOf(value);
}

/// What each script has of its own, under three names.
struct ScriptProperty {
    OdfName ofLatin;
    OdfName ofAsian;
    OdfName ofComplex;
    void (*read)(TextFormat::Script &script, QByteArrayView value, const FontFaces &faces);
};

using Script = TextFormat::Script;

constexpr ScriptProperty scriptProperties[] = {
    {"style:font-name"_odf, "style:font-name-asian"_odf, "style:font-name-complex"_odf,
        [](Script &script, QByteArrayView value, const FontFaces &faces) {
            setFamily(script, faces.value(value.toByteArray()));
        }},
    {"fo:font-family"_odf, "style:font-family-asian"_odf, "style:font-family-complex"_odf,
        [](Script &script, QByteArrayView value, const FontFaces &) { setFamily(script, familyOf(value)); }},
    {"fo:font-size"_odf, "style:font-size-asian"_odf, "style:font-size-complex"_odf,
        [](Script &script, QByteArrayView value, const FontFaces &) { readSize(script, value); }},
    {"fo:font-weight"_odf, "style:font-weight-asian"_odf, "style:font-weight-complex"_odf,
        [](Script &script, QByteArrayView value, const FontFaces &) { script.isBold = boldnessOf(value); }},
    {"fo:font-style"_odf, "style:font-style-asian"_odf, "style:font-style-complex"_odf,
        [](Script &script, QByteArrayView value, const FontFaces &) { script.isItalic = value != "normal"; }},
    {"fo:language"_odf, "style:language-asian"_odf, "style:language-complex"_odf,
        [](Script &script, QByteArrayView value, const FontFaces &) { script.language = nameOf(value); }},
    {"fo:country"_odf, "style:country-asian"_odf, "style:country-complex"_odf,
        [](Script &script, QByteArrayView value, const FontFaces &) { script.country = nameOf(value); }},
};

CharacterFormat formatOf(
    const TextFormat &format, const TextFormat::Script &script, const QString &otherFamily)
{
    CharacterFormat result;
    result.font.family = script.family.isEmpty() ? otherFamily : script.family;
    const double size = std::clamp(script.size.value_or(defaultSize) * script.sizeFactor, minSize, maxSize);
    const TextFormat::Position position = format.position.value_or(TextFormat::Position{0, 1});
    result.font.pointSize = std::clamp(size * position.scale, minSize, maxSize);
    result.font.baselineOffset = size * position.rise;
    result.font.weight = script.isBold.value_or(false) ? boldFontWeight : regularFontWeight;
    result.font.slant = script.isItalic.value_or(false) ? FontSlant::Italic : FontSlant::Upright;
    result.font.tracking = format.tracking.value_or(0);
    result.language = script.country.isEmpty() ? script.language : script.language + u'-' + script.country;
    return result;
}

} // namespace

QString familyOf(QByteArrayView list)
{
    QString families = QString::fromUtf8(list.first(std::min(list.size(), maxNameLength))).trimmed();
    const QChar quote = families.isEmpty() ? QChar() : families.front();
    if (quote == u'\'' || quote == u'"')
        return families.sliced(1, std::max<qsizetype>(families.indexOf(quote, 1), 1) - 1);
    const qsizetype comma = families.indexOf(u',');
    return comma < 0 ? families : families.first(comma).trimmed();
}

void TextFormat::Script::overlay(const Script &other)
{
    if (!other.family.isEmpty())
        family = other.family;
    if (other.size) {
        size = other.size;
        sizeFactor = other.sizeFactor;
    } else {
        sizeFactor = std::clamp(sizeFactor * other.sizeFactor, 1 / maxFactor, maxFactor);
    }
    overlayValue(isBold, other.isBold);
    overlayValue(isItalic, other.isItalic);
    if (!other.language.isEmpty()) {
        language = other.language;
        country = other.country;
    }
}

void TextFormat::read(const XmlElement &properties, const FontFaces &faces)
{
    properties.forEachAttribute([&](XmlName attribute, QByteArrayView value) {
        const OdfName name = odfName(attribute);
        for (const ScriptProperty &property : scriptProperties) {
            if (name == property.ofLatin)
                return property.read(latin, value, faces);
            if (name == property.ofAsian)
                return property.read(asian, value, faces);
            if (name == property.ofComplex)
                return property.read(complex, value, faces);
        }
        if (name == "fo:letter-spacing"_odf)
            overlayValue(tracking, trackingOf(value));
        else if (name == "style:text-position"_odf)
            overlayValue(position, textPositionOf(value));
        else if (name == "text:display"_odf)
            isHidden = value == "none";
    });
}

void TextFormat::overlay(const TextFormat &other)
{
    latin.overlay(other.latin);
    asian.overlay(other.asian);
    complex.overlay(other.complex);
    overlayValue(isHidden, other.isHidden);
    overlayValue(tracking, other.tracking);
    overlayValue(position, other.position);
}

ScriptFormats TextFormat::scriptFormats() const
{
    const QString family = latin.family.isEmpty() ? QStringLiteral("Liberation Serif") : latin.family;
    ByScript<CharacterFormat> formats;
    formats.ascii = formatOf(*this, latin, family);
    formats.highAnsi = formats.ascii;
    formats.eastAsian = formatOf(*this, asian, family);
    formats.complex = formatOf(*this, complex, family);
    return ScriptFormats(std::move(formats));
}
