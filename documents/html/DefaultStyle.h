// SPDX-License-Identifier: MIT
// DefaultStyle is the style sheet that the HTML standard suggests for every page ("Rendering"), as far as
// text depends on it, and the SVG and MathML elements that have text. Thread: any.
#pragma once

#include "documents/html/HtmlStyle.h"

/// Applies what the style sheet says of an element to the style that it has inherited.
void applyDefaultStyle(HtmlStyle &style, const GumboElement &element, const HtmlStyle &parent);
