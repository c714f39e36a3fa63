// SPDX-License-Identifier: MIT
#include "documents/html/ParserMemory.h"

#include "documents/html/TreeDepth.h"

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <new>

using namespace std::chrono_literals;

namespace {

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

/// Bytes of the stack. The parser takes about 100 for each level of a tree that it releases, few otherwise.
constexpr qptrdiff maxStackUse = 512L * 1024;

/// Before every block stands its size. Nothing of the parser's needs a wider alignment than that.
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

} // namespace

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
    , m_callsBeforeClock(callsPerLookAtClock)
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
        if (hasNoTimeLeft()) {
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
    // The parser makes the document's node before it reads the page, so that the first block of the size is
    // it.
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

/// The whole tree is measured whenever it may have doubled, which takes time proportional to its size in all.
/// What grows deep in between is found by the last measurement, of the finished tree, or by its use of the
/// stack.
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

bool ParserMemory::hasNoTimeLeft()
{
    if (--m_callsBeforeClock > 0)
        return false;
    m_callsBeforeClock = callsPerLookAtClock;
    return processorTime() > m_deadline;
}
