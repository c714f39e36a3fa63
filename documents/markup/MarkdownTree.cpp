// SPDX-License-Identifier: MIT
#include "documents/markup/MarkdownTree.h"

#include <cmark.h>

#include <csetjmp>
#include <cstdlib>
#include <memory>
#include <optional>

namespace {

// The library aborts the process where its default allocator has no memory. This one leaves it by a jump: no
// object with a destructor is alive on the way, and what the parser has allocated is lost with the process.
thread_local std::jmp_buf *noMemory = nullptr;

void *checked(void *block)
{
    if (!block)
        std::longjmp(*noMemory, 1); // NOLINT(cert-err52-cpp)
    return block;
}

cmark_mem allocator{[](size_t count, size_t size) { return checked(std::calloc(count, size)); },
    [](void *block, size_t size) { return checked(std::realloc(block, size)); }, std::free};

cmark_node *parse(const char *source, size_t length)
{
    std::jmp_buf here;
    noMemory = &here;
    if (setjmp(here) != 0) // NOLINT(cert-err52-cpp)
        return nullptr;
    cmark_parser *const parser = cmark_parser_new_with_mem(CMARK_OPT_DEFAULT, &allocator);
    cmark_parser_feed(parser, source, length);
    cmark_node *const document = cmark_parser_finish(parser);
    cmark_parser_free(parser);
    return document;
}

cmark_iter *startOf(cmark_node *document)
{
    std::jmp_buf here;
    noMemory = &here;
    return setjmp(here) == 0 ? cmark_iter_new(document) : nullptr; // NOLINT(cert-err52-cpp)
}

MarkdownPart blockEnd(cmark_node *node)
{
    const bool isFirst = !cmark_node_previous(node);
    const cmark_node_type parent = cmark_node_get_type(cmark_node_parent(node));
    return {MarkdownPart::Kind::BlockEnd, {}, isFirst && parent == CMARK_NODE_ITEM};
}

MarkdownPart withContent(MarkdownPart::Kind kind, cmark_node *node)
{
    const char *const literal = cmark_node_get_literal(node);
    return {kind, QByteArrayView(literal ? literal : "")};
}

std::optional<MarkdownPart> partOf(cmark_node *node, bool isEntered)
{
    using Kind = MarkdownPart::Kind;
    switch (cmark_node_get_type(node)) {
    case CMARK_NODE_TEXT:
    case CMARK_NODE_CODE:
        return withContent(Kind::Text, node);
    case CMARK_NODE_SOFTBREAK:
        return MarkdownPart{Kind::SoftBreak, {}};
    case CMARK_NODE_LINEBREAK:
        return MarkdownPart{Kind::HardBreak, {}};
    case CMARK_NODE_HTML_INLINE:
        return withContent(Kind::HtmlTag, node);
    case CMARK_NODE_HTML_BLOCK:
        return withContent(Kind::HtmlBlock, node);
    case CMARK_NODE_PARAGRAPH:
    case CMARK_NODE_HEADING:
        return isEntered ? std::nullopt : std::optional(blockEnd(node));
    default:
        return std::nullopt;
    }
}

} // namespace

bool forEachMarkdownPart(const QByteArray &source, const std::function<void(const MarkdownPart &)> &yield)
{
    const std::unique_ptr<cmark_node, void (*)(cmark_node *)> document(
        parse(source.constData(), static_cast<size_t>(source.size())), cmark_node_free);
    if (!document)
        return false;
    const std::unique_ptr<cmark_iter, void (*)(cmark_iter *)> iterator(
        startOf(document.get()), cmark_iter_free);
    if (!iterator)
        return false;
    for (cmark_event_type event; (event = cmark_iter_next(iterator.get())) != CMARK_EVENT_DONE;) {
        if (const std::optional<MarkdownPart> part =
                partOf(cmark_iter_get_node(iterator.get()), event == CMARK_EVENT_ENTER))
            yield(*part);
    }
    return true;
}
