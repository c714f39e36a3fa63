// SPDX-License-Identifier: MIT
// ThreadTeam does one piece of work on several threads at once. They wait for it from the start, so that a
// process can confine them together with itself. Dividing the work is left to the work.
// Thread: one at a time.  Owner: the code that has the work.
#pragma once

#include <QtGlobal>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

class ThreadTeam {
public:
    /// Returns when they wait: a thread that is still being started makes system calls that a filter may
    /// refuse. threads: besides the caller's. There are fewer if the system refuses some.
    explicit ThreadTeam(int threads);
    ThreadTeam(const ThreadTeam &) = delete;
    ThreadTeam &operator=(const ThreadTeam &) = delete;
    /// Waits for the work that was started.
    ~ThreadTeam();

    [[nodiscard]] int size() const { return static_cast<int>(m_threads.size()); }

    /// thread: 0 to size() - 1. Must not throw.
    using Work = std::function<void(int thread)>;

    /// Every thread does the work once. To be called again only after all have finished.
    void start(Work work);
    /// Whether all have finished; waits for it that long.
    bool waitFor(std::chrono::milliseconds time);

private:
    void runThread(int thread);

    std::mutex m_mutex; // guards all below but m_threads
    std::condition_variable m_changed;
    Work m_work;
    quint64 m_started = 0; // pieces of work
    int m_busy = 0;
    bool m_isEnding = false;
    std::vector<std::thread> m_threads;
};
