// SPDX-License-Identifier: MIT
#include "documents/html/HtmlTree.h"

#include "documents/html/ParserMemory.h"

#include <csetjmp>

namespace {

/// One run of the parser. The parser does not check whether an allocation fails.
struct ParserRun {
    ParserMemory *memory;
    std::jmp_buf end;
};

void *allocate(void *userData, size_t size)
{
    auto *run = static_cast<ParserRun *>(userData);
    void *block = run->memory->allocate(size);
    if (!block)
        std::longjmp(run->end, 1); // skips only C functions, which have no destructors
    return block;
}

void release(void *userData, void *block)
{
    auto *run = static_cast<ParserRun *>(userData);
    run->memory->release(block);
    if (run->memory->refusal())
        std::longjmp(run->end, 1); // as in allocate()
}

/// Null if the memory has refused an allocation.
const GumboNode *parseDocument(QByteArrayView page, ParserRun *run)
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
    const GumboNode *document = parseDocument(page.isEmpty() ? QByteArrayView(" ") : page, &run);
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
