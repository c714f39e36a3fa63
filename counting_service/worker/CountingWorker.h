// SPDX-License-Identifier: MIT
// CountingWorker counts documents for the broker, one after the other, with the statistics model. It needs no
// preferences, no print server and no bus: everything that a count depends on comes with the request.
// Thread: main.  Owner: the worker's main().
#pragma once

#include "counting_service/protocol/WorkerMessages.h"
#include "platform/sandbox/Sandbox.h"
#include "text_statistics/WordCounterModel.h"

class CountingWorker {
public:
    /// The descriptor of the worker's end of the connection, open when the worker starts.
    static constexpr int socket = 3;

    CountingWorker();
    CountingWorker(const CountingWorker &) = delete;
    CountingWorker &operator=(const CountingWorker &) = delete;

    /// Looks up the fonts of the machine, and loads those that most texts need, or all.
    void loadFonts(FontAccess access);

    /// Sends the greeting, and serves until the broker closes the connection. Reads no document in an
    /// insufficient sandbox. Returns the exit status: 0, or 1 where the connection fails, a message is not a
    /// request, or memory runs out.
    int run(const SandboxReport &sandbox);

private:
    [[nodiscard]] WorkerReply replyTo(const WorkerRequest &request, int descriptor);
    [[nodiscard]] Result<QBYWordCounterStats, CountFailure> count(
        const WorkerRequest &request, int descriptor);

    CountingRules m_rules;
    WordCounterModel m_model;
    const int m_processors; ///< found out before the sandbox
    bool m_isConfined = false;
};
