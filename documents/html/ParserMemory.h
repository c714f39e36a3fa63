// SPDX-License-Identifier: MIT
// ParserMemory provides the memory of one run of the HTML parser and enforces its limits: the parser has none
// itself, but allocates all the time. Ending the run is left to HtmlTree.
// Thread: one.  Owner: HtmlTree.
#pragma once

#include "documents/html/HtmlReader.h"

#include <gumbo.h>

#include <chrono>
#include <cstddef>
#include <memory_resource>
#include <optional>

/// The maximum nesting depth of elements in a page.
inline constexpr size_t maxElementDepth = 1000;

/// Whether the elements of a tree are nested more deeply than maxElementDepth. Takes time proportional to the
/// size of the tree. Throws std::bad_alloc.
/// document: a node of type GUMBO_NODE_DOCUMENT, of a finished tree or of one that the parser is building.
bool isTooDeep(const GumboNode &document);

/// All memory is freed at once at the end, because gumbo_destroy_output() descends into the tree recursively.
/// The parser itself does the same if a frameset replaces a body; therefore the use of the stack is limited
/// too.
class ParserMemory {
public:
    /// Must be created in the function that runs the parser: the use of the stack is counted from there.
    /// pageLength: bytes of the page; all limits except that of the depth are proportional to it.
    explicit ParserMemory(qsizetype pageLength);

    /// Null if a limit is reached or memory runs out; refusal() returns which.
    void *allocate(size_t size);
    /// May set refusal(); the run must end then.
    void release(void *block);

    [[nodiscard]] std::optional<DocumentError::Cause> refusal() const { return m_refusal; }

private:
    /// Memory from the system, up to a limit.
    class Source : public std::pmr::memory_resource {
    public:
        explicit Source(size_t limit)
            : m_limit(limit)
        {
        }
        [[nodiscard]] bool hasReachedLimit() const { return m_hasReachedLimit; }

    private:
        void *do_allocate(size_t size, size_t alignment) override;
        void do_deallocate(void *block, size_t size, size_t alignment) override;
        [[nodiscard]] bool do_is_equal(const memory_resource &other) const noexcept override
        {
            return this == &other;
        }

        const size_t m_limit;
        size_t m_taken = 0;
        bool m_hasReachedLimit = false;
    };

    [[nodiscard]] bool isTreeTooDeep();
    [[nodiscard]] bool isStackUsedUp() const;
    [[nodiscard]] bool hasReachedDeadline();

    Source m_source;
    std::pmr::unsynchronized_pool_resource m_pool;
    std::optional<DocumentError::Cause> m_refusal;

    const GumboNode *m_document = nullptr; ///< the root of the tree; null at first
    size_t m_nodeCount = 0; ///< blocks of the size of a node, including strings of that size
    size_t m_nodeCountToMeasureAt;
    const qptrdiff m_stackStart; ///< an address

    std::chrono::nanoseconds m_deadline; ///< on the clock of the thread's processor time
    int m_callsBeforeClockCheck;
};
