// SPDX-License-Identifier: MIT
// WorkerPool gets documents counted: it keeps them in a queue, hands each to a worker, starts workers and
// replaces them. Every document gets its counts or the cause of why it has none, once, whatever becomes of
// the workers.
// Thread: main.  Owner: CountingService.
#pragma once

#include "counting_service/broker/WorkerProcess.h"
#include "platform/system/SealedMemory.h"

#include <QObject>

#include <deque>
#include <memory>
#include <vector>

/// A document that waits for its counts.
struct CountJob {
    using Outcome = Result<QBYWordCounterStats, CountFailure>;

    DocumentKind kind;
    SealedMemory document;
    RulesSnapshot rules;
    std::function<void(const Outcome &)> answer; ///< called once
    int failures = 0; ///< workers that ended over it
    int interruptions = 0; ///< workers that were killed from outside meanwhile
};

class WorkerPool : public QObject {
public:
    /// Workers that count at the same time: one for each processor, but no more than these.
    static constexpr int mostWorkers = 4;
    /// A document is given up when so many workers have ended over it.
    static constexpr int mostFailures = 2;
    /// Or have been killed from outside, which says nothing about it but may be the system's way to get back
    /// the memory that it takes.
    static constexpr int mostInterruptions = 5;
    /// When so many workers in a row have ended before they counted anything, all that wait are given up, and
    /// no worker is started until the next document comes.
    static constexpr int mostFailedStarts = 8;
    /// Bytes; a worker that has counted a larger document is replaced, which gives its memory back.
    static constexpr qsizetype largestWithoutReplacement = 32 * 1024 * 1024;

    /// workers: how many count at the same time, 1 or more.
    WorkerPool(WorkerProgram program, int workers);
    ~WorkerPool() override;

    static int workersOfThisMachine();

    /// Makes sure that a worker is getting ready.
    void warmUp() { arrange(); }

    /// A worker that was started under another generation of fonts counts nothing more.
    void setFontGeneration(quint64 generation);

    void add(CountJob job);

    /// In the queue and with workers.
    [[nodiscard]] size_t jobCount() const;
    /// Those that have not ended.
    [[nodiscard]] std::vector<pid_t> workers() const;

private:
    struct Place {
        std::unique_ptr<WorkerProcess> worker;
        quint64 fontGeneration;
        std::unique_ptr<CountJob> job{}; ///< null while it counts nothing
    };

    [[nodiscard]] size_t countOf(WorkerProcess::State state) const;
    [[nodiscard]] Place &placeOf(const WorkerProcess &worker);
    [[nodiscard]] WorkerProcess::Callbacks callbacks();

    void arrange();
    void dismissOutdatedWorkers();
    void handOutJobs();
    [[nodiscard]] Place *placeFor(const CountJob &job);
    void startWorkers();
    [[nodiscard]] size_t wantedWorkers() const;
    void noteFailedStart();

    void welcome(const SandboxReport &sandbox);
    void takeAnswer(WorkerProcess &worker, const CountJob::Outcome &outcome);
    void replace(WorkerProcess &worker, WorkerEnd end);
    void tryAgain(std::unique_ptr<CountJob> job, WorkerEnd end);

    const WorkerProgram m_program;
    const size_t m_mostBusy;
    quint64 m_fontGeneration = 0;
    std::vector<Place> m_places;
    std::deque<std::unique_ptr<CountJob>> m_queue;
    int m_failedStarts = 0; ///< in a row
    bool m_hasAnswered = false;
    std::optional<SandboxReport> m_sandbox; ///< of the last worker that greeted
};
