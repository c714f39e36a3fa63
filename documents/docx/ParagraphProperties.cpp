// SPDX-License-Identifier: MIT
#include "documents/docx/ParagraphProperties.h"

#include "documents/Lengths.h"

namespace {

constexpr double automaticSpace = 14; // points, before and after a paragraph in a web page
constexpr double linesPerUnit = 240;

using Alignment = ParagraphProperties::Alignment;

std::optional<Alignment> alignmentOf(QByteArrayView value)
{
    if (value == "left" || value == "start")
        return Alignment::Leading;
    if (value == "right" || value == "end")
        return Alignment::Trailing;
    if (value == "center")
        return Alignment::Center;
    if (value == "both" || value == "distribute" || value.endsWith("Kashida") || value == "thaiDistribute")
        return Alignment::Justified;
    return std::nullopt;
}

void readEither(std::optional<double> &value, const XmlElement &element, XmlTag transitional, XmlTag strict)
{
    overlayValue(value, pointsOf(element.attribute(transitional), twipsPerPoint));
    overlayValue(value, pointsOf(element.attribute(strict), twipsPerPoint));
}

} // namespace

void ParagraphProperties::read(const XmlElement &element)
{
    if (!isWord(element))
        return;
    switch (element.tag()) {
    case "pStyle"_tag:
        style = valueOf(element).value_or("").toByteArray();
        break;
    case "jc"_tag:
        overlayValue(alignment, alignmentOf(valueOf(element).value_or("")));
        break;
    case "bidi"_tag:
        isRightToLeft = booleanOf(valueOf(element));
        break;
    case "ind"_tag:
        readIndents(element);
        break;
    case "spacing"_tag:
        readSpacing(element);
        break;
    case "tab"_tag:
        readTab(element);
        break;
    case "numId"_tag:
        list = integerOf(valueOf(element));
        break;
    case "ilvl"_tag:
        listLevel = integerOf(valueOf(element));
        break;
    case "framePr"_tag: {
        const QByteArrayView dropCap = element.attribute("dropCap"_tag).value_or("none");
        isDropCap = dropCap == "drop" || dropCap == "margin";
        break;
    }
    default:
        break;
    }
}

void ParagraphProperties::readIndents(const XmlElement &element)
{
    readEither(leadingIndent, element, "left"_tag, "start"_tag);
    readEither(trailingIndent, element, "right"_tag, "end"_tag);
    overlayValue(firstLineIndent, pointsOf(element.attribute("firstLine"_tag), twipsPerPoint));
    if (const std::optional<double> hanging = pointsOf(element.attribute("hanging"_tag), twipsPerPoint))
        firstLineIndent = -*hanging;
}

void ParagraphProperties::readSpacing(const XmlElement &element)
{
    overlayValue(spaceBefore, pointsOf(element.attribute("before"_tag), twipsPerPoint));
    overlayValue(spaceAfter, pointsOf(element.attribute("after"_tag), twipsPerPoint));
    if (const auto automatic = element.attribute("beforeAutospacing"_tag); automatic && booleanOf(automatic))
        spaceBefore = automaticSpace;
    if (const auto automatic = element.attribute("afterAutospacing"_tag); automatic && booleanOf(automatic))
        spaceAfter = automaticSpace;
    const QByteArrayView rule = element.attribute("lineRule"_tag).value_or("auto");
    const bool isFactor = rule == "auto";
    const auto line = pointsOf(element.attribute("line"_tag), isFactor ? linesPerUnit : twipsPerPoint);
    if (line && *line > 0) {
        lineHeight = line;
        isLineHeightFactor = isFactor;
    }
}

void ParagraphProperties::readTab(const XmlElement &element)
{
    const std::optional<double> position = pointsOf(element.attribute("pos"_tag), twipsPerPoint);
    if (!position)
        return;
    const QByteArrayView kind = valueOf(element).value_or("left");
    if (kind == "clear")
        setTab({*position, std::nullopt});
    else if (kind == "center")
        setTab({*position, TabAlignment::Center});
    else if (kind == "right" || kind == "end")
        setTab({*position, TabAlignment::Right});
    else if (kind == "decimal")
        setTab({*position, TabAlignment::Decimal});
    else if (kind != "bar")
        setTab({*position, TabAlignment::Left});
}

void ParagraphProperties::overlay(const ParagraphProperties &other)
{
    ParagraphFormat::overlay(other);
    overlayValue(list, other.list);
    overlayValue(listLevel, other.listLevel);
    overlayValue(isDropCap, other.isDropCap);
    if (!other.style.isEmpty())
        style = other.style;
}
