// SPDX-License-Identifier: MIT
#include "platform/system/DispatchQueue.h"

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include <pthread.h>

struct DispatchQueue::Work {
    QByteArray threadName;
    std::mutex mutex;
    std::deque<std::function<void()>> blocks;
    bool isRunning = false;
};

DispatchQueue::DispatchQueue(const QString &label)
    : m_work(std::make_shared<Work>())
{
    constexpr qsizetype maxNameLength = 15; // bytes; see pthread_setname_np(3)
    m_work->threadName = label.toUtf8().left(maxNameLength);
}

void DispatchQueue::async(std::function<void()> block)
{
    {
        const std::lock_guard guard(m_work->mutex);
        m_work->blocks.push_back(std::move(block));
        if (std::exchange(m_work->isRunning, true))
            return;
    }
    try {
        std::thread(runOnThread, m_work).detach();
    } catch (const std::system_error &) {
        runBlocks(*m_work); // no thread is available
    }
}

void DispatchQueue::runOnThread(const std::shared_ptr<Work> &work)
{
    pthread_setname_np(pthread_self(), work->threadName.constData());
    runBlocks(*work);
}

void DispatchQueue::runBlocks(Work &work)
{
    std::unique_lock lock(work.mutex);
    while (!work.blocks.empty()) {
        auto block = std::move(work.blocks.front());
        work.blocks.pop_front();
        lock.unlock();
        block();
        block = nullptr;
        lock.lock();
    }
    work.isRunning = false;
}

void exitDespiteQueues(int status)
{
    std::fflush(nullptr);
    std::quick_exit(status);
}
