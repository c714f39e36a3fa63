// SPDX-License-Identifier: MIT
// HtmlStyle is how an element of a page looks: the default style sheet of the HTML standard, what the
// element's own attributes add to it, and what it has from its parent. Thread: any.
#pragma once

#include "documents/html/HtmlStyleAttribute.h"
#include "platform/styled_text/TextAttributes.h"

#include <gumbo.h>

struct HtmlStyle {
    Display display = Display::Block;
    /// The element's own text is in a box: not so directly inside of a select or svg element.
    bool rendersText = true;
    /// Whether the children have boxes: not those of images, videos and other replaced elements.
    bool rendersChildren = true;
    /// Only options and their groups have boxes there.
    bool isSelection = false;
    bool isFraction = false; ///< of a formula
    bool standsApart = false; ///< from its neighbours in the formula
    bool isVisible = true;
    WhiteSpace whiteSpace = WhiteSpace::Collapse;

    FontAttributes font;
    QString language;
    ParagraphStyle paragraph; ///< of the block that the element is, or stands in

    // Not inherited, of blocks only; points.
    double leadingMargin = 0;
    double spacing = 0; ///< above and below

    // Inherited, and put into the paragraph where a block begins; points.
    TextAlignment alignment = TextAlignment::Natural;
    WritingDirection direction = WritingDirection::Natural;
    double leadingIndent = 0;
    double trailingIndent = 0;
    double firstLineIndent = 0;
};

/// Of the root element's parent: Times of 12 points.
HtmlStyle rootStyle();

HtmlStyle styleOf(const GumboElement &element, const HtmlStyle &parent);

/// Whether an element is of the HTML, SVG or MathML kind and name. name: lower case.
bool isElement(const GumboElement &element, GumboNamespaceEnum kind, const char *name);
