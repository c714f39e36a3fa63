// SPDX-License-Identifier: MIT
#include "documents/odt/Styles.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int maxInheritance = 50;
constexpr double defaultTabInterval = 35.4; // points; 1.25 cm
constexpr double minTabInterval = 1;

using Alignment = ParagraphFormat::Alignment;

std::optional<Alignment> alignmentOf(QByteArrayView value)
{
    if (value == "start" || value == "left")
        return Alignment::Leading;
    if (value == "end" || value == "right")
        return Alignment::Trailing;
    if (value == "center")
        return Alignment::Center;
    return value == "justify" ? std::optional(Alignment::Justified) : std::nullopt;
}

void readLineHeight(ParagraphFormat &format, QByteArrayView value)
{
    const bool isFactor = value.endsWith('%');
    const std::optional<double> height = isFactor ? pointsOf(value.chopped(1), 100) : pointsOf(value);
    if (!height || *height <= 0)
        return;
    format.lineHeight = height;
    format.isLineHeightFactor = isFactor;
}

/// Indents of a list apply below those that a style sets itself.
void applyLevel(OdtParagraphFormat &format, const ListLevel &level)
{
    if (level.addsToParagraph) {
        format.leadingIndent = format.leadingIndent.value_or(0) + level.leadingIndent.value_or(0);
        format.firstLineIndent = format.firstLineIndent.value_or(0) + level.firstLineIndent.value_or(0);
        return;
    }
    overlayValue(format.leadingIndent, level.leadingIndent);
    overlayValue(format.firstLineIndent, level.firstLineIndent);
}

} // namespace

void OdtParagraphFormat::read(const XmlElement &properties)
{
    properties.forEachAttribute([this](XmlName attribute, QByteArrayView value) {
        const auto setLength = [value](
                                   std::optional<double> &length) { overlayValue(length, pointsOf(value)); };
        switch (odfName(attribute)) {
        case "fo:margin"_odf:
            setLength(leadingIndent);
            setLength(trailingIndent);
            setLength(spaceBefore);
            return setLength(spaceAfter);
        case "fo:margin-left"_odf:
            return setLength(leadingIndent);
        case "fo:margin-right"_odf:
            return setLength(trailingIndent);
        case "fo:text-indent"_odf:
            return setLength(firstLineIndent);
        case "fo:margin-top"_odf:
            return setLength(spaceBefore);
        case "fo:margin-bottom"_odf:
            return setLength(spaceAfter);
        case "style:tab-stop-distance"_odf:
            return setLength(tabInterval);
        case "fo:line-height"_odf:
        case "style:line-height-at-least"_odf:
            return readLineHeight(*this, value);
        case "fo:text-align"_odf:
            return overlayValue(alignment, alignmentOf(value));
        case "style:writing-mode"_odf:
            if (value.startsWith("rl") || value.startsWith("lr"))
                isRightToLeft = value.startsWith("rl");
            return;
        default:
            return;
        }
    });
}

void OdtParagraphFormat::readTab(const XmlElement &stop)
{
    const std::optional<double> position = pointsOf(odfAttribute(stop, "style:position"_odf));
    if (!position)
        return;
    const QByteArrayView type = odfAttribute(stop, "style:type"_odf).value_or("left");
    TabAlignment tabAlignment = TabAlignment::Left;
    if (type == "center")
        tabAlignment = TabAlignment::Center;
    else if (type == "right")
        tabAlignment = TabAlignment::Right;
    else if (type == "char")
        tabAlignment = TabAlignment::Decimal;
    setTab({*position, tabAlignment});
}

void OdtParagraphFormat::overlay(const OdtParagraphFormat &other)
{
    if (other.hasTabs)
        tabs.clear();
    hasTabs = hasTabs || other.hasTabs;
    ParagraphFormat::overlay(other);
    overlayValue(tabInterval, other.tabInterval);
}

void OdtStyle::overlay(const OdtStyle &other)
{
    if (other.listStyle)
        listStyle = other.listStyle;
    paragraph.overlay(other.paragraph);
    text.overlay(other.text);
}

const OdtStyle &Styles::style(Family family, const QByteArray &name) const
{
    const auto place = static_cast<size_t>(family);
    const ByName &styles = m_styles[place];
    if (!styles.contains(name))
        return m_defaults[place];
    const auto known = m_cache[place].find(name);
    if (known != m_cache[place].end())
        return known->second;
    std::vector<const OdtStyle *> levels; // from the style up
    for (auto level = styles.constFind(name); level != styles.cend() && levels.size() < maxInheritance;
         level = styles.constFind(level->parent))
        levels.push_back(&*level);
    std::reverse(levels.begin(), levels.end());
    OdtStyle resolved = m_defaults[place];
    for (const OdtStyle *level : levels)
        resolved.overlay(*level);
    return m_cache[place].emplace(name, std::move(resolved)).first->second;
}

OdtParagraphFormat Styles::paragraphFormat(const QByteArray &name, const ListPlace &place) const
{
    constexpr auto family = static_cast<size_t>(Family::Paragraph);
    const OdtStyle &resolved = style(Family::Paragraph, name);
    // A paragraph in a list may name another list in its style.
    const QByteArray list = place.level > 0 && resolved.listStyle && !resolved.listStyle->isEmpty()
        ? *resolved.listStyle
        : place.style;
    const auto found = m_listStyles.constFind(list);
    if (place.level == 0 || found == m_listStyles.cend())
        return resolved.paragraph;
    const ListLevel &level = (*found)[static_cast<size_t>(std::min(place.level, maxListLevel) - 1)];
    const OdtStyle own = m_styles[family].value(name);
    OdtParagraphFormat format = style(Family::Paragraph, own.parent).paragraph;
    if (level.addsToParagraph) {
        format.overlay(own.paragraph);
        applyLevel(format, level);
    } else {
        applyLevel(format, level);
        format.overlay(own.paragraph);
    }
    return format;
}

ParagraphStyle Styles::paragraphStyle(const QByteArray &name, const ListPlace &place, double pointSize) const
{
    OdtParagraphFormat format = paragraphFormat(name, place);
    if (tabsAreRelativeToIndent) {
        for (ParagraphFormat::Tab &tab : format.tabs)
            tab.position += format.leadingIndent.value_or(0);
    }
    const double interval = format.tabInterval.value_or(defaultTabInterval);
    return format.paragraphStyle(pointSize, interval >= minTabInterval ? interval : defaultTabInterval);
}
