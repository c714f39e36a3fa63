// SPDX-License-Identifier: MIT
// HtmlText walks through the tree of a page and tells which boxes of text there are.
// Thread: any.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <gumbo.h>

/// The styled text of a page, by the rules that HtmlReader.h states. document: a node of type
/// GUMBO_NODE_DOCUMENT. Takes time proportional to the size of the tree.
AttributedString textOfPage(const GumboNode &document);
