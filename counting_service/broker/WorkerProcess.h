// SPDX-License-Identifier: MIT
// WorkerProcess is one worker as the broker sees it: a child that is started, greets, counts one document at
// a time, and ends, by itself or because it is ended. What to do then is WorkerPool's to decide. The broker
// believes a worker nothing but the numbers that it asked for.
// Thread: main, which must be the thread that started the process.  Owner: WorkerPool.
#pragma once

#include "counting_service/protocol/PacketSocket.h"
#include "counting_service/protocol/WorkerMessages.h"

#include <QByteArrayList>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/// The program that workers are, and how long they may take.
struct WorkerProgram {
    QByteArray path;
    QByteArrayList arguments; ///< without the program's name
    std::chrono::milliseconds startLimit = std::chrono::minutes(1); ///< from the start to the greeting
    std::chrono::milliseconds countLimit = std::chrono::seconds(5); ///< of an empty document
    std::chrono::milliseconds countLimitPerMebibyte = std::chrono::seconds(30); ///< for each of a document's

    /// length: of a document, in bytes.
    [[nodiscard]] std::chrono::milliseconds countLimitFor(quint64 length) const;
};

/// Why a worker is no more.
enum class WorkerEnd {
    Dismissed, ///< it was not needed any more
    KilledFromOutside, ///< by a signal that says nothing about what it was doing
    Crashed,
    Left, ///< by itself
    TooSlow,
    SpokeNonsense,
    OutOfMemory, ///< as it said itself
};

/// In English, to stand behind "A worker ".
QString causeText(WorkerEnd end);

class WorkerProcess : public QObject {
public:
    enum class State { Starting, Idle, Busy, Ending };

    struct Callbacks {
        std::function<void(WorkerProcess &, const SandboxReport &)> ready; ///< Starting became Idle
        std::function<void(WorkerProcess &, const Result<QBYWordCounterStats, CountFailure> &)>
            answered; ///< Busy became Idle
        std::function<void(WorkerProcess &, WorkerEnd)>
            ended; ///< the last word; it may be deleted later then
    };

    /// Null, with a line in the log, where the system cannot start it.
    static std::unique_ptr<WorkerProcess> start(const WorkerProgram &program, Callbacks callbacks);
    /// Kills it and waits for its end, where it has not come yet.
    ~WorkerProcess() override;

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool hasWorked() const { return m_requests > 0; }
    [[nodiscard]] pid_t processIdentifier() const { return m_process; }

    /// Only while Idle. The descriptor stays the caller's. False where the worker is no more; ended()
    /// follows.
    [[nodiscard]] bool count(DocumentKind kind, quint64 length, const RulesSnapshot &rules, int descriptor);

    /// Ends it now, whatever it does; ended() follows.
    void end(WorkerEnd reason);

private:
    WorkerProcess(WorkerProgram program, Callbacks callbacks, pid_t process, OwnedDescriptor processFile,
        OwnedDescriptor socket);

    void limitResources(quint64 length, std::chrono::milliseconds time) const;
    void readPackets();
    void take(const QByteArray &message);
    void collect();

    const WorkerProgram m_program;
    const Callbacks m_callbacks;
    pid_t m_process; ///< 0 once it is collected
    OwnedDescriptor m_processFile;
    OwnedDescriptor m_socket;
    QSocketNotifier m_processNotifier;
    QSocketNotifier m_socketNotifier;
    QTimer m_timer;
    State m_state = State::Starting;
    quint64 m_requests = 0;
    std::optional<WorkerEnd> m_reason; ///< why we ended it
};
