// SPDX-License-Identifier: MIT
// ParserMemory is the memory of one run of the HTML parser, and the place from which the run is watched: the
// parser knows no limits itself, but asks for memory all the time.
// Thread: one. Owner: HtmlTree.
#pragma once

#include "documents/html/HtmlReader.h"

#include <gumbo.h>

#include <chrono>
#include <cstddef>
#include <memory_resource>
#include <optional>

/// Nothing is given back to the system before the end, where all is at once: gumbo_destroy_output would
/// descend into the tree recursively. The parser does so itself where a frameset replaces a body, and so its
/// stack is watched too.
class ParserMemory {
public:
    /// To be made where the parser runs, since the use of the stack is counted from there. pageLength: bytes
    /// of the page to be parsed, which all limits but that of the depth are in proportion to.
    explicit ParserMemory(qsizetype pageLength);

    /// Null where a limit is reached or the memory is short; refusal() then says which.
    void *allocate(size_t size);
    /// May make a refusal, on which the run must end.
    void release(void *block);

    [[nodiscard]] std::optional<DocumentError::Cause> refusal() const { return m_refusal; }

private:
    /// What the pool takes from the system, up to a limit.
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
    [[nodiscard]] bool hasNoTimeLeft();

    Source m_source;
    std::pmr::unsynchronized_pool_resource m_pool;
    std::optional<DocumentError::Cause> m_refusal;

    const GumboNode *m_document = nullptr; ///< the root of the tree, once there is one
    size_t m_nodeCount = 0; ///< blocks of the size of a node; strings of the same size count too
    size_t m_nodeCountToMeasureAt;
    const qptrdiff m_stackStart; ///< an address

    std::chrono::nanoseconds m_deadline; ///< on the clock of the thread's processor time
    int m_callsBeforeClock;
};
