// SPDX-License-Identifier: MIT
// HtmlStyleAttribute parses the declarations of a style attribute or of a rule: the CSS properties that text
// and its format depend on. Applying them to an element is left to HtmlStyle.
// Thread: any; values.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QByteArrayView>

#include <optional>

/// The values of CSS "display" that matter for text. A grid counts as Flex, because its items are blocks too.
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

/// The properties that can hide text. A property is absent if it is not declared or if its value is not
/// supported.
struct HidingProperties {
    std::optional<Display> display;
    bool isDisplayImportant = false;
    std::optional<bool> isVisible; ///< visibility
    bool isVisibilityImportant = false;
};

/// All properties that matter.
struct HtmlStyleAttribute : HidingProperties {
    std::optional<bool> isOutOfFlow; ///< float, or position absolute or fixed
    std::optional<WhiteSpace> whiteSpace;
    std::optional<CssLength> fontSize;
    std::optional<int> fontWeight; ///< bolder is 700, lighter 400
    std::optional<FontSlant> fontStyle;
    std::optional<QString> fontFamily; ///< the first one, as returned by fontFamilyOf()
    std::optional<TextAlignment> textAlign; ///< start and end are those of left-to-right text
    std::optional<CssLength> textIndent;
    std::optional<CssLength> marginLeft;
};

/// Among declarations of the same property, the last valid one wins. "!important" is heeded for display and
/// visibility, else ignored. Reads at most 4096 bytes. declarations: in UTF-8, without the braces of a rule.
HtmlStyleAttribute parseStyleAttribute(QByteArrayView declarations);

/// The first name in a list of font families in UTF-8 (CSS "font-family", or the face of a font element),
/// without quotation marks. The generic families serif, sans-serif and monospace become Times, Helvetica and
/// Courier. Empty if the list is empty or the name too long.
QString fontFamilyOf(QByteArrayView families);

/// The points for a size of a font element, which correspond to CSS "absolute-size" keywords: 1 (x-small) to
/// 7 (xxx-large). Other numbers are clamped.
double pointSizeOfFontSize(int number);
