// SPDX-License-Identifier: MIT
#include "documents/html/HtmlStyle.h"

#include <algorithm>

namespace {

constexpr double indentPoints = 30; // 40 CSS pixels

/// Browsers set generic monospace text in 13 CSS pixels, other text in 16.
constexpr double monospaceScale = 13.0 / 16;

constexpr double smallerScale = 1 / 1.2;
constexpr double largerScale = 1.2;

/// Fractions of the parent's font size. CSS leaves the shift of sub and super to the browser.
constexpr double superscriptRise = 1.0 / 3;
constexpr double subscriptDrop = 1.0 / 5;

struct Heading {
    double size; ///< multiple of the parent's
    double margin; ///< multiple of its own size
};

void applyHeading(HtmlStyle &style, const Heading &heading)
{
    style.display = Display::Block;
    style.font.pointSize *= heading.size;
    style.font.weight = std::max(style.font.weight, boldFontWeight);
    style.spacing = style.font.pointSize * heading.margin;
}

void applyMonospace(HtmlStyle &style)
{
    const QString courier = QStringLiteral("Courier");
    if (style.font.family != courier)
        style.font.pointSize *= monospaceScale;
    style.font.family = courier;
}

void applyScript(HtmlStyle &style, double rise)
{
    style.font.baselineOffset += rise * style.font.pointSize;
    style.font.pointSize *= smallerScale;
}

Display defaultDisplay(GumboTag tag)
{
    switch (tag) {
    case GUMBO_TAG_AREA:
    case GUMBO_TAG_BASE:
    case GUMBO_TAG_BASEFONT:
    case GUMBO_TAG_BGSOUND:
    case GUMBO_TAG_COL:
    case GUMBO_TAG_COLGROUP:
    case GUMBO_TAG_DATALIST:
    case GUMBO_TAG_HEAD:
    case GUMBO_TAG_LINK:
    case GUMBO_TAG_META:
    case GUMBO_TAG_NOEMBED:
    case GUMBO_TAG_NOFRAMES:
    case GUMBO_TAG_NOSCRIPT:
    case GUMBO_TAG_PARAM:
    case GUMBO_TAG_RP:
    case GUMBO_TAG_SCRIPT:
    case GUMBO_TAG_SOURCE:
    case GUMBO_TAG_STYLE:
    case GUMBO_TAG_TEMPLATE:
    case GUMBO_TAG_TITLE:
    case GUMBO_TAG_TRACK:
        return Display::None;
    case GUMBO_TAG_ADDRESS:
    case GUMBO_TAG_ARTICLE:
    case GUMBO_TAG_ASIDE:
    case GUMBO_TAG_BLOCKQUOTE:
    case GUMBO_TAG_BODY:
    case GUMBO_TAG_CENTER:
    case GUMBO_TAG_DD:
    case GUMBO_TAG_DETAILS:
    case GUMBO_TAG_DIR:
    case GUMBO_TAG_DIV:
    case GUMBO_TAG_DL:
    case GUMBO_TAG_DT:
    case GUMBO_TAG_FIELDSET:
    case GUMBO_TAG_FIGCAPTION:
    case GUMBO_TAG_FIGURE:
    case GUMBO_TAG_FOOTER:
    case GUMBO_TAG_FORM:
    case GUMBO_TAG_FRAMESET:
    case GUMBO_TAG_HEADER:
    case GUMBO_TAG_HGROUP:
    case GUMBO_TAG_HR:
    case GUMBO_TAG_HTML:
    case GUMBO_TAG_LEGEND:
    case GUMBO_TAG_LI:
    case GUMBO_TAG_LISTING:
    case GUMBO_TAG_MAIN:
    case GUMBO_TAG_MENU:
    case GUMBO_TAG_NAV:
    case GUMBO_TAG_OL:
    case GUMBO_TAG_OPTGROUP:
    case GUMBO_TAG_OPTION:
    case GUMBO_TAG_P:
    case GUMBO_TAG_PLAINTEXT:
    case GUMBO_TAG_PRE:
    case GUMBO_TAG_SECTION:
    case GUMBO_TAG_SUMMARY:
    case GUMBO_TAG_UL:
    case GUMBO_TAG_XMP:
        return Display::Block;
    case GUMBO_TAG_TABLE:
        return Display::Table;
    case GUMBO_TAG_CAPTION:
        return Display::TableCaption;
    case GUMBO_TAG_THEAD:
    case GUMBO_TAG_TBODY:
    case GUMBO_TAG_TFOOT:
        return Display::TableRowGroup;
    case GUMBO_TAG_TR:
        return Display::TableRow;
    case GUMBO_TAG_TD:
    case GUMBO_TAG_TH:
        return Display::TableCell;
    case GUMBO_TAG_APPLET:
    case GUMBO_TAG_AUDIO:
    case GUMBO_TAG_BUTTON:
    case GUMBO_TAG_CANVAS:
    case GUMBO_TAG_EMBED:
    case GUMBO_TAG_IFRAME:
    case GUMBO_TAG_IMG:
    case GUMBO_TAG_INPUT:
    case GUMBO_TAG_KEYGEN:
    case GUMBO_TAG_MARQUEE:
    case GUMBO_TAG_METER:
    case GUMBO_TAG_OBJECT:
    case GUMBO_TAG_PROGRESS:
    case GUMBO_TAG_TEXTAREA:
    case GUMBO_TAG_VIDEO:
        return Display::InlineBlock;
    default:
        return Display::Inline;
    }
}

bool isReplaced(GumboTag tag)
{
    switch (tag) {
    case GUMBO_TAG_APPLET:
    case GUMBO_TAG_AUDIO:
    case GUMBO_TAG_BR:
    case GUMBO_TAG_CANVAS:
    case GUMBO_TAG_EMBED:
    case GUMBO_TAG_IFRAME:
    case GUMBO_TAG_IMG:
    case GUMBO_TAG_INPUT:
    case GUMBO_TAG_KEYGEN:
    case GUMBO_TAG_METER:
    case GUMBO_TAG_OBJECT:
    case GUMBO_TAG_PROGRESS:
    case GUMBO_TAG_VIDEO:
        return true;
    default:
        return false;
    }
}

void applyFont(HtmlStyle &style, GumboTag tag)
{
    FontAttributes &font = style.font;
    switch (tag) {
    case GUMBO_TAG_B:
    case GUMBO_TAG_STRONG:
    case GUMBO_TAG_TH:
        font.weight = std::max(font.weight, boldFontWeight);
        break;
    case GUMBO_TAG_ADDRESS:
    case GUMBO_TAG_CITE:
    case GUMBO_TAG_DFN:
    case GUMBO_TAG_EM:
    case GUMBO_TAG_I:
    case GUMBO_TAG_VAR:
        font.slant = FontSlant::Italic;
        break;
    case GUMBO_TAG_CODE:
    case GUMBO_TAG_KBD:
    case GUMBO_TAG_SAMP:
    case GUMBO_TAG_TT:
        applyMonospace(style);
        break;
    case GUMBO_TAG_LISTING:
    case GUMBO_TAG_PLAINTEXT:
    case GUMBO_TAG_PRE:
    case GUMBO_TAG_XMP:
        applyMonospace(style);
        style.whiteSpace = WhiteSpace::Preserve;
        break;
    case GUMBO_TAG_TEXTAREA:
        style.whiteSpace = WhiteSpace::Preserve;
        break;
    case GUMBO_TAG_BIG:
        font.pointSize *= largerScale;
        break;
    case GUMBO_TAG_SMALL:
        font.pointSize *= smallerScale;
        break;
    case GUMBO_TAG_SUB:
        applyScript(style, -subscriptDrop);
        break;
    case GUMBO_TAG_SUP:
        applyScript(style, superscriptRise);
        break;
    case GUMBO_TAG_RT:
        font.pointSize *= 0.5;
        break;
    default:
        break;
    }
}

void applyBlock(HtmlStyle &style, GumboTag tag)
{
    switch (tag) {
    case GUMBO_TAG_H1:
        return applyHeading(style, {2, 0.67});
    case GUMBO_TAG_H2:
        return applyHeading(style, {1.5, 0.83});
    case GUMBO_TAG_H3:
        return applyHeading(style, {1.17, 1});
    case GUMBO_TAG_H4:
        return applyHeading(style, {1, 1.33});
    case GUMBO_TAG_H5:
        return applyHeading(style, {0.83, 1.67});
    case GUMBO_TAG_H6:
        return applyHeading(style, {0.67, 2.33});
    case GUMBO_TAG_DIR:
    case GUMBO_TAG_MENU:
    case GUMBO_TAG_OL:
    case GUMBO_TAG_UL:
        style.leadingIndent += indentPoints; // padding; a margin is added to it
        break;
    case GUMBO_TAG_DD:
        style.leadingMargin = indentPoints;
        break;
    case GUMBO_TAG_BLOCKQUOTE:
    case GUMBO_TAG_FIGURE:
        style.leadingMargin = indentPoints;
        style.trailingIndent += indentPoints;
        break;
    case GUMBO_TAG_CAPTION:
    case GUMBO_TAG_CENTER:
    case GUMBO_TAG_TH:
        style.alignment = TextAlignment::Center;
        break;
    case GUMBO_TAG_TABLE:
        style.firstLineIndent = 0;
        break;
    default:
        break;
    }
}

bool hasAttribute(const GumboElement &element, const char *name)
{
    return gumbo_get_attribute(&element.attributes, name) != nullptr;
}

bool isHiddenByAttributes(const GumboElement &element)
{
    if (hasAttribute(element, "hidden") || hasAttribute(element, "popover"))
        return true;
    switch (element.tag) {
    case GUMBO_TAG_AUDIO:
        return !hasAttribute(element, "controls");
    case GUMBO_TAG_INPUT: {
        const GumboAttribute *type = gumbo_get_attribute(&element.attributes, "type");
        return type && qstricmp(type->value, "hidden") == 0;
    }
    case GUMBO_TAG_UNKNOWN:
        return isElement(element, GUMBO_NAMESPACE_HTML, "dialog") && !hasAttribute(element, "open");
    default:
        return false;
    }
}

void applyHtmlStyle(HtmlStyle &style, const GumboElement &element, const HtmlStyle &parent)
{
    style.display = defaultDisplay(element.tag);
    style.rendersText = element.tag != GUMBO_TAG_SELECT && element.tag != GUMBO_TAG_OPTGROUP;
    style.rendersChildren = !isReplaced(element.tag);
    applyFont(style, element.tag);
    applyBlock(style, element.tag);
    const bool isOption = element.tag == GUMBO_TAG_OPTION || element.tag == GUMBO_TAG_OPTGROUP;
    if (element.tag == GUMBO_TAG_UNKNOWN
        && (isElement(element, GUMBO_NAMESPACE_HTML, "dialog")
            || isElement(element, GUMBO_NAMESPACE_HTML, "search")))
        style.display = Display::Block;
    else if (isElement(element, GUMBO_NAMESPACE_HTML, "slot"))
        style.display = Display::Contents;
    if (isHiddenByAttributes(element) || (parent.isSelection && !isOption))
        style.display = Display::None;
    style.isSelection = element.tag == GUMBO_TAG_SELECT || element.tag == GUMBO_TAG_OPTGROUP;
}

/// Only text elements and foreign objects show text.
void applySvgStyle(HtmlStyle &style, const GumboElement &element)
{
    const auto is = [&](const char *name) { return isElement(element, GUMBO_NAMESPACE_SVG, name); };
    if (is("svg")) {
        style.display = Display::InlineBlock;
        style.rendersText = false;
    } else if (is("text") || is("foreignobject")) {
        style.display = Display::Block;
        style.rendersText = true;
    } else if (!is("a") && !is("g") && !is("switch") && !is("tspan") && !is("textpath")) {
        style.display = Display::None;
    }
}

/// Matrices stay in the line of their formula and add no paragraphs, as in Word documents.
void applyMathStyle(HtmlStyle &style, const GumboElement &element, const HtmlStyle &parent)
{
    const auto is = [&](const char *name) { return isElement(element, GUMBO_NAMESPACE_MATHML, name); };
    style.isFraction = is("mfrac");
    style.isFormulaPart = parent.isFraction || is("mtd");
    if (is("annotation") || is("annotation-xml"))
        style.display = Display::None;
    else if (const GumboAttribute *display = gumbo_get_attribute(&element.attributes, "display");
             is("math") && display && qstricmp(display->value, "block") == 0)
        style.display = Display::Block;
}

} // namespace

void applyDefaultStyle(HtmlStyle &style, const GumboElement &element, const HtmlStyle &parent)
{
    switch (element.tag_namespace) {
    case GUMBO_NAMESPACE_HTML:
        return applyHtmlStyle(style, element, parent);
    case GUMBO_NAMESPACE_SVG:
        return applySvgStyle(style, element);
    case GUMBO_NAMESPACE_MATHML:
        return applyMathStyle(style, element, parent);
    }
}
