// SPDX-License-Identifier: MIT
#include "documents/html/HtmlStyleAttribute.h"

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
    static constexpr Keyword<bool> keywords[] = {{"visible", true}, {"hidden", false}, {"collapse", false}};
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

void declare(HtmlStyleAttribute &style, const QByteArray &property, QByteArrayView rawValue)
{
    const QByteArray value = rawValue.toByteArray().toLower();
    if (property == "display")
        assign(style.display, displayOf(value));
    else if (property == "visibility")
        assign(style.isVisible, isVisibleOf(value));
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

QByteArrayView trim(QByteArrayView bytes)
{
    const auto *start = std::find_if_not(bytes.begin(), bytes.end(), isHtmlSpace);
    const auto *end = bytes.end();
    while (end != start && isHtmlSpace(end[-1]))
        --end;
    return {start, end};
}

QByteArray removeComments(QByteArrayView declarations)
{
    QByteArray text = declarations.first(std::min(declarations.size(), maxAttributeLength)).toByteArray();
    for (qsizetype start = text.indexOf("/*"); start >= 0; start = text.indexOf("/*", start)) {
        const qsizetype end = text.indexOf("*/", start + 2);
        text.replace(start, end < 0 ? text.size() - start : end + 2 - start, " ");
    }
    return text;
}

/// The end of the declaration that begins at a position: a semicolon outside of quotation marks and
/// parentheses.
qsizetype endOfDeclaration(QByteArrayView text, qsizetype start)
{
    char quote = '\0';
    int depth = 0;
    for (qsizetype at = start; at < text.size(); ++at) {
        const char byte = text[at];
        if (byte == '\\')
            ++at;
        else if (quote)
            quote = byte == quote ? '\0' : quote;
        else if (byte == '"' || byte == '\'')
            quote = byte;
        else if (byte == '(')
            ++depth;
        else if (byte == ')')
            depth = std::max(depth - 1, 0);
        else if (byte == ';' && depth == 0)
            return at;
    }
    return text.size();
}

} // namespace

HtmlStyleAttribute parseStyleAttribute(QByteArrayView declarations)
{
    HtmlStyleAttribute style;
    const QByteArray text = removeComments(declarations);
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = endOfDeclaration(text, start);
        const QByteArrayView declaration = QByteArrayView(text).sliced(start, end - start);
        start = end + 1;
        const qsizetype colon = declaration.indexOf(':');
        if (colon < 0)
            continue;
        QByteArrayView value = declaration.sliced(colon + 1);
        if (const qsizetype importance = value.lastIndexOf('!'); importance >= 0)
            value = value.first(importance);
        declare(style, trim(declaration.first(colon)).toByteArray().toLower(), trim(value));
    }
    return style;
}

QString fontFamilyOf(QByteArrayView families)
{
    QByteArrayView family = trim(families.first(std::min(families.size(), maxAttributeLength)));
    if (family.startsWith('"') || family.startsWith('\'')) {
        const qsizetype end = family.indexOf(family[0], 1);
        family = trim(family.sliced(1, (end < 0 ? family.size() : end) - 1));
    } else {
        const qsizetype comma = family.indexOf(',');
        family = trim(family.first(comma < 0 ? family.size() : comma));
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
