// SPDX-License-Identifier: MIT
// ReaderPool starts the programs that read documents, and keeps one of them started and waiting, so that
// nobody waits for its start. What they read is left to SandboxedReader.
// Thread: any; has a thread of its own, on which every program is started, replaced and reaped.
#pragma once

#include "documents/loading/ReaderProcess.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

class ReaderPool {
public:
    /// program: its path. Nothing is started yet.
    explicit ReaderPool(QByteArray program);
    ReaderPool(const ReaderPool &) = delete;
    ReaderPool &operator=(const ReaderPool &) = delete;
    /// Kills the programs that wait, and waits for their end. Nobody may be waiting in take().
    ~ReaderPool();

    /// From now on, and after every retire(), a program waits. One that ends while it waits is replaced, but
    /// not if it has never been ready: it would not be ready the next time either. Returns at once.
    void keepOneWaiting();

    /// The program that waits, or a new one. Blocks until it is started.
    Result<ReaderProcess, DocumentError::Cause> take();
    /// Ends and reaps a program that was taken. Returns at once.
    void retire(ReaderProcess process);

private:
    void wake() const;
    [[nodiscard]] bool startThread();
    void run();
    [[nodiscard]] bool needsAnother() const;
    void startAnother(std::unique_lock<std::mutex> &lock);
    void dropEnded();
    void waitForWork() const;

    const QByteArray m_program;
    const OwnedDescriptor m_wakeUp; ///< an eventfd
    std::mutex m_mutex;
    std::condition_variable m_change;
    std::deque<ReaderProcess> m_waiting;
    std::vector<ReaderProcess> m_retired;
    int m_takers = 0; ///< in take() without a program
    bool m_keepsOneWaiting = false;
    std::optional<DocumentError::Cause> m_startFailure;
    quint64 m_failedStarts = 0;
    bool m_isEnding = false;
    std::thread m_thread;
    int m_watchedProcess = -1; ///< of the thread: the process file of the program that waits
};
