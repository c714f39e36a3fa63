// SPDX-License-Identifier: MIT
// HtmlText walks the tree of a page and finds its boxes of text; RenderedText assembles them.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "documents/html/StyleSheets.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <gumbo.h>

/// The styled text of a page, by the rules in HtmlReader.h. document: a node of type
/// GUMBO_NODE_DOCUMENT. Takes time proportional to the size of the tree; fails as TooComplex if its style
/// sheets would take more.
Result<AttributedString, DocumentError::Cause> textOfPage(
    const GumboNode &document, const StyleSheets &sheets, qsizetype pageLength);
