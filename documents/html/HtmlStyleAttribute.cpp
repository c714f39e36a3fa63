// SPDX-License-Identifier: MIT
#include "documents/html/HtmlStyleAttribute.h"

#include "documents/html/CssText.h"
#include "platform/text_encoding/AsciiBytes.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr qsizetype maxAttributeLength = 4096; // bytes; the rest is ignored
constexpr qsizetype maxFamilyLength = 128; // bytes
constexpr double maxNumber = 1e6; // in any unit

constexpr double pointsPerPixel = 0.75;

template <typename Value>
struct Keyword {
    const char *name;
    Value value;
};

template <typename Value, size_t count>
std::optional<Value> valueOf(const QByteArray &name, const Keyword<Value> (&keywords)[count])
{
    for (const Keyword<Value> &keyword : keywords) {
        if (name == keyword.name)
            return keyword.value;
    }
    return std::nullopt;
}

std::optional<Display> displayOf(const QByteArray &value)
{
    static constexpr Keyword<Display> keywords[] = {
        {"none", Display::None},
        {"contents", Display::Contents},
        {"inline", Display::Inline},
        {"inline-block", Display::InlineBlock},
        {"inline-flex", Display::InlineFlex},
        {"inline-grid", Display::InlineFlex},
        {"inline-table", Display::InlineTable},
        {"block", Display::Block},
        {"flow-root", Display::Block},
        {"list-item", Display::Block},
        {"flex", Display::Flex},
        {"grid", Display::Flex},
        {"table", Display::Table},
        {"table-caption", Display::TableCaption},
        {"table-row-group", Display::TableRowGroup},
        {"table-header-group", Display::TableRowGroup},
        {"table-footer-group", Display::TableRowGroup},
        {"table-row", Display::TableRow},
        {"table-cell", Display::TableCell},
        {"table-column", Display::None},
        {"table-column-group", Display::None},
        {"initial", Display::Inline},
        {"unset", Display::Inline},
    };
    return valueOf(value, keywords);
}

std::optional<WhiteSpace> whiteSpaceOf(const QByteArray &value)
{
    static constexpr Keyword<WhiteSpace> keywords[] = {
        {"normal", WhiteSpace::Collapse},
        {"nowrap", WhiteSpace::Collapse},
        {"pre", WhiteSpace::Preserve},
        {"pre-wrap", WhiteSpace::Preserve},
        {"break-spaces", WhiteSpace::Preserve},
        {"pre-line", WhiteSpace::PreserveLineEnds},
    };
    return valueOf(value, keywords);
}

std::optional<TextAlignment> textAlignOf(const QByteArray &value)
{
    static constexpr Keyword<TextAlignment> keywords[] = {
        {"left", TextAlignment::Left},
        {"right", TextAlignment::Right},
        {"center", TextAlignment::Center},
        {"justify", TextAlignment::Justified},
        {"start", TextAlignment::Natural},
        {"end", TextAlignment::Right},
    };
    return valueOf(value, keywords);
}

std::optional<FontSlant> fontStyleOf(const QByteArray &value)
{
    static constexpr Keyword<FontSlant> keywords[] = {
        {"normal", FontSlant::Upright},
        {"italic", FontSlant::Italic},
        {"oblique", FontSlant::Oblique},
    };
    return valueOf(value, keywords);
}

std::optional<int> fontWeightOf(const QByteArray &value)
{
    static constexpr Keyword<int> keywords[] = {
        {"normal", regularFontWeight},
        {"lighter", regularFontWeight},
        {"bold", boldFontWeight},
        {"bolder", boldFontWeight},
    };
    if (const std::optional<int> weight = valueOf(value, keywords))
        return weight;
    bool isNumber = false;
    const int weight = value.toInt(&isNumber);
    return isNumber && weight >= 1 && weight <= 1000 ? std::optional(weight) : std::nullopt;
}

std::optional<bool> isVisibleOf(const QByteArray &value)
{
    static constexpr Keyword<bool> keywords[] = {
        {"visible", true}, {"initial", true}, {"hidden", false}, {"collapse", false}};
    return valueOf(value, keywords);
}

std::optional<CssLength> lengthOf(const QByteArray &value)
{
    struct Unit {
        const char *name;
        CssLength::Unit unit;
        double factor;
    };
    constexpr double rootPointSize = 12;
    static constexpr Unit units[] = {
        {"pt", CssLength::Unit::Points, 1},
        {"px", CssLength::Unit::Points, pointsPerPixel},
        {"pc", CssLength::Unit::Points, 12},
        {"in", CssLength::Unit::Points, 72},
        {"cm", CssLength::Unit::Points, 72 / 2.54},
        {"mm", CssLength::Unit::Points, 72 / 25.4},
        {"rem", CssLength::Unit::Points, rootPointSize}, // before "em", because it ends with it
        {"em", CssLength::Unit::Em, 1},
        {"%", CssLength::Unit::Percent, 1},
    };
    const auto lengthWith = [](const QByteArray &digits, const Unit &unit) -> std::optional<CssLength> {
        bool isNumber = false;
        const double number = digits.toDouble(&isNumber); // accepts white space around the number
        if (!isNumber || isHtmlSpace(digits.back()) || !std::isfinite(number) || std::abs(number) > maxNumber)
            return std::nullopt;
        return CssLength{number * unit.factor, unit.unit};
    };
    for (const Unit &unit : units) {
        if (value.endsWith(unit.name))
            return lengthWith(value.chopped(static_cast<qsizetype>(qstrlen(unit.name))), unit);
    }
    const std::optional<CssLength> bare = lengthWith(value, units[0]);
    return bare && bare->value == 0 ? bare : std::nullopt;
}

std::optional<CssLength> fontSizeOf(const QByteArray &value)
{
    using Unit = CssLength::Unit;
    static const Keyword<CssLength> keywords[] = {
        {"xx-small", {9 * pointsPerPixel, Unit::Points}},
        {"x-small", {pointSizeOfFontSize(1), Unit::Points}},
        {"small", {pointSizeOfFontSize(2), Unit::Points}},
        {"medium", {pointSizeOfFontSize(3), Unit::Points}},
        {"large", {pointSizeOfFontSize(4), Unit::Points}},
        {"x-large", {pointSizeOfFontSize(5), Unit::Points}},
        {"xx-large", {pointSizeOfFontSize(6), Unit::Points}},
        {"xxx-large", {pointSizeOfFontSize(7), Unit::Points}},
        {"smaller", {1 / 1.2, Unit::Em}},
        {"larger", {1.2, Unit::Em}},
    };
    if (const std::optional<CssLength> size = valueOf(value, keywords))
        return size;
    const std::optional<CssLength> size = lengthOf(value);
    return size && size->value >= 0 ? size : std::nullopt;
}

template <typename Value>
void assign(std::optional<Value> &property, const std::optional<Value> &value)
{
    if (value)
        property = value;
}

/// An important declaration wins over those that are not.
template <typename Value>
void assignByImportance(
    std::optional<Value> &property, bool &wasImportant, const std::optional<Value> &value, bool isImportant)
{
    if (!value || (wasImportant && !isImportant))
        return;
    property = value;
    wasImportant = isImportant;
}

void declare(HtmlStyleAttribute &style, const QByteArray &property, QByteArrayView rawValue, bool isImportant)
{
    const QByteArray value = rawValue.toByteArray().toLower();
    if (property == "display")
        assignByImportance(style.display, style.isDisplayImportant, displayOf(value), isImportant);
    else if (property == "visibility")
        assignByImportance(style.isVisible, style.isVisibilityImportant, isVisibleOf(value), isImportant);
    else if (property == "float")
        style.isOutOfFlow = style.isOutOfFlow.value_or(false) || value == "left" || value == "right";
    else if (property == "position")
        style.isOutOfFlow = style.isOutOfFlow.value_or(false) || value == "absolute" || value == "fixed";
    else if (property == "white-space")
        assign(style.whiteSpace, whiteSpaceOf(value));
    else if (property == "font-size")
        assign(style.fontSize, fontSizeOf(value));
    else if (property == "font-weight")
        assign(style.fontWeight, fontWeightOf(value));
    else if (property == "font-style")
        assign(style.fontStyle, fontStyleOf(value));
    else if (property == "text-align")
        assign(style.textAlign, textAlignOf(value));
    else if (property == "text-indent")
        assign(style.textIndent, lengthOf(value));
    else if (property == "margin-left")
        assign(style.marginLeft, lengthOf(value));
    else if (property == "font-family") {
        const QString family = fontFamilyOf(rawValue);
        assign(style.fontFamily, family.isEmpty() ? std::nullopt : std::optional(family));
    }
}

/// Removes "!important" from the end of a value. Returns whether it was there.
bool takeImportance(QByteArrayView &value)
{
    const qsizetype mark = value.lastIndexOf('!');
    if (mark < 0 || trimCss(value.sliced(mark + 1)).compare("important", Qt::CaseInsensitive) != 0)
        return false;
    value = trimCss(value.first(mark));
    return true;
}

} // namespace

HtmlStyleAttribute parseStyleAttribute(QByteArrayView declarations)
{
    HtmlStyleAttribute style;
    const QByteArray text =
        removeCssComments(declarations.first(std::min(declarations.size(), maxAttributeLength)));
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = findInCss(text, start, ";{");
        const QByteArrayView declaration = QByteArrayView(text).sliced(start, end - start);
        start = end + 1;
        if (end < text.size() && text[end] == '{') { // a nested rule
            start = findInCss(text, start, "}") + 1;
            continue;
        }
        const qsizetype colon = declaration.indexOf(':');
        if (colon < 0)
            continue;
        QByteArrayView value = trimCss(declaration.sliced(colon + 1));
        const bool isImportant = takeImportance(value);
        declare(style, trimCss(declaration.first(colon)).toByteArray().toLower(), value, isImportant);
    }
    return style;
}

QString fontFamilyOf(QByteArrayView families)
{
    QByteArrayView family = trimCss(families.first(std::min(families.size(), maxAttributeLength)));
    if (family.startsWith('"') || family.startsWith('\'')) {
        const qsizetype end = family.indexOf(family[0], 1);
        family = trimCss(family.sliced(1, (end < 0 ? family.size() : end) - 1));
    } else {
        const qsizetype comma = family.indexOf(',');
        family = trimCss(family.first(comma < 0 ? family.size() : comma));
        static constexpr Keyword<const char *> generics[] = {
            {"serif", "Times"}, {"sans-serif", "Helvetica"}, {"monospace", "Courier"}};
        if (const auto name = valueOf(family.toByteArray().toLower(), generics))
            return QString::fromLatin1(*name);
    }
    return family.size() > maxFamilyLength ? QString() : QString::fromUtf8(family);
}

double pointSizeOfFontSize(int number)
{
    static constexpr std::array pixels{10, 13, 16, 18, 24, 32, 48};
    return pixels.at(static_cast<size_t>(std::clamp(number, 1, 7) - 1)) * pointsPerPixel;
}
