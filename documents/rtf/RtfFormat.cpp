// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfFormat.h"

#include <algorithm>

namespace {

constexpr double quarterPointsPerPoint = 4;
constexpr double thousandthsPerPoint = 1000;

/// Half points, for \up and \dn without a number.
constexpr qint32 defaultOffset = 6;
/// The rise of a superscript as a fraction of the font size.
constexpr double scriptOffset = 1.0 / 3;

void applySize(std::optional<qint32> parameter, double unitsPerPoint, RtfCharacterFormat &format)
{
    if (parameter.value_or(0) > 0)
        format.pointSize = *parameter / unitsPerPoint;
}

void addTabStop(double position, RtfParagraphFormat &format)
{
    std::vector<TabStop> &stops = format.style.tabStops;
    if (stops.size() < maxTabStops) {
        const auto after = std::ranges::upper_bound(stops, position, {}, &TabStop::position);
        stops.insert(after, {position, format.nextTabAlignment});
    }
    format.nextTabAlignment = TabAlignment::Left;
}

void applyIndents(RtfParagraphFormat &format)
{
    format.style.headIndent = format.headIndent / twipsPerPoint;
    format.style.firstLineHeadIndent = (format.headIndent + format.firstLineIndent) / twipsPerPoint;
}

} // namespace

std::optional<FontAttributes> RtfCharacterFormat::font(const QString &family) const
{
    if (!namesFont)
        return std::nullopt;
    const double offset = baselineOffset + script * scriptOffset * pointSize;
    return FontAttributes{family, pointSize, weight, slant, tracking, offset};
}

void RtfCharacterFormat::apply(const FontAttributes &exact)
{
    namesFont = true;
    pointSize = exact.pointSize;
    weight = exact.weight;
    slant = exact.slant;
    tracking = exact.tracking;
    baselineOffset = exact.baselineOffset;
    script = 0;
}

void RtfParagraphFormat::apply(const ParagraphStyle &exact)
{
    style = exact;
    headIndent = exact.headIndent * twipsPerPoint;
    firstLineIndent = (exact.firstLineHeadIndent - exact.headIndent) * twipsPerPoint;
}

bool RtfFormat::hasSameAttributes(const RtfFormat &other) const
{
    return character == other.character
        && (paragraph == other.paragraph || paragraph->style == other.paragraph->style);
}

void applyCharacterWord(const RtfWord &word, std::optional<qint32> parameter, RtfCharacterFormat &format)
{
    const bool isOn = parameter.value_or(1) != 0;
    switch (word.action) {
    case RtfAction::Font:
        format.fontNumber = parameter.value_or(0);
        break;
    case RtfAction::FontSize:
        applySize(parameter, halfPointsPerPoint, format);
        break;
    case RtfAction::FontSizeInThousandths:
        applySize(parameter, thousandthsPerPoint, format);
        break;
    case RtfAction::Bold:
        format.weight = isOn ? boldFontWeight : regularFontWeight;
        break;
    case RtfAction::Italic:
        format.slant = isOn ? FontSlant::Italic : FontSlant::Upright;
        break;
    case RtfAction::TrackingInQuarterPoints:
        format.tracking = parameter.value_or(0) / quarterPointsPerPoint;
        break;
    case RtfAction::TrackingInTwips:
        format.tracking = parameter.value_or(0) / twipsPerPoint;
        break;
    case RtfAction::Raised:
        format.baselineOffset = parameter.value_or(defaultOffset) / halfPointsPerPoint;
        break;
    case RtfAction::Lowered:
        format.baselineOffset = parameter.value_or(defaultOffset) / -halfPointsPerPoint;
        break;
    case RtfAction::Script:
        format.script = static_cast<qint8>(isOn ? word.argument : 0);
        break;
    case RtfAction::Hidden:
        format.isHidden = isOn;
        return;
    case RtfAction::Deleted:
        format.isDeleted = isOn;
        return;
    default:
        return;
    }
    format.namesFont = true;
}

void applyParagraphWord(const RtfWord &word, std::optional<qint32> parameter, RtfParagraphFormat &format)
{
    const qint32 twips = parameter.value_or(0);
    const double points = twips / twipsPerPoint;
    switch (word.action) {
    case RtfAction::Alignment:
        format.style.alignment = static_cast<TextAlignment>(word.argument);
        break;
    case RtfAction::Direction:
        format.style.direction = static_cast<WritingDirection>(word.argument);
        break;
    case RtfAction::HeadIndent:
        format.headIndent = twips;
        applyIndents(format);
        break;
    case RtfAction::FirstLineIndent:
        format.firstLineIndent = twips;
        applyIndents(format);
        break;
    case RtfAction::TailIndent:
        format.style.tailIndent = points;
        break;
    case RtfAction::TabStop:
        addTabStop(points, format);
        break;
    case RtfAction::TabAlignment:
        format.nextTabAlignment = static_cast<TabAlignment>(word.argument);
        break;
    case RtfAction::BarTab:
        format.nextTabAlignment = TabAlignment::Left;
        break;
    case RtfAction::TabInterval:
        format.style.defaultTabInterval = points;
        break;
    case RtfAction::LineSpacing:
        format.style.lineSpacing = points;
        break;
    case RtfAction::SpacingBefore:
        format.style.paragraphSpacingBefore = points;
        break;
    case RtfAction::SpacingAfter:
        format.style.paragraphSpacing = points;
        break;
    default:
        break;
    }
}
