// SPDX-License-Identifier: MIT
#include "platform/system/ThreadTeam.h"

#include <system_error>
#include <utility>

ThreadTeam::ThreadTeam(int threads)
{
    std::unique_lock lock(m_mutex);
    try {
        for (int thread = 0; thread < threads; ++thread) {
            m_threads.emplace_back([this, thread] { runThread(thread); });
            ++m_busy;
        }
    } catch (const std::system_error &) { // those that were started do
    }
    m_changed.wait(lock, [this] { return m_busy == 0; });
}

ThreadTeam::~ThreadTeam()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
}

void ThreadTeam::start(Work work)
{
    {
        const std::lock_guard lock(m_mutex);
        m_work = std::move(work);
        m_busy = size();
        ++m_started;
    }
    m_changed.notify_all();
}

bool ThreadTeam::waitFor(std::chrono::milliseconds time)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, time, [this] { return m_busy == 0; });
}

void ThreadTeam::runThread(int thread)
{
    std::unique_lock lock(m_mutex);
    for (quint64 done = 0;; ++done) {
        if (--m_busy == 0)
            m_changed.notify_all();
        m_changed.wait(lock, [&] { return m_isEnding || m_started > done; });
        if (m_started == done)
            return;
        lock.unlock();
        m_work(thread); // does not change until all have finished
        lock.lock();
    }
}
