// SPDX-License-Identifier: MIT
// ProgressLine tells on standard error how far the work has come, once it takes over a second and where
// standard error is a terminal; otherwise it does nothing. Thread: its operations belong to one thread; it
// draws from a thread of its own.  Owner: a command.
#pragma once

#include <QByteArray>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

class ProgressLine {
public:
    explicit ProgressLine(qsizetype fileCount);
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;
    /// Wipes the line.
    ~ProgressLine();

    /// A file is being read now; index counts from 0.
    void startReading(const QByteArray &fileName, qsizetype index);
    /// It is read and being counted; length and positions in any unit.
    void startCounting(qsizetype length);
    void setPosition(qsizetype position) { m_position.store(position, std::memory_order_relaxed); }

    /// Wipes the line, so that other output can be printed; it comes back with the next change.
    void hide();

private:
    void drawUntilStopped();
    void draw();
    void wipe();

    const qsizetype m_fileCount;
    std::atomic<qsizetype> m_position = 0;

    std::mutex m_mutex; // guards all below
    std::condition_variable m_stop;
    bool m_isStopped = false;
    bool m_isShown = false;
    QByteArray m_fileName;
    qsizetype m_index = 0;
    qsizetype m_length = 0; ///< 0 while the file is being read
    std::thread m_thread;
};
