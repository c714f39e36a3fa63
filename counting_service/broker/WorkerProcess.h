// SPDX-License-Identifier: MIT
// WorkerProcess is one worker as the broker sees it: a child process that starts, greets, counts one document
// at a time, and ends by itself or is ended. WorkerPool decides what happens next. The broker trusts nothing
// that a worker sends but the counts that it asked for.
// Thread: main, which must be the thread that started the process.  Owner: WorkerPool.
#pragma once

#include "counting_service/protocol/WorkerMessages.h"
#include "documents/ReadingTime.h"
#include "platform/system/PacketSocket.h"

#include <QByteArrayList>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/// The program of the workers, and their timeouts.
struct WorkerProgram {
    QByteArray path;
    QByteArrayList arguments; ///< without the program's name
    std::chrono::milliseconds startTimeout = std::chrono::minutes(1); ///< from the start to the greeting
    std::chrono::milliseconds baseTimeout = std::chrono::seconds(5); ///< for an empty document
    std::chrono::milliseconds timeoutPerMebibyte = std::chrono::seconds(30); ///< in addition
    /// Of the processor; counting what was read is limited by the timeout alone.
    std::function<std::chrono::seconds(DocumentKind kind, qsizetype length)> readingTime = maxReadingTime;

    /// length: of a document, in bytes.
    [[nodiscard]] std::chrono::milliseconds timeoutFor(quint64 length) const;
};

/// Why a worker has ended.
enum class WorkerEnd {
    Dismissed, ///< no longer needed
    KilledFromOutside, ///< by a signal that says nothing about its work
    Crashed,
    Exited, ///< by itself
    TimedOut,
    OutOfProcessorTime,
    SentGarbage,
    OutOfMemory, ///< as reported by the worker
};

/// In English, for use after "A worker ".
QString causeText(WorkerEnd end);

class WorkerProcess : public QObject {
public:
    enum class State { Starting, Idle, Busy, Ending };

    struct Callbacks {
        std::function<void(WorkerProcess &, const SandboxReport &)> onReady; ///< Starting became Idle
        std::function<void(WorkerProcess &, const Result<QBYWordCounterStats, CountFailure> &)>
            onAnswer; ///< Busy became Idle
        std::function<void(WorkerProcess &, WorkerEnd)> onEnd; ///< called last; may only use deleteLater()
    };

    /// Null, with a line in the log, if the process cannot be started.
    static std::unique_ptr<WorkerProcess> start(const WorkerProgram &program, Callbacks callbacks);
    /// Kills the process and waits for it, unless it has ended.
    ~WorkerProcess() override;

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool hasCounted() const { return m_requests > 0; }
    [[nodiscard]] pid_t processIdentifier() const { return m_process; }

    /// Only while Idle. The number of the request is chosen here. Does not take over the descriptor. False if
    /// the worker has just ended; onEnd() follows.
    [[nodiscard]] bool count(WorkerRequest request, int descriptor);

    /// Kills the process; onEnd() follows.
    void end(WorkerEnd reason);

private:
    WorkerProcess(WorkerProgram program, Callbacks callbacks, pid_t process, OwnedDescriptor processFile,
        OwnedDescriptor socket);

    void limitMemory(quint64 length) const;
    void limitProcessorTime(std::chrono::milliseconds time) const;
    void readPackets();
    void takeMessage(const QByteArray &message);
    void reap();

    const WorkerProgram m_program;
    const Callbacks m_callbacks;
    pid_t m_process; ///< 0 once it has been reaped
    OwnedDescriptor m_processFile;
    OwnedDescriptor m_socket;
    QSocketNotifier m_processNotifier;
    QSocketNotifier m_socketNotifier;
    QTimer m_timer;
    State m_state = State::Starting;
    quint64 m_requests = 0;
    bool m_isReading = false; ///< the document, to count it then
    std::optional<WorkerEnd> m_reason; ///< why we ended it
};
