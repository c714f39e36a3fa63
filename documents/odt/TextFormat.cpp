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
    const auto setFamily = [](QString &family, const QString &found) {
        if (!found.isEmpty())
            family = found;
    };
    properties.forEachAttribute([&](XmlName attribute, QByteArrayView value) {
        switch (odfName(attribute)) {
        case "style:font-name"_odf:
            return setFamily(latin.family, faces.value(value.toByteArray()));
        case "style:font-name-asian"_odf:
            return setFamily(asian.family, faces.value(value.toByteArray()));
        case "style:font-name-complex"_odf:
            return setFamily(complex.family, faces.value(value.toByteArray()));
        case "fo:font-family"_odf:
            return setFamily(latin.family, familyOf(value));
        case "style:font-family-asian"_odf:
            return setFamily(asian.family, familyOf(value));
        case "style:font-family-complex"_odf:
            return setFamily(complex.family, familyOf(value));
        case "fo:font-size"_odf:
            return readSize(latin, value);
        case "style:font-size-asian"_odf:
            return readSize(asian, value);
        case "style:font-size-complex"_odf:
            return readSize(complex, value);
        case "fo:font-weight"_odf:
            latin.isBold = boldnessOf(value);
            break;
        case "style:font-weight-asian"_odf:
            asian.isBold = boldnessOf(value);
            break;
        case "style:font-weight-complex"_odf:
            complex.isBold = boldnessOf(value);
            break;
        case "fo:font-style"_odf:
            latin.isItalic = value != "normal";
            break;
        case "style:font-style-asian"_odf:
            asian.isItalic = value != "normal";
            break;
        case "style:font-style-complex"_odf:
            complex.isItalic = value != "normal";
            break;
        case "fo:language"_odf:
            latin.language = nameOf(value);
            break;
        case "style:language-asian"_odf:
            asian.language = nameOf(value);
            break;
        case "style:language-complex"_odf:
            complex.language = nameOf(value);
            break;
        case "fo:country"_odf:
            latin.country = nameOf(value);
            break;
        case "style:country-asian"_odf:
            asian.country = nameOf(value);
            break;
        case "style:country-complex"_odf:
            complex.country = nameOf(value);
            break;
        case "fo:letter-spacing"_odf:
            overlayValue(tracking, trackingOf(value));
            break;
        case "style:text-position"_odf:
            overlayValue(position, textPositionOf(value));
            break;
        case "text:display"_odf:
            isHidden = value == "none";
            break;
        default:
            break;
        }
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
