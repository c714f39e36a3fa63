// SPDX-License-Identifier: MIT
#include "documents/loading/ReaderPool.h"

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <system_error>
#include <utility>

using Cause = DocumentError::Cause;

ReaderPool::ReaderPool(QByteArray program)
    : m_program(std::move(program))
    , m_wakeUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

ReaderPool::~ReaderPool()
{
    {
        const std::lock_guard guard(m_mutex);
        m_isEnding = true;
    }
    wake();
    if (m_thread.joinable())
        m_thread.join();
}

void ReaderPool::wake() const
{
    const quint64 one = 1;
    (void)!::write(m_wakeUp.get(), &one, sizeof one);
}

/// Only with the mutex. False if the system has no thread left.
bool ReaderPool::startThread()
{
    try {
        if (!m_thread.joinable())
            m_thread = std::thread([this] { run(); });
    } catch (const std::system_error &) {
        return false;
    }
    return m_wakeUp.get() >= 0;
}

void ReaderPool::keepOneWaiting()
{
    const std::lock_guard guard(m_mutex);
    m_keepsOneWaiting = true;
    if (startThread())
        wake();
}

Result<ReaderProcess, Cause> ReaderPool::take()
{
    std::unique_lock lock(m_mutex);
    dropEnded();
    if (m_waiting.empty()) {
        if (!startThread())
            return Cause::NotEnoughMemory;
        ++m_takers;
        wake();
        const quint64 failedBefore = m_failedStarts;
        m_change.wait(lock, [&] { return !m_waiting.empty() || m_failedStarts != failedBefore; });
        --m_takers;
    }
    if (m_waiting.empty())
        return m_startFailure.value_or(Cause::NoReader);
    ReaderProcess process = std::move(m_waiting.front());
    m_waiting.pop_front();
    return process;
}

void ReaderPool::retire(ReaderProcess process)
{
    {
        const std::lock_guard guard(m_mutex);
        m_retired.push_back(std::move(process));
        m_keepsOneWaiting = true;
    }
    wake();
}

/// Only with the mutex. Leaves programs to those who wait for one, even if they have ended: otherwise one
/// that ends at once would be started again and again.
void ReaderPool::dropEnded()
{
    if (m_takers > 0)
        return;
    for (size_t i = m_waiting.size(); i-- > 0;) {
        if (!m_waiting[i].hasEnded())
            continue;
        m_keepsOneWaiting = m_waiting[i].receiveGreeting();
        m_retired.push_back(std::move(m_waiting[i]));
        m_waiting.erase(m_waiting.begin() + static_cast<std::ptrdiff_t>(i));
    }
}

bool ReaderPool::needsAnother() const
{
    const auto wanted = static_cast<size_t>(m_takers) + (m_keepsOneWaiting ? 1 : 0);
    return m_waiting.size() < wanted;
}

void ReaderPool::startAnother(std::unique_lock<std::mutex> &lock)
{
    lock.unlock();
    Result<ReaderProcess, Cause> process = ReaderProcess::start(m_program);
    lock.lock();
    if (process) {
        m_waiting.push_back(std::move(process).value());
    } else {
        m_startFailure = process.error();
        ++m_failedStarts;
        m_keepsOneWaiting = false; // until it is needed again
    }
    m_change.notify_all();
}

/// Until someone wakes the thread, or the program that waits ends.
void ReaderPool::waitForWork() const
{
    std::array<pollfd, 2> requests{pollfd{m_wakeUp.get(), POLLIN, 0}, pollfd{m_watchedProcess, POLLIN, 0}};
    ::poll(requests.data(), requests.size(), -1);
    quint64 count = 0;
    (void)!::read(m_wakeUp.get(), &count, sizeof count);
}

void ReaderPool::run()
{
    pthread_setname_np(pthread_self(), "reader pool");
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        dropEnded();
        const quint64 failedBefore = m_failedStarts;
        while (needsAnother() && m_failedStarts == failedBefore && !m_isEnding)
            startAnother(lock);
        std::vector<ReaderProcess> retired = std::exchange(m_retired, {});
        m_watchedProcess = m_waiting.empty() ? -1 : m_waiting.front().processFile();
        lock.unlock();
        retired.clear(); // kills and reaps them
        waitForWork();
        lock.lock();
    }
}
