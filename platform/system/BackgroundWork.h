// SPDX-License-Identifier: MIT
// BackgroundWork does one piece of work on a thread of its own, so that the windows do not wait for it.
// Thread: main; the work runs on its thread, and is destroyed there.  Owner: whoever wants the result; need
// not outlive the work. The process does not wait for the work when it exits.
#pragma once

#include "platform/system/DispatchQueue.h"
#include "platform/system/MainQueue.h"

#include <QEventLoop>

#include <chrono>
#include <functional>
#include <future>
#include <memory>

template <typename Result>
class BackgroundWork {
public:
    /// How long the main thread may wait for work that is usually quick.
    static constexpr std::chrono::milliseconds maxWait{100};

    /// label: the name of the thread.
    BackgroundWork(const QString &label, std::function<Result()> work)
        : m_queue(label)
    {
        const auto promise = std::make_shared<std::promise<Result>>();
        m_result = promise->get_future().share();
        m_queue.async([promise, work = std::move(work)] { promise->set_value(work()); });
    }

    /// Blocks for at most maxWait. Null if the work takes longer. Valid as long as this object.
    [[nodiscard]] const Result *quickResult() const
    {
        return m_result.wait_for(maxWait) == std::future_status::ready ? &m_result.get() : nullptr;
    }

    /// Blocks for at most maxWait, then runs the event loop. Null if the application quits before the work is
    /// done. Valid as long as this object.
    [[nodiscard]] const Result *resultWhileEventsRun()
    {
        if (const Result *const result = quickResult())
            return result;
        // On the heap: the application may quit before the work is done.
        const auto loop = std::make_shared<QEventLoop>();
        passResultTo([loop](const Result &) { loop->quit(); });
        loop->exec();
        const bool isDone = m_result.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        return isDone ? &m_result.get() : nullptr;
    }

    /// Later, from the event loop, calls the receiver with the result.
    void passResultTo(std::function<void(const Result &)> receiver)
    {
        // The queue's thread may release the last reference to what the receiver owns.
        const auto held = releaseOnMainThread(std::move(receiver));
        m_queue.async(
            [result = m_result, held] { MainQueue::async([result, held] { (*held)(result.get()); }); });
    }

private:
    DispatchQueue m_queue;
    std::shared_future<Result> m_result;
};
