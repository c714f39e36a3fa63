// SPDX-License-Identifier: MIT
#include "documents/docx/ParagraphProperties.h"

#include "documents/Lengths.h"

#include <algorithm>

namespace {

constexpr size_t maxTabs = 64; // in a paragraph; the limit of Word
constexpr double automaticSpace = 14; // points, before and after a paragraph in a web page
constexpr double linesPerUnit = 240;
constexpr double singleLineFactor = 1.2; // line height in font sizes, to which factors of a line apply

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

TextAlignment textAlignmentOf(std::optional<Alignment> alignment, bool isRightToLeft)
{
    if (!alignment)
        return TextAlignment::Natural;
    switch (*alignment) {
    case Alignment::Leading:
        return isRightToLeft ? TextAlignment::Right : TextAlignment::Left;
    case Alignment::Trailing:
        return isRightToLeft ? TextAlignment::Left : TextAlignment::Right;
    case Alignment::Center:
        return TextAlignment::Center;
    case Alignment::Justified:
        break;
    }
    return TextAlignment::Justified;
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

void ParagraphProperties::setTab(const Tab &tab)
{
    const auto place = std::ranges::lower_bound(tabs, tab.position, {}, &Tab::position);
    if (place != tabs.end() && place->position == tab.position)
        *place = tab;
    else if (tabs.size() < maxTabs)
        tabs.insert(place, tab);
}

void ParagraphProperties::overlay(const ParagraphProperties &other)
{
    overlayValue(alignment, other.alignment);
    overlayValue(isRightToLeft, other.isRightToLeft);
    overlayValue(leadingIndent, other.leadingIndent);
    overlayValue(trailingIndent, other.trailingIndent);
    overlayValue(firstLineIndent, other.firstLineIndent);
    overlayValue(spaceBefore, other.spaceBefore);
    overlayValue(spaceAfter, other.spaceAfter);
    if (other.lineHeight) {
        lineHeight = other.lineHeight;
        isLineHeightFactor = other.isLineHeightFactor;
    }
    for (const Tab &tab : other.tabs)
        setTab(tab);
    overlayValue(list, other.list);
    overlayValue(listLevel, other.listLevel);
    overlayValue(isDropCap, other.isDropCap);
    if (!other.style.isEmpty())
        style = other.style;
}

ParagraphStyle ParagraphProperties::paragraphStyle(double pointSize, double defaultTabInterval) const
{
    ParagraphStyle result;
    const bool rightToLeft = isRightToLeft.value_or(false);
    result.alignment = textAlignmentOf(alignment, rightToLeft);
    result.direction = rightToLeft ? WritingDirection::RightToLeft : WritingDirection::LeftToRight;
    result.headIndent = leadingIndent.value_or(0);
    result.firstLineHeadIndent = result.headIndent + firstLineIndent.value_or(0);
    result.tailIndent = trailingIndent.value_or(0);
    result.defaultTabInterval = defaultTabInterval;
    result.paragraphSpacingBefore = std::max(0.0, spaceBefore.value_or(0));
    result.paragraphSpacing = std::max(0.0, spaceAfter.value_or(0));
    if (lineHeight) {
        const double single = singleLineFactor * pointSize;
        const double wanted = isLineHeightFactor ? *lineHeight * single : *lineHeight;
        result.lineSpacing = std::max(0.0, wanted - single);
    }
    // A hanging indent has an implicit tab stop.
    const bool hangs = result.firstLineHeadIndent < result.headIndent;
    bool needsHangingStop = hangs;
    const auto addHangingStop = [&] {
        result.tabStops.push_back({result.headIndent, TabAlignment::Left});
        needsHangingStop = false;
    };
    for (const Tab &tab : tabs) {
        if (needsHangingStop && tab.position > result.headIndent)
            addHangingStop();
        if (tab.position == result.headIndent)
            needsHangingStop = needsHangingStop && !tab.alignment;
        if (tab.alignment)
            result.tabStops.push_back({tab.position, *tab.alignment});
    }
    if (needsHangingStop)
        addHangingStop();
    return result;
}
