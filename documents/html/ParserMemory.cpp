// SPDX-License-Identifier: MIT
#include "documents/html/ParserMemory.h"

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <new>
#include <vector>

using namespace std::chrono_literals;

namespace {

/// The maximum memory of a tree in bytes: a base, and an amount for each byte of the page. Empty paragraphs
/// without end tags, the most expensive elements of real pages, take about 90.
constexpr size_t memoryBase = 64UL * 1024 * 1024;
constexpr size_t memoryPerByte = 192;

/// The maximum processor time of parsing. Real pages need about 50 ns per byte. Time can grow with the square
/// of the number of attributes of one element, or of formatting elements that overlap in certain ways.
constexpr std::chrono::nanoseconds timeBase = 1s;
constexpr std::chrono::nanoseconds timePerByte = 1us;
constexpr int callsPerClockCheck = 64;

/// Bytes. The parser uses about 100 bytes of stack for each level of a tree that it releases, else very few.
constexpr qptrdiff maxStackUse = 512L * 1024;

/// Each block is preceded by its size. No type of the parser needs a stricter alignment than that.
constexpr size_t headerSize = sizeof(size_t);
constexpr size_t blockAlignment = alignof(size_t);
static_assert(alignof(GumboNode) <= blockAlignment && alignof(GumboAttribute) <= blockAlignment);

qptrdiff stackPosition()
{
    return reinterpret_cast<qptrdiff>(__builtin_frame_address(0));
}

std::chrono::nanoseconds processorTime()
{
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

/// Null if the node cannot have children.
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
            if (path.size() > maxElementDepth) // the first level is the document, not an element
                return true;
            path.push_back({children, 0});
        }
    }
    return false;
}

void *ParserMemory::Source::do_allocate(size_t size, size_t alignment)
{
    if (size > m_limit - m_taken) {
        m_hasReachedLimit = true;
        throw std::bad_alloc();
    }
    void *chunk = std::pmr::new_delete_resource()->allocate(size, alignment);
    m_taken += size;
    return chunk;
}

void ParserMemory::Source::do_deallocate(void *block, size_t size, size_t alignment)
{
    m_taken -= size;
    std::pmr::new_delete_resource()->deallocate(block, size, alignment);
}

ParserMemory::ParserMemory(qsizetype pageLength)
    : m_source(memoryBase + memoryPerByte * static_cast<size_t>(pageLength))
    , m_pool(&m_source)
    , m_nodeCountToMeasureAt(maxElementDepth)
    , m_stackStart(stackPosition())
    , m_deadline(processorTime() + timeBase + timePerByte * pageLength)
    , m_callsBeforeClockCheck(callsPerClockCheck)
{
}

void *ParserMemory::allocate(size_t size)
{
    const bool isNode = size == sizeof(GumboNode);
    void *block = nullptr;
    try {
        if (isStackUsedUp() || (isNode && isTreeTooDeep())) {
            m_refusal = DocumentError::Cause::TooDeep;
            return nullptr;
        }
        if (hasReachedDeadline()) {
            m_refusal = DocumentError::Cause::TooComplex;
            return nullptr;
        }
        block = m_pool.allocate(headerSize + size, blockAlignment);
    } catch (const std::bad_alloc &) {
        m_refusal = m_source.hasReachedLimit() ? DocumentError::Cause::TooComplex
                                               : DocumentError::Cause::NotEnoughMemory;
        return nullptr;
    }
    std::memcpy(block, &size, sizeof size);
    void *content = static_cast<std::byte *>(block) + headerSize;
    // The parser creates the node of the document first, so it is the first block of this size.
    if (isNode && !m_document)
        m_document = static_cast<const GumboNode *>(content);
    return content;
}

void ParserMemory::release(void *block)
{
    if (isStackUsedUp())
        m_refusal = DocumentError::Cause::TooDeep;
    if (!block)
        return;
    void *start = static_cast<std::byte *>(block) - headerSize;
    size_t size = 0;
    std::memcpy(&size, start, sizeof size);
    m_pool.deallocate(start, headerSize + size, blockAlignment);
}

/// Measures the whole tree each time it may have doubled, which takes time proportional to its size in total.
/// Depth that is reached in between is found when the finished tree is measured, or by the use of the stack.
bool ParserMemory::isTreeTooDeep()
{
    if (++m_nodeCount < m_nodeCountToMeasureAt)
        return false;
    m_nodeCountToMeasureAt = m_nodeCount * 2;
    return isTooDeep(*m_document);
}

bool ParserMemory::isStackUsedUp() const
{
    return std::abs(m_stackStart - stackPosition()) > maxStackUse;
}

bool ParserMemory::hasReachedDeadline()
{
    if (--m_callsBeforeClockCheck > 0)
        return false;
    m_callsBeforeClockCheck = callsPerClockCheck;
    return processorTime() > m_deadline;
}
