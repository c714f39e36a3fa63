// SPDX-License-Identifier: MIT
// PieceCounters counts pieces of a text, those of a long one on several threads, each with fonts and break
// iterators of its own. The counts are the same as on one thread. Cutting the text is left to the caller.
// Thread: one at a time.  Owner: WordCounterModel.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/system/ThreadTeam.h"
#include "platform/text_layout/LayoutEngine.h"
#include "text_statistics/CountedPiece.h"
#include "text_statistics/TextCounter.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

struct TextInColumn {
    const AttributedString &text;
    double columnWidth; ///< points
};

/// What one thread counts with.
struct CountingTools {
    TextCounter &counter;
    LayoutEngine &engine;
};

class PieceCounters {
public:
    /// UTF-16 code units. Fewer are counted on the caller's thread before another has loaded its fonts.
    static constexpr qsizetype minLengthForThreads = qsizetype{1} << 19;
    /// Each thread has some megabytes of fonts.
    static constexpr int maxThreads = 8;

    PieceCounters();
    ~PieceCounters();

    /// Starts threads that wait until they are needed, so that there are this many with the caller's, up to
    /// the maximum. fonts: those of the caller's engine.
    void startThreads(int threads, std::shared_ptr<const FontCatalogue> fonts);
    [[nodiscard]] bool hasThreads() const { return m_team != nullptr; }

    /// Fills the counts of all pieces. tools: for the caller's thread. progress: called on that, with the
    /// number of code units that have been counted. Throws std::bad_alloc if one of the threads does.
    void count(const TextInColumn &text, const TextRules &rules, std::span<CountedPiece> pieces,
        const CountingTools &tools, const TextCounter::Progress &progress);

private:
    class Job;
    struct OwnTools;

    std::shared_ptr<const FontCatalogue> m_fonts;
    std::vector<std::unique_ptr<OwnTools>> m_tools; // of each thread; made by it, when first needed
    std::unique_ptr<ThreadTeam> m_team; // destroyed first
};
