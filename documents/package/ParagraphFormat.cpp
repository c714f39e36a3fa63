// SPDX-License-Identifier: MIT
#include "documents/package/ParagraphFormat.h"

#include <algorithm>

namespace {

constexpr size_t maxTabs = 64; // in a paragraph; the limit of Word
constexpr double singleLineFactor = 1.2; // line height in font sizes, to which factors of a line apply

using Alignment = ParagraphFormat::Alignment;

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

} // namespace

void ParagraphFormat::setTab(const Tab &tab)
{
    const auto place = std::ranges::lower_bound(tabs, tab.position, {}, &Tab::position);
    if (place != tabs.end() && place->position == tab.position)
        *place = tab;
    else if (tabs.size() < maxTabs)
        tabs.insert(place, tab);
}

void ParagraphFormat::overlay(const ParagraphFormat &other)
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
}

ParagraphStyle ParagraphFormat::paragraphStyle(double pointSize, double defaultTabInterval) const
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
