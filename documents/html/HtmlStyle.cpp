// SPDX-License-Identifier: MIT
#include "documents/html/HtmlStyle.h"

#include <algorithm>

namespace {

constexpr double minPointSize = 1;
constexpr double maxPointSize = 1000;
constexpr double maxIndent = 10'000; // points
constexpr qsizetype maxLanguageLength = 64; // bytes

double pointsOf(const CssLength &length, double em, double ifPercent)
{
    switch (length.unit) {
    case CssLength::Unit::Points:
        return length.value;
    case CssLength::Unit::Em:
        return length.value * em;
    case CssLength::Unit::Percent:
        break;
    }
    return ifPercent;
}

/// The attributes of an element that affect its style; null if absent.
struct StyleAttributes {
    const char *align = nullptr;
    const char *direction = nullptr;
    const char *face = nullptr;
    const char *language = nullptr;
    const char *size = nullptr;
    const char *style = nullptr;
};

StyleAttributes styleAttributesOf(const GumboElement &element)
{
    StyleAttributes found;
    const char *xmlLanguage = nullptr;
    struct Name {
        const char *name;
        const char **value;
    };
    const Name names[] = {{"align", &found.align}, {"dir", &found.direction}, {"face", &found.face},
        {"lang", &found.language}, {"size", &found.size}, {"style", &found.style},
        {"xml:lang", &xmlLanguage}};
    for (unsigned int i = 0; i < element.attributes.length; ++i) {
        const auto *attribute = static_cast<const GumboAttribute *>(element.attributes.data[i]);
        for (const Name &name : names) {
            if (qstrcmp(attribute->name, name.name) == 0)
                *name.value = attribute->value;
        }
    }
    if (!found.language)
        found.language = xmlLanguage;
    return found;
}

bool alignsItsText(GumboTag tag)
{
    switch (tag) {
    case GUMBO_TAG_CAPTION:
    case GUMBO_TAG_DIV:
    case GUMBO_TAG_H1:
    case GUMBO_TAG_H2:
    case GUMBO_TAG_H3:
    case GUMBO_TAG_H4:
    case GUMBO_TAG_H5:
    case GUMBO_TAG_H6:
    case GUMBO_TAG_LEGEND:
    case GUMBO_TAG_P:
    case GUMBO_TAG_TBODY:
    case GUMBO_TAG_TD:
    case GUMBO_TAG_TFOOT:
    case GUMBO_TAG_TH:
    case GUMBO_TAG_THEAD:
    case GUMBO_TAG_TR:
        return true;
    default:
        return false;
    }
}

void applyAlign(HtmlStyle &style, const char *align)
{
    if (qstricmp(align, "left") == 0)
        style.alignment = TextAlignment::Left;
    else if (qstricmp(align, "right") == 0)
        style.alignment = TextAlignment::Right;
    else if (qstricmp(align, "center") == 0 || qstricmp(align, "middle") == 0)
        style.alignment = TextAlignment::Center;
    else if (qstricmp(align, "justify") == 0)
        style.alignment = TextAlignment::Justified;
}

void applyDirection(HtmlStyle &style, const char *direction)
{
    if (qstricmp(direction, "ltr") == 0)
        style.direction = WritingDirection::LeftToRight;
    else if (qstricmp(direction, "rtl") == 0)
        style.direction = WritingDirection::RightToLeft;
    else if (qstricmp(direction, "auto") == 0)
        style.direction = WritingDirection::Natural;
}

/// An invalid tag makes the language unknown; it is not inherited then.
void applyLanguage(HtmlStyle &style, const char *language)
{
    const QByteArrayView tag(language);
    const bool isTag = tag.size() <= maxLanguageLength
        && std::all_of(tag.begin(), tag.end(), [](char byte) { return byte == '-' || isalnum(byte); });
    style.language = isTag ? QString::fromLatin1(tag) : QString();
}

/// HTML standard, "rules for parsing a legacy font size".
void applyFontSize(HtmlStyle &style, const char *size)
{
    constexpr int mediumSize = 3;
    const QByteArray text = QByteArray(size).trimmed();
    const bool isRelative = text.startsWith('+') || text.startsWith('-');
    const auto *start = text.begin() + (isRelative ? 1 : 0);
    const auto *end =
        std::find_if_not(start, text.end(), [](char byte) { return byte >= '0' && byte <= '9'; });
    if (start == end)
        return;
    constexpr std::ptrdiff_t maxDigits = 4;
    const int number = QByteArray(start, std::min(end - start, maxDigits)).toInt();
    const int relative = text.startsWith('-') ? mediumSize - number : mediumSize + number;
    style.font.pointSize = pointSizeOfFontSize(isRelative ? relative : number);
}

void applyStyleAttribute(HtmlStyle &style, const HtmlStyleAttribute &declared, const HtmlStyle &parent)
{
    style.display = declared.display.value_or(style.display);
    style.isVisible = declared.isVisible.value_or(style.isVisible);
    style.whiteSpace = declared.whiteSpace.value_or(style.whiteSpace);
    style.alignment = declared.textAlign.value_or(style.alignment);
    style.font.weight = declared.fontWeight.value_or(style.font.weight);
    style.font.slant = declared.fontStyle.value_or(style.font.slant);
    style.font.family = declared.fontFamily.value_or(style.font.family);
    if (declared.fontSize) {
        const double parentSize = parent.font.pointSize;
        style.font.pointSize =
            pointsOf(*declared.fontSize, parentSize, declared.fontSize->value * parentSize / 100);
    }
    if (declared.textIndent)
        style.firstLineIndent = pointsOf(*declared.textIndent, style.font.pointSize, style.firstLineIndent);
    if (declared.marginLeft)
        style.leadingMargin = pointsOf(*declared.marginLeft, style.font.pointSize, style.leadingMargin);
}

/// Adds what style sheets declare to a style attribute, which wins unless they are more important. Sheets do
/// not hide the page as a whole: those that do expect a script to show it, which is not run.
void addSheets(HidingProperties &declared, const HidingProperties &sheets, GumboTag tag)
{
    const bool isWholePage = tag == GUMBO_TAG_HTML || tag == GUMBO_TAG_BODY;
    const bool isHiding = sheets.display == Display::None;
    const bool isIgnored = isHiding ? isWholePage : tag == GUMBO_TAG_BR; // a line break has no box
    if (sheets.display && !isIgnored
        && (!declared.display || (sheets.isDisplayImportant && !declared.isDisplayImportant)))
        declared.display = sheets.display;
    if (sheets.isVisible && (!isWholePage || *sheets.isVisible)
        && (!declared.isVisible || (sheets.isVisibilityImportant && !declared.isVisibilityImportant)))
        declared.isVisible = sheets.isVisible;
}

/// CSS Display, "automatic box type transformations".
Display blockify(Display display)
{
    switch (display) {
    case Display::Inline:
    case Display::InlineBlock:
    case Display::TableCaption:
    case Display::TableRowGroup:
    case Display::TableRow:
    case Display::TableCell:
        return Display::Block;
    case Display::InlineFlex:
        return Display::Flex;
    case Display::InlineTable:
        return Display::Table;
    default:
        return display;
    }
}

bool isBlockContainer(Display display)
{
    return display != Display::Inline && display != Display::Contents && display != Display::None;
}

void beginBlock(HtmlStyle &style)
{
    const auto bounded = [](double indent) { return std::clamp(indent, 0.0, maxIndent); };
    style.leadingIndent = bounded(style.leadingIndent + style.leadingMargin);
    style.trailingIndent = bounded(style.trailingIndent);
    style.paragraph = {};
    style.paragraph.alignment = style.alignment;
    style.paragraph.direction = style.direction;
    style.paragraph.headIndent = style.leadingIndent;
    style.paragraph.firstLineHeadIndent = bounded(style.leadingIndent + style.firstLineIndent);
    style.paragraph.tailIndent = style.trailingIndent;
    style.paragraph.paragraphSpacingBefore = style.spacing;
    style.paragraph.paragraphSpacing = style.spacing;
}

} // namespace

HtmlStyle rootStyle()
{
    HtmlStyle style;
    style.font.family = QStringLiteral("Times");
    style.font.pointSize = 12;
    return style;
}

HtmlStyle styleOf(const GumboElement &element, const HtmlStyle &parent, const HidingProperties &bySheets)
{
    HtmlStyle style = parent;
    style.display = Display::Inline;
    style.rendersChildren = true;
    style.isFraction = false;
    style.isFormulaPart = false;
    style.leadingMargin = 0;
    style.spacing = 0;
    applyDefaultStyle(style, element, parent);

    HtmlStyleAttribute declared;
    bool hasStyle = false;
    if (element.attributes.length > 0) {
        const StyleAttributes attributes = styleAttributesOf(element);
        if (attributes.align && alignsItsText(element.tag))
            applyAlign(style, attributes.align);
        if (attributes.direction)
            applyDirection(style, attributes.direction);
        if (attributes.language)
            applyLanguage(style, attributes.language);
        if (element.tag == GUMBO_TAG_FONT && attributes.size)
            applyFontSize(style, attributes.size);
        if (element.tag == GUMBO_TAG_FONT && attributes.face) {
            if (const QString family = fontFamilyOf(attributes.face); !family.isEmpty())
                style.font.family = family;
        }
        if (attributes.style)
            declared = parseStyleAttribute(attributes.style);
        hasStyle = attributes.style;
    }
    if (bySheets.display || bySheets.isVisible) {
        addSheets(declared, bySheets, element.tag);
        hasStyle = true;
    }
    if (hasStyle)
        applyStyleAttribute(style, declared, parent);
    const bool isItem = parent.display == Display::Flex || parent.display == Display::InlineFlex;
    if (isItem || declared.isOutOfFlow.value_or(false))
        style.display = blockify(style.display);
    style.font.pointSize = std::clamp(style.font.pointSize, minPointSize, maxPointSize);
    if (isBlockContainer(style.display))
        beginBlock(style);
    return style;
}

bool isElement(const GumboElement &element, GumboNamespaceEnum kind, const char *name)
{
    if (element.tag_namespace != kind)
        return false;
    if (element.tag != GUMBO_TAG_UNKNOWN)
        return qstrcmp(gumbo_normalized_tagname(element.tag), name) == 0;
    GumboStringPiece tag = element.original_tag;
    gumbo_tag_from_original_text(&tag);
    return tag.length == qstrlen(name) && qstrnicmp(tag.data, name, tag.length) == 0;
}
