// SPDX-License-Identifier: MIT
// TreeDepth measures how many elements of a page's tree are inside each other. It descends from the document
// and reads nothing but nodes that are in the tree, which the parser has then filled in.
// Thread: any.
#pragma once

#include <gumbo.h>

/// Elements inside each other that a page may have.
inline constexpr size_t maxElementDepth = 1000;

/// document: a node of type GUMBO_NODE_DOCUMENT, of a finished tree or of one that the parser is making.
/// Takes time proportional to the size of the tree, and memory for maxElementDepth nodes. Throws
/// std::bad_alloc.
bool isTooDeep(const GumboNode &document);
