// SPDX-License-Identifier: MIT
// HtmlText walks the tree of a page and finds its boxes of text; RenderedText assembles them.
// Thread: any.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <gumbo.h>

/// The styled text of a page, by the rules in HtmlReader.h. document: a node of type
/// GUMBO_NODE_DOCUMENT. Takes time proportional to the size of the tree.
AttributedString textOfPage(const GumboNode &document);
