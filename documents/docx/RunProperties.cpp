// SPDX-License-Identifier: MIT
#include "documents/docx/RunProperties.h"

#include "documents/Lengths.h"

#include <algorithm>
#include <array>

namespace {

constexpr double minSize = 1; // points; the limits of Word
constexpr double maxSize = 1638;
constexpr qsizetype maxLanguageLength = 100; // bytes

constexpr std::array toggles{&RunProperties::bold, &RunProperties::italic, &RunProperties::complexBold,
    &RunProperties::complexItalic, &RunProperties::hidden};

std::optional<double> sizeOf(const XmlElement &element)
{
    const std::optional<double> size = pointsOf(valueOf(element), halfPointsPerPoint);
    return size ? std::optional(std::clamp(*size, minSize, maxSize)) : std::nullopt;
}

void readFont(QString &font, const XmlElement &element, const Theme &theme, XmlTag name, XmlTag themeName)
{
    if (const auto themed = element.attribute(themeName)) {
        const QString found = theme.font(*themed);
        if (!found.isEmpty()) {
            font = found;
            return;
        }
    }
    if (const auto named = element.attribute(name); named && !named->isEmpty())
        font = fontNameOf(*named);
}

void readLanguage(QString &language, const XmlElement &element, XmlTag name)
{
    const auto value = element.attribute(name);
    if (value && value->size() <= maxLanguageLength)
        language = QString::fromUtf8(*value);
}

VerticalAlignment verticalAlignmentOf(const XmlElement &element)
{
    const QByteArrayView value = valueOf(element).value_or("baseline");
    if (value == "superscript")
        return VerticalAlignment::Superscript;
    return value == "subscript" ? VerticalAlignment::Subscript : VerticalAlignment::Baseline;
}

template <typename Text>
void overlayText(Text &value, const Text &other)
{
    if (!other.isEmpty())
        value = other;
}

constexpr double defaultSize = 10; // points; applies if a document sets none

// Word sets superscripts and subscripts in two thirds of the size, a third of it up or a sixth of it down.
constexpr double scriptScale = 2.0 / 3;
constexpr double superscriptRise = 1.0 / 3;
constexpr double subscriptDrop = 1.0 / 6;

QString textOr(const QString &text, const QString &otherwise)
{
    return text.isEmpty() ? otherwise : text;
}

struct Look {
    double size;
    bool isBold;
    bool isItalic;
};

CharacterFormat makeFormat(
    const QString &family, const Look &look, const RunProperties &properties, QString language)
{
    CharacterFormat format;
    format.font.family = textOr(family, QStringLiteral("Times New Roman"));
    format.font.pointSize = look.size;
    format.font.weight = look.isBold ? boldFontWeight : regularFontWeight;
    format.font.slant = look.isItalic ? FontSlant::Italic : FontSlant::Upright;
    format.font.tracking = properties.tracking.value_or(0);
    format.font.baselineOffset = properties.raised.value_or(0);
    const VerticalAlignment alignment = properties.verticalAlignment.value_or(VerticalAlignment::Baseline);
    if (alignment != VerticalAlignment::Baseline) {
        format.font.pointSize = look.size * scriptScale;
        format.font.baselineOffset +=
            look.size * (alignment == VerticalAlignment::Superscript ? superscriptRise : -subscriptDrop);
    }
    format.language = std::move(language);
    return format;
}

} // namespace

void RunProperties::read(const XmlElement &child, const Theme &theme)
{
    if (!isWord(child))
        return;
    switch (child.tag()) {
    case "rStyle"_tag:
        style = valueOf(child).value_or("").toByteArray();
        break;
    case "rFonts"_tag:
        readFont(fonts.ascii, child, theme, "ascii"_tag, "asciiTheme"_tag);
        readFont(fonts.highAnsi, child, theme, "hAnsi"_tag, "hAnsiTheme"_tag);
        readFont(fonts.eastAsian, child, theme, "eastAsia"_tag, "eastAsiaTheme"_tag);
        readFont(fonts.complex, child, theme, "cs"_tag, "cstheme"_tag);
        if (const auto hint = child.attribute("hint"_tag))
            prefersEastAsian = *hint == "eastAsia";
        break;
    case "sz"_tag:
        size = sizeOf(child);
        break;
    case "szCs"_tag:
        complexSize = sizeOf(child);
        break;
    case "b"_tag:
        bold = booleanOf(valueOf(child));
        break;
    case "i"_tag:
        italic = booleanOf(valueOf(child));
        break;
    case "bCs"_tag:
        complexBold = booleanOf(valueOf(child));
        break;
    case "iCs"_tag:
        complexItalic = booleanOf(valueOf(child));
        break;
    case "vanish"_tag:
        hidden = booleanOf(valueOf(child));
        break;
    case "rtl"_tag:
    case "cs"_tag:
        isComplex = booleanOf(valueOf(child));
        break;
    case "spacing"_tag:
        tracking = pointsOf(valueOf(child), twipsPerPoint);
        break;
    case "position"_tag:
        raised = pointsOf(valueOf(child), halfPointsPerPoint);
        break;
    case "vertAlign"_tag:
        verticalAlignment = verticalAlignmentOf(child);
        break;
    case "lang"_tag:
        readLanguage(language, child, "val"_tag);
        readLanguage(eastAsianLanguage, child, "eastAsia"_tag);
        readLanguage(complexLanguage, child, "bidi"_tag);
        break;
    case "del"_tag:
    case "moveFrom"_tag:
        isRemoved = true;
        break;
    default:
        break;
    }
}

void RunProperties::overlay(const RunProperties &other)
{
    overlayText(fonts.ascii, other.fonts.ascii);
    overlayText(fonts.highAnsi, other.fonts.highAnsi);
    overlayText(fonts.eastAsian, other.fonts.eastAsian);
    overlayText(fonts.complex, other.fonts.complex);
    overlayValue(size, other.size);
    overlayValue(complexSize, other.complexSize);
    for (const auto toggle : toggles)
        overlayValue(this->*toggle, other.*toggle);
    overlayValue(tracking, other.tracking);
    overlayValue(raised, other.raised);
    overlayValue(verticalAlignment, other.verticalAlignment);
    overlayValue(isComplex, other.isComplex);
    overlayValue(prefersEastAsian, other.prefersEastAsian);
    overlayText(language, other.language);
    overlayText(eastAsianLanguage, other.eastAsianLanguage);
    overlayText(complexLanguage, other.complexLanguage);
    overlayText(style, other.style);
}

void CharacterCascade::addStyle(const RunProperties &style)
{
    std::array<std::optional<bool>, toggles.size()> before;
    for (size_t i = 0; i < toggles.size(); ++i)
        before[i] = m_properties.*toggles[i];
    m_properties.overlay(style);
    for (size_t i = 0; i < toggles.size(); ++i) {
        Toggle &toggle = m_toggles[i];
        if (!m_isStarted)
            toggle.byDefaults = before[i].value_or(false);
        toggle.byStyles ^= (style.*toggles[i]).value_or(false);
        m_properties.*toggles[i] = toggle.byDefaults || toggle.byStyles;
    }
    m_isStarted = true;
}

RunFormat::RunFormat(const RunProperties &properties)
    : m_isHidden(properties.isHidden())
{
    const ByScript<QString> &fonts = properties.fonts;
    const Look look{properties.size.value_or(defaultSize), properties.bold.value_or(false),
        properties.italic.value_or(false)};
    const Look complexLook{properties.complexSize.value_or(defaultSize),
        properties.complexBold.value_or(false), properties.complexItalic.value_or(false)};
    ByScript<CharacterFormat> formats;
    formats.ascii = makeFormat(fonts.ascii, look, properties, properties.language);
    formats.highAnsi = makeFormat(textOr(fonts.highAnsi, fonts.ascii), look, properties, properties.language);
    formats.eastAsian = makeFormat(textOr(fonts.eastAsian, fonts.ascii), look, properties,
        textOr(properties.eastAsianLanguage, properties.language));
    formats.complex = makeFormat(textOr(fonts.complex, fonts.ascii), complexLook, properties,
        textOr(properties.complexLanguage, properties.language));
    static_cast<ScriptFormats &>(*this) = ScriptFormats(std::move(formats),
        properties.isComplex.value_or(false), properties.prefersEastAsian.value_or(false));
}
