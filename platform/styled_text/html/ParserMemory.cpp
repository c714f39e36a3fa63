// SPDX-License-Identifier: MIT
#include "platform/styled_text/html/ParserMemory.h"

#include <cstring>
#include <ctime>
#include <new>

using namespace std::chrono_literals;

namespace {

/// Elements inside each other. The parser looks through the open ones at every tag and at every character.
constexpr int deepestNesting = 1000;

/// Bytes of memory that a tree takes at most: a base, and so many for every byte of the page. Empty
/// paragraphs without end tags, the dearest there is in honest pages, take about 90.
constexpr size_t memoryBase = 64UL * 1024 * 1024;
constexpr size_t memoryPerByte = 192;

/// Processor time that parsing takes at most. Honest pages need about 50 ns for every byte; many attributes
/// of one element, or formatting elements that overlap in certain ways, need the more for each the more there
/// are.
constexpr std::chrono::nanoseconds timeBase = 1s;
constexpr std::chrono::nanoseconds timePerByte = 1us;
constexpr int callsPerLookAtClock = 64;

/// Before every block stands its size. Nothing of the parser's needs a wider alignment than that.
constexpr size_t headerSize = sizeof(size_t);
constexpr size_t blockAlignment = alignof(size_t);
static_assert(alignof(GumboNode) <= blockAlignment && alignof(GumboAttribute) <= blockAlignment);

std::chrono::nanoseconds processorTime()
{
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

} // namespace

bool ParserMemory::Source::holdsNode(const void *address) const
{
    const auto *at = static_cast<const std::byte *>(address);
    const auto after = m_chunks.upper_bound(at);
    if (after == m_chunks.begin() || reinterpret_cast<uintptr_t>(at) % alignof(GumboNode) != 0)
        return false;
    const auto &[start, size] = *std::prev(after);
    return size >= sizeof(GumboNode) && at <= start + size - sizeof(GumboNode);
}

void *ParserMemory::Source::do_allocate(size_t size, size_t alignment)
{
    if (size > m_limit - m_taken) {
        m_hasReachedLimit = true;
        throw std::bad_alloc();
    }
    void *chunk = std::pmr::new_delete_resource()->allocate(size, alignment);
    try {
        m_chunks.emplace(static_cast<const std::byte *>(chunk), size);
    } catch (const std::bad_alloc &) {
        std::pmr::new_delete_resource()->deallocate(chunk, size, alignment);
        throw;
    }
    m_taken += size;
    return chunk;
}

void ParserMemory::Source::do_deallocate(void *block, size_t size, size_t alignment)
{
    m_chunks.erase(static_cast<const std::byte *>(block));
    m_taken -= size;
    std::pmr::new_delete_resource()->deallocate(block, size, alignment);
}

ParserMemory::ParserMemory(qsizetype pageLength)
    : m_source(memoryBase + memoryPerByte * static_cast<size_t>(pageLength))
    , m_pool(&m_source)
    , m_nodesBeforeMeasuring(deepestNesting)
    , m_deadline(processorTime() + timeBase + timePerByte * pageLength)
    , m_callsBeforeClock(callsPerLookAtClock)
{
}

void *ParserMemory::allocate(size_t size)
{
    const bool isNode = size == sizeof(GumboNode);
    if (isNode && isTooDeep()) {
        m_refusal = HtmlError::TooDeep;
        return nullptr;
    }
    if (hasNoTimeLeft()) {
        m_refusal = HtmlError::TooIntricate;
        return nullptr;
    }
    void *block = nullptr;
    try {
        block = m_pool.allocate(headerSize + size, blockAlignment);
    } catch (const std::bad_alloc &) {
        m_refusal = m_source.hasReachedLimit() ? HtmlError::TooIntricate : HtmlError::NotEnoughMemory;
        return nullptr;
    }
    std::memcpy(block, &size, sizeof size);
    void *content = static_cast<std::byte *>(block) + headerSize;
    if (isNode) {
        std::memset(content, 0, size); // read before the parser has written all of it
        m_latestNode = static_cast<const GumboNode *>(content);
    }
    return content;
}

void ParserMemory::release(void *block)
{
    if (!block)
        return;
    if (block == m_latestNode)
        m_latestNode = nullptr;
    void *start = static_cast<std::byte *>(block) - headerSize;
    size_t size = 0;
    std::memcpy(&size, start, sizeof size);
    m_pool.deallocate(start, headerSize + size, blockAlignment);
}

/// No element is more than one level deeper than the one before, so that the depth need only be measured
/// where it might have reached the limit since it was measured last. Comments tell nothing of the depth:
/// behind the end tag of the body they are children of the root.
bool ParserMemory::isTooDeep()
{
    if (m_nodesBeforeMeasuring > 0) {
        --m_nodesBeforeMeasuring;
        return false;
    }
    if (!m_latestNode || !m_latestNode->parent || m_latestNode->type == GUMBO_NODE_COMMENT)
        return false; // measure the next one
    int depth = 0;
    for (const GumboNode *node = m_latestNode; depth <= deepestNesting && m_source.holdsNode(node);
         node = node->parent)
        ++depth;
    m_nodesBeforeMeasuring = deepestNesting - depth;
    return depth > deepestNesting;
}

bool ParserMemory::hasNoTimeLeft()
{
    if (--m_callsBeforeClock > 0)
        return false;
    m_callsBeforeClock = callsPerLookAtClock;
    return processorTime() > m_deadline;
}
