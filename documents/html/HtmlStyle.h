// SPDX-License-Identifier: MIT
// HtmlStyle is the style of an element: the default style sheet of the HTML standard, the element's own
// attributes, the style sheets of the page, and what it inherits. Reading a style attribute is left to
// HtmlStyleAttribute, finding the rules of the sheets to StyleCascade.
// Thread: any; values.
#pragma once

#include "documents/html/HtmlStyleAttribute.h"
#include "platform/styled_text/TextAttributes.h"

#include <gumbo.h>

struct HtmlStyle {
    Display display = Display::Block;
    bool rendersText = true; ///< false directly inside of a select or svg element
    bool rendersChildren = true; ///< false for replaced elements, such as images and videos
    bool isSelection = false; ///< only options and their groups are shown inside
    bool isFraction = false; ///< of a formula
    bool isFormulaPart = false; ///< needs a space around it
    bool isVisible = true;
    WhiteSpace whiteSpace = WhiteSpace::Collapse;

    FontAttributes font;
    QString language;
    ParagraphStyle paragraph; ///< of the element if it is a block, else of the block around it

    // Not inherited; of blocks only; points.
    double leadingMargin = 0;
    double spacing = 0; ///< above and below

    // Inherited; become part of the paragraph where a block begins; points.
    TextAlignment alignment = TextAlignment::Natural;
    WritingDirection direction = WritingDirection::Natural;
    double leadingIndent = 0;
    double trailingIndent = 0;
    double firstLineIndent = 0;
};

/// The style that the root element inherits: Times of 12 points.
HtmlStyle rootStyle();

/// The style of an element. parent: the style of its parent element. bySheets: what StyleCascade found.
HtmlStyle styleOf(const GumboElement &element, const HtmlStyle &parent, const HidingProperties &bySheets);

/// Applies the style sheet that the HTML standard suggests ("Rendering"), as far as text depends on it, and
/// the SVG and MathML elements that contain text. style: what the element inherits.
void applyDefaultStyle(HtmlStyle &style, const GumboElement &element, const HtmlStyle &parent);

/// Whether an element has a name in the namespace of HTML, SVG or MathML. name: lower case.
bool isElement(const GumboElement &element, GumboNamespaceEnum kind, const char *name);
