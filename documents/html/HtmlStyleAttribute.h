// SPDX-License-Identifier: MIT
// HtmlStyleAttribute reads a style attribute: the few CSS properties that a text's look and shape depend on.
// What they mean for an element, HtmlStyle knows.
// Thread: any.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QByteArrayView>

#include <optional>

/// The values of CSS "display", as far as text depends on them. Grids are Flex: their items are blocks too.
enum class Display {
    None,
    Contents,
    Inline,
    InlineBlock,
    InlineFlex,
    InlineTable,
    Block,
    Flex,
    Table,
    TableCaption,
    TableRowGroup,
    TableRow,
    TableCell,
};

enum class WhiteSpace { Collapse, PreserveLineEnds, Preserve };

struct CssLength {
    enum class Unit { Points, Em, Percent };
    double value = 0;
    Unit unit = Unit::Points;

    bool operator==(const CssLength &) const = default;
};

/// What is absent is not declared, or not with a value that is known here.
struct HtmlStyleAttribute {
    std::optional<Display> display;
    std::optional<bool> isVisible; ///< visibility
    std::optional<bool> isOutOfFlow; ///< float, or position absolute or fixed
    std::optional<WhiteSpace> whiteSpace;
    std::optional<CssLength> fontSize;
    std::optional<int> fontWeight; ///< bolder is 700, lighter 400
    std::optional<FontSlant> fontStyle;
    std::optional<QString> fontFamily; ///< the first one, as fontFamilyOf() gives it
    std::optional<TextAlignment> textAlign; ///< start and end as in left-to-right text
    std::optional<CssLength> textIndent;
    std::optional<CssLength> marginLeft;
};

/// declarations: the attribute's value, in UTF-8. Of equal properties the last valid one counts; importance
/// does not. Reads a bounded length.
HtmlStyleAttribute parseStyleAttribute(QByteArrayView declarations);

/// The first name of a list of font families (CSS "font-family", or the face of a font element), in UTF-8:
/// without quotation marks, the generic families serif, sans-serif and monospace as the fonts that stand for
/// them, Times, Helvetica and Courier. Empty where the list has none, or none that is short enough.
QString fontFamilyOf(QByteArrayView families);

/// CSS "absolute-size" keywords by the numbers that the size of a font element has: 1 (x-small) to 7
/// (xxx-large), in points.
double pointSizeOfFontSize(int number);
