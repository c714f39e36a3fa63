// SPDX-License-Identifier: MIT
// CountingWorker counts documents for the broker, one after the other, with the statistics model. It needs no
// preferences, no print server and no bus: everything that a count depends on comes with the request.
// Thread: main.  Owner: the worker's main().
#pragma once

#include "counting_service/protocol/WorkerMessages.h"
#include "counting_service/worker/CountMemory.h"
#include "platform/sandbox/Sandbox.h"
#include "text_statistics/WordCounterModel.h"

class CountingWorker {
public:
    /// The descriptor of the worker's end of the connection, open when the worker starts.
    static constexpr int socket = 3;

    CountingWorker();
    CountingWorker(const CountingWorker &) = delete;
    CountingWorker &operator=(const CountingWorker &) = delete;

    /// Loads the fonts, sends the greeting, and serves until the broker closes the connection. Returns the
    /// exit status: 0, or 1 where the connection fails, a message is not a request, or memory runs out.
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
