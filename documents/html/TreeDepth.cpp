// SPDX-License-Identifier: MIT
#include "documents/html/TreeDepth.h"

#include <vector>

namespace {

/// Null where a node of the kind has none.
const GumboVector *childrenOf(const GumboNode &node)
{
    switch (node.type) {
    case GUMBO_NODE_DOCUMENT:
        return &node.v.document.children;
    case GUMBO_NODE_ELEMENT:
    case GUMBO_NODE_TEMPLATE:
        return &node.v.element.children;
    default:
        return nullptr;
    }
}

} // namespace

bool isTooDeep(const GumboNode &document)
{
    struct Level {
        const GumboVector *children;
        unsigned int next;
    };
    std::vector<Level> path{{childrenOf(document), 0}};
    while (!path.empty()) {
        Level &level = path.back();
        if (level.next == level.children->length) {
            path.pop_back();
            continue;
        }
        const auto *child = static_cast<const GumboNode *>(level.children->data[level.next++]);
        if (const GumboVector *children = childrenOf(*child)) {
            if (path.size() > maxElementDepth) // the document's level is none of an element
                return true;
            path.push_back({children, 0});
        }
    }
    return false;
}
