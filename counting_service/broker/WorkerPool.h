// SPDX-License-Identifier: MIT
// WorkerPool has documents counted: it queues them, gives each to a worker, and starts and replaces workers.
// Each document gets its counts or the cause of the failure exactly once, even if workers fail, unless it is
// dropped. One worker is kept for small documents, which never wait for large ones.
// Thread: main.  Owner: CountingService.
#pragma once

#include "counting_service/broker/WorkerProcess.h"
#include "platform/system/SealedMemory.h"

#include <QObject>

#include <map>
#include <memory>
#include <vector>

/// A document to count.
struct CountJob {
    using Outcome = Result<QBYWordCounterStats, CountFailure>;

    quint64 number; ///< unique; documents are counted in the order of their numbers
    DocumentKind kind;
    SealedMemory document;
    RulesSnapshot rules;
    std::function<void(const Outcome &)> answer; ///< called once
    QByteArray charset = {}; ///< as of ReadOptions
    int failures = 0; ///< workers that failed while counting it
    int interruptions = 0; ///< workers that were killed from outside while counting it
};

class WorkerPool : public QObject {
public:
    /// Workers that count large documents at the same time: one for each processor, up to this number. One
    /// more counts small documents.
    static constexpr int maxWorkers = 4;
    /// Bytes; a larger document is a large one. A text of this size takes a worker a fraction of a second.
    static constexpr qsizetype maxSmallSize = qsizetype{256} * 1024;
    /// A document is given up after this number of failures.
    static constexpr int maxFailures = 2;
    /// A document is also given up after this number of interruptions. A few are no fault of the document;
    /// many may mean that the system kills workers to free the memory that it takes.
    static constexpr int maxInterruptions = 5;
    /// After this number of workers in a row that end before their first count, all queued documents are
    /// given up, and no worker is started until the next document arrives.
    static constexpr int maxFailedStarts = 8;
    /// Bytes; a worker that has counted a larger document is replaced to release its memory.
    static constexpr qsizetype maxSizeWithoutReplacement = qsizetype{32} * 1024 * 1024;

    /// workers: how many may count large documents at the same time; 1 or more.
    WorkerPool(WorkerProgram program, int workers);
    ~WorkerPool() override;

    static int defaultWorkerCount();

    /// Replaces the workers that were started with another generation of fonts; busy ones finish first. A new
    /// generation also starts a worker if there is none.
    void setFontGeneration(quint64 generation);

    void add(CountJob job);
    /// The document gets no answer. A worker that is counting it is killed. Does nothing if the document has
    /// its answer.
    void drop(quint64 number);

    /// The workers that have not ended.
    [[nodiscard]] std::vector<pid_t> workers() const;

private:
    struct Place {
        std::unique_ptr<WorkerProcess> worker;
        quint64 fontGeneration;
        std::unique_ptr<CountJob> job{}; ///< null unless the worker is busy
    };

    using Queue = std::map<quint64, std::unique_ptr<CountJob>>; ///< by the numbers of the documents

    [[nodiscard]] size_t countOf(WorkerProcess::State state) const;
    [[nodiscard]] size_t busyWithLarge() const;
    void enqueue(std::unique_ptr<CountJob> job);
    /// That of the next document that a worker may count now; null if there is none.
    [[nodiscard]] Queue *nextQueue();
    [[nodiscard]] Place &placeOf(const WorkerProcess &worker);
    [[nodiscard]] WorkerProcess::Callbacks callbacks();

    void schedule();
    void dismissOutdatedWorkers();
    void assignJobs();
    [[nodiscard]] Place *placeFor(const CountJob &job);
    void startWorkers();
    [[nodiscard]] size_t wantedWorkers() const;
    void countFailedStart();

    void takeGreeting(const SandboxReport &sandbox);
    void takeAnswer(WorkerProcess &worker, const CountJob::Outcome &outcome);
    void replace(WorkerProcess &worker, WorkerEnd end);
    void retry(std::unique_ptr<CountJob> job, WorkerEnd end);

    const WorkerProgram m_program;
    const size_t m_maxLarge; ///< workers that count large documents at the same time
    const size_t m_maxBusy; ///< workers that count at the same time
    quint64 m_fontGeneration = 0;
    std::vector<Place> m_places;
    Queue m_small;
    Queue m_large;
    int m_failedStarts = 0; ///< in a row
    bool m_hasAnswered = false;
    std::optional<SandboxReport> m_sandbox; ///< of the last worker that greeted
};
