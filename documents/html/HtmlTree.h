// SPDX-License-Identifier: MIT
// HtmlTree is the tree of nodes of a web page, made by the parser within the limits of ParserMemory.
// Thread: one at a time.  Owner: readHtml().
#pragma once

#include "documents/html/HtmlReader.h"

#include <gumbo.h>

#include <memory>

class ParserMemory;

class HtmlTree {
public:
    /// page: UTF-8; must outlive the tree. Throws std::bad_alloc.
    static Result<HtmlTree, DocumentError::Cause> parse(QByteArrayView page);

    HtmlTree(HtmlTree &&) noexcept;
    HtmlTree &operator=(HtmlTree &&) noexcept;
    HtmlTree(const HtmlTree &) = delete;
    HtmlTree &operator=(const HtmlTree &) = delete;
    ~HtmlTree();

    /// A node of type GUMBO_NODE_DOCUMENT.
    [[nodiscard]] const GumboNode &document() const { return *m_document; }

private:
    HtmlTree(std::unique_ptr<ParserMemory> memory, const GumboNode *document);

    std::unique_ptr<ParserMemory> m_memory;
    const GumboNode *m_document;
};
