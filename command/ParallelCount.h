// SPDX-License-Identifier: MIT
// ParallelCount counts many files on several threads and returns the counts in the order of the files.
// Thread: one, main.  Owner: the count command.
#pragma once

#include "command/CountColumn.h"
#include "command/ProgressLine.h"
#include "platform/system/Result.h"

#include <QByteArrayList>
#include <QString>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

/// Each thread has one file in memory. Threads are at most maxAhead files ahead of what has been returned.
class ParallelCount {
public:
    static constexpr qsizetype maxAhead = 1024;

    using Outcome = Result<FileCounts, QString>;

    /// How far the count of one file is, in UTF-16 code units; the length is 0 while it is read.
    struct Position {
        std::atomic<qsizetype> length = 0;
        std::atomic<qsizetype> position = 0;
    };

    /// Counts one file on the thread that has made it; must not throw.
    using CountFile = std::function<Outcome(const QByteArray &name, Position &position)>;

    /// makeCounter: called once on each thread.
    ParallelCount(QByteArrayList names, int threads, std::function<CountFile()> makeCounter);
    ParallelCount(const ParallelCount &) = delete;
    ParallelCount &operator=(const ParallelCount &) = delete;
    /// Waits for the files that are being counted; the others are not counted.
    ~ParallelCount();

    /// The counts of the next file, or why it could not be counted. Blocks until then, and shows how far it
    /// is. To be called once for each file.
    Outcome next(ProgressLine &progress);

private:
    struct Task {
        Position position;
        std::optional<Outcome> outcome;
    };

    void countFiles();
    /// The index of the next file to count, and its task; null once there is none.
    std::pair<qsizetype, std::shared_ptr<Task>> takeTask();
    std::shared_ptr<Task> &taskAt(qsizetype index);

    const QByteArrayList m_names;
    const std::function<CountFile()> m_makeCounter;
    CountFile m_countHere; ///< made if no thread could be started

    std::mutex m_mutex; ///< guards all below
    std::condition_variable m_changed;
    std::map<qsizetype, std::shared_ptr<Task>> m_tasks; ///< taken or awaited, and not yet returned
    qsizetype m_taken = 0;
    qsizetype m_returned = 0;
    bool m_isStopped = false;
    std::vector<std::thread> m_threads;
};
