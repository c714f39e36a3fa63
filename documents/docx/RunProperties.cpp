// SPDX-License-Identifier: MIT
#include "documents/docx/RunProperties.h"

#include "documents/docx/Measures.h"

#include <algorithm>
#include <array>

namespace {

constexpr double smallestSize = 1; // points; Word's own limits
constexpr double greatestSize = 1638;
constexpr qsizetype longestLanguage = 100; // bytes

constexpr std::array toggles{&RunProperties::bold, &RunProperties::italic, &RunProperties::complexBold,
    &RunProperties::complexItalic, &RunProperties::hidden};

std::optional<double> sizeOf(const XmlElement &element)
{
    const std::optional<double> size = pointsOf(element.value(), halves);
    return size ? std::optional(std::clamp(*size, smallestSize, greatestSize)) : std::nullopt;
}

void takeFont(QString &font, const XmlElement &element, const Theme &theme, XmlTag name, XmlTag themeName)
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

void takeLanguage(QString &language, const XmlElement &element, XmlTag name)
{
    const auto value = element.attribute(name);
    if (value && value->size() <= longestLanguage)
        language = QString::fromUtf8(*value);
}

VerticalAlignment verticalAlignmentOf(const XmlElement &element)
{
    const QByteArrayView value = element.value().value_or("baseline");
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

} // namespace

void RunProperties::take(const XmlElement &child, const Theme &theme)
{
    if (!child.isWord())
        return;
    switch (child.tag()) {
    case "rStyle"_tag:
        style = child.value().value_or("").toByteArray();
        break;
    case "rFonts"_tag:
        takeFont(fonts.ascii, child, theme, "ascii"_tag, "asciiTheme"_tag);
        takeFont(fonts.highAnsi, child, theme, "hAnsi"_tag, "hAnsiTheme"_tag);
        takeFont(fonts.eastAsian, child, theme, "eastAsia"_tag, "eastAsiaTheme"_tag);
        takeFont(fonts.complex, child, theme, "cs"_tag, "cstheme"_tag);
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
        bold = truthOf(child.value());
        break;
    case "i"_tag:
        italic = truthOf(child.value());
        break;
    case "bCs"_tag:
        complexBold = truthOf(child.value());
        break;
    case "iCs"_tag:
        complexItalic = truthOf(child.value());
        break;
    case "vanish"_tag:
        hidden = truthOf(child.value());
        break;
    case "rtl"_tag:
    case "cs"_tag:
        isComplex = truthOf(child.value());
        break;
    case "spacing"_tag:
        tracking = pointsOf(child.value(), twentieths);
        break;
    case "position"_tag:
        raised = pointsOf(child.value(), halves);
        break;
    case "vertAlign"_tag:
        verticalAlignment = verticalAlignmentOf(child);
        break;
    case "lang"_tag:
        takeLanguage(language, child, "val"_tag);
        takeLanguage(eastAsianLanguage, child, "eastAsia"_tag);
        takeLanguage(complexLanguage, child, "bidi"_tag);
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
