// SPDX-License-Identifier: MIT
// ProgressLine shows the progress of a command on standard error, if that is a terminal that can erase a line
// and the work takes longer than a second. Ctrl+C erases the line too.
// Thread: one; draws on a thread of its own.  Owner: a command.
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
    /// Erases the line.
    ~ProgressLine();

    /// A file is being read; index: from 0.
    void startReading(const QByteArray &fileName, qsizetype index);
    /// The file has been read and is being counted; length and positions in the same unit.
    void startCounting(qsizetype length);
    void setPosition(qsizetype position) { m_position.store(position, std::memory_order_relaxed); }

    /// Erases the line, so that other output can be printed; it reappears when it is next drawn.
    void hide();

private:
    void drawUntilStopped();
    void draw();
    void erase();

    const qsizetype m_fileCount;
    std::atomic<qsizetype> m_position = 0;

    std::mutex m_mutex; ///< guards all below
    std::condition_variable m_stop;
    bool m_isStopped = false;
    bool m_hasPrompted = false; ///< the user knows that they can type
    QByteArray m_fileName;
    qsizetype m_index = 0;
    qsizetype m_length = 0; ///< 0 while the file is being read
    std::thread m_thread;
};
