// SPDX-License-Identifier: MIT
#include "documents/html/HtmlTree.h"

#include "documents/html/ParserMemory.h"
#include "documents/html/TreeDepth.h"

#include <csetjmp>

namespace {

/// A run of the parser, which has no way of its own to be told that there is no memory.
struct ParserRun {
    ParserMemory *memory;
    std::jmp_buf end;
};

void *allocate(void *userData, size_t size)
{
    auto *run = static_cast<ParserRun *>(userData);
    void *block = run->memory->allocate(size);
    if (!block)
        std::longjmp(run->end, 1); // leaves nothing but functions in C
    return block;
}

void release(void *userData, void *block)
{
    auto *run = static_cast<ParserRun *>(userData);
    run->memory->release(block);
    if (run->memory->refusal())
        std::longjmp(run->end, 1); // likewise
}

/// Null where the memory refused.
const GumboNode *parsedDocument(QByteArrayView page, ParserRun *run)
{
    GumboOptions options = kGumboDefaultOptions;
    options.allocator = allocate;
    options.deallocator = release;
    options.userdata = run;
    options.max_errors = 0;
    if (setjmp(run->end) != 0)
        return nullptr;
    const GumboOutput *output =
        gumbo_parse_with_options(&options, page.data(), static_cast<size_t>(page.size()));
    return output->document;
}

} // namespace

Result<HtmlTree, DocumentError::Cause> HtmlTree::parse(QByteArrayView page)
{
    auto memory = std::make_unique<ParserMemory>(page.size());
    ParserRun run{memory.get(), {}};
    const GumboNode *document = parsedDocument(page.isEmpty() ? QByteArrayView(" ") : page, &run);
    if (!document)
        return memory->refusal().value_or(DocumentError::Cause::NotEnoughMemory);
    if (isTooDeep(*document))
        return DocumentError::Cause::TooDeep;
    return HtmlTree(std::move(memory), document);
}

HtmlTree::HtmlTree(std::unique_ptr<ParserMemory> memory, const GumboNode *document)
    : m_memory(std::move(memory))
    , m_document(document)
{
}

HtmlTree::HtmlTree(HtmlTree &&) noexcept = default;
HtmlTree &HtmlTree::operator=(HtmlTree &&) noexcept = default;
HtmlTree::~HtmlTree() = default;
