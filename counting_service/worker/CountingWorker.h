// SPDX-License-Identifier: MIT
// CountingWorker counts the documents that the broker hands it, one after the other, through the statistics
// model. It needs no preferences, no print server and no bus: all that a count rests on comes with the
// request. Thread: main.  Owner: the worker's main().
#pragma once

#include "counting_service/protocol/WorkerMessages.h"
#include "counting_service/worker/CountMemory.h"
#include "platform/sandbox/Sandbox.h"
#include "text_statistics/WordCounterModel.h"

class CountingWorker {
public:
    /// The descriptor of the worker's end of its connection, from its start on.
    static constexpr int socket = 3;

    CountingWorker();
    CountingWorker(const CountingWorker &) = delete;
    CountingWorker &operator=(const CountingWorker &) = delete;

    /// Loads the fonts, greets, and serves until the broker is gone. Returns the exit status: 0, or 1 where
    /// the connection is not what it should be or the memory is exhausted.
    int run(const SandboxReport &sandbox);

private:
    void loadFonts();
    [[nodiscard]] WorkerReply replyTo(const WorkerRequest &request, int descriptor);
    [[nodiscard]] Result<QBYWordCounterStats, CountFailure> count(
        const WorkerRequest &request, int descriptor);

    CountingRules m_rules;
    WordCounterModel m_model;
    CountMemory m_memory;
};
