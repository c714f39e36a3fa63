// SPDX-License-Identifier: MIT
#include "command/ParallelCount.h"

#include <chrono>
#include <system_error>
#include <utility>

ParallelCount::ParallelCount(QByteArrayList names, int threads, std::function<CountFile()> makeCounter)
    : m_names(std::move(names))
    , m_makeCounter(std::move(makeCounter))
{
    try {
        for (int i = 0; i < threads; ++i)
            m_threads.emplace_back([this] { countFiles(); });
    } catch (const std::system_error &) { // the threads that were started do it all
    }
    if (m_threads.empty())
        m_countHere = m_makeCounter();
}

ParallelCount::~ParallelCount()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopped = true;
    }
    m_changed.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
}

std::shared_ptr<ParallelCount::Task> &ParallelCount::taskAt(qsizetype index)
{
    std::shared_ptr<Task> &task = m_tasks[index];
    if (!task)
        task = std::make_shared<Task>();
    return task;
}

std::pair<qsizetype, std::shared_ptr<ParallelCount::Task>> ParallelCount::takeTask()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(
        lock, [this] { return m_isStopped || m_taken == m_names.size() || m_taken < m_returned + maxAhead; });
    if (m_isStopped || m_taken == m_names.size())
        return {};
    const qsizetype index = m_taken++;
    return {index, taskAt(index)};
}

void ParallelCount::countFiles()
{
    const CountFile count = m_makeCounter();
    for (;;) {
        const auto [index, task] = takeTask();
        if (!task)
            return;
        Outcome outcome = count(m_names[index], task->position);
        {
            const std::lock_guard lock(m_mutex);
            task->outcome = std::move(outcome);
        }
        m_changed.notify_all();
    }
}

ParallelCount::Outcome ParallelCount::next(ProgressLine &progress)
{
    std::unique_lock lock(m_mutex);
    const qsizetype index = m_returned;
    const std::shared_ptr<Task> task = taskAt(index);
    if (m_countHere)
        task->outcome = m_countHere(m_names[index], task->position);
    constexpr std::chrono::milliseconds interval{100};
    while (!m_changed.wait_for(lock, interval, [&] { return task->outcome.has_value(); })) {
        progress.startCounting(task->position.length);
        progress.setPosition(task->position.position);
    }
    m_tasks.erase(index);
    ++m_returned;
    lock.unlock();
    m_changed.notify_all();
    return *task->outcome;
}
