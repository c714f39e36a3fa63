// SPDX-License-Identifier: MIT
#include "text_statistics/PieceCounters.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <numeric>
#include <utility>

namespace {

// UTF-16 code units; a longer piece reports its progress.
constexpr qsizetype maxQuietLength = qsizetype{1} << 17;

} // namespace

struct PieceCounters::OwnTools {
    explicit OwnTools(std::shared_ptr<const FontCatalogue> fonts)
        : engine(std::move(fonts))
    {
    }

    TextCounter counter;
    LayoutEngine engine;
};

/// The passes over all pieces: one that counts the text of a piece, and one that lays it out. Each thread
/// takes the next one.
class PieceCounters::Job {
public:
    using Tick = std::function<void()>;

    Job(const TextInColumn &text, TextRules rules, std::span<CountedPiece> pieces)
        : m_text(text)
        , m_rules(std::move(rules))
        , m_pieces(pieces)
        , m_order(pieces.size())
        , m_lines(pieces.size())
    {
        // The longest first, so that the threads finish at about the same time.
        std::iota(m_order.begin(), m_order.end(), size_t{0});
        std::sort(m_order.begin(), m_order.end(), [&](size_t left, size_t right) {
            return std::pair(lengthOf(m_pieces[right]), left) < std::pair(lengthOf(m_pieces[left]), right);
        });
        m_rules.fixLocale();
    }

    /// Does passes until there is no other. tick: called when counted() has changed.
    void work(const CountingTools &tools, const Tick &tick)
    {
        for (size_t pass = m_next++; pass < m_order.size() * 2 && !m_hasFailed; pass = m_next++) {
            const size_t index = m_order[pass / 2];
            if (pass % 2 == 0)
                layOut(index, tools.engine, tick);
            else
                countText(m_pieces[index], tools.counter, tick);
        }
    }

    void fail() { m_hasFailed = true; }
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

    /// Code units.
    [[nodiscard]] qsizetype counted() const { return m_passed / 2; }

    /// To be called when all threads have finished.
    void finish()
    {
        for (size_t i = 0; i < m_pieces.size(); ++i)
            m_pieces[i].counts.numberOfLines = m_lines[i];
    }

private:
    static qsizetype lengthOf(const CountedPiece &piece) { return piece.end - piece.start; }

    // Calls pass(progress), where progress takes the length that has been passed, or is null.
    template <typename Pass>
    void report(const CountedPiece &piece, const Tick &tick, Pass &&pass)
    {
        qsizetype reported = 0;
        const auto advanceTo = [&](qsizetype length) {
            m_passed += length - std::exchange(reported, length);
            tick();
        };
        pass(lengthOf(piece) > maxQuietLength ? TextCounter::Progress(advanceTo) : nullptr);
        advanceTo(lengthOf(piece));
    }

    void countText(CountedPiece &piece, TextCounter &counter, const Tick &tick)
    {
        const QStringView text = QStringView(m_text.text.string()).sliced(piece.start, lengthOf(piece));
        report(piece, tick, [&](const TextCounter::Progress &progress) {
            piece.counts = counter.count(text, m_rules, progress);
        });
    }

    void layOut(size_t index, LayoutEngine &engine, const Tick &tick)
    {
        const CountedPiece &piece = m_pieces[index];
        report(piece, tick, [&](const TextCounter::Progress &progress) {
            const auto relative = [&](qsizetype position) { progress(position - piece.start); };
            m_lines[index] = engine.countLines(m_text.text, m_text.columnWidth, piece.start, piece.end,
                progress ? LayoutEngine::Progress(relative) : nullptr);
        });
    }

    const TextInColumn m_text;
    TextRules m_rules;
    const std::span<CountedPiece> m_pieces;
    std::vector<size_t> m_order;
    std::vector<quint64> m_lines;
    std::atomic<size_t> m_next = 0;
    std::atomic<qsizetype> m_passed = 0; // code units, by both passes
    std::atomic<bool> m_hasFailed = false;
};

PieceCounters::PieceCounters() = default;
PieceCounters::~PieceCounters() = default;

void PieceCounters::startThreads(int threads, std::shared_ptr<const FontCatalogue> fonts)
{
    if (threads <= 1 || m_team)
        return;
    m_fonts = std::move(fonts);
    m_team = std::make_unique<ThreadTeam>(std::min(threads, maxThreads) - 1);
    m_tools.resize(static_cast<size_t>(m_team->size()));
}

void PieceCounters::count(const TextInColumn &text, const TextRules &rules, std::span<CountedPiece> pieces,
    const CountingTools &tools, const TextCounter::Progress &progress)
{
    const qsizetype length = std::accumulate(pieces.begin(), pieces.end(), qsizetype{0},
        [](qsizetype sum, const CountedPiece &piece) { return sum + piece.end - piece.start; });
    Job job(text, rules, pieces);
    const auto workWith = [&job](auto &&makeTools, const Job::Tick &tick) {
        try {
            job.work(makeTools(), tick);
        } catch (const std::bad_alloc &) {
            job.fail();
        }
    };
    const auto reportProgress = [&] {
        if (progress)
            progress(job.counted());
    };
    const bool isLong = m_team && length >= minLengthForThreads;
    if (isLong) {
        m_team->start([&](int thread) {
            std::unique_ptr<OwnTools> &own = m_tools[static_cast<size_t>(thread)];
            const auto makeTools = [&] {
                if (!own)
                    own = std::make_unique<OwnTools>(m_fonts);
                return CountingTools{own->counter, own->engine};
            };
            workWith(makeTools, [] {});
        });
    }
    workWith([&] { return tools; }, reportProgress);
    constexpr std::chrono::milliseconds interval{50};
    while (isLong && !m_team->waitFor(interval))
        reportProgress();
    if (job.hasFailed())
        throw std::bad_alloc();
    job.finish();
    reportProgress();
}
