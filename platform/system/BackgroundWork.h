// SPDX-License-Identifier: MIT
// BackgroundWork does one piece of work on a thread of its own, so that the windows do not wait for it.
// Thread: main; the work runs on its thread, and is destroyed there.  Owner: whoever wants the result. The
// process does not wait for the work when it exits.
#pragma once

#include "platform/system/DispatchQueue.h"
#include "platform/system/MainQueue.h"

#include <QEventLoop>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <stop_token>
#include <utility>

/// Is cancelled when it is destroyed: its stop token tells the work, and nobody receives the result.
template <typename Result>
class BackgroundWork {
public:
    /// How long the main thread may wait for work that is usually quick.
    static constexpr std::chrono::milliseconds maxWait{100};

    /// label: the name of the thread.
    BackgroundWork(const QString &label, std::function<Result(const std::stop_token &)> work)
        : m_queue(label)
    {
        const auto promise = std::make_shared<std::promise<Result>>();
        m_result = promise->get_future().share();
        m_queue.async(
            [promise, work = std::move(work), stop = m_stop.get_token()] { promise->set_value(work(stop)); });
    }
    BackgroundWork(BackgroundWork &&) noexcept = default;
    BackgroundWork &operator=(BackgroundWork &&) = delete;
    ~BackgroundWork() { cancel(); }

    void cancel() { m_stop.request_stop(); }

    /// Blocks for at most maxWait. Null if the work takes longer. Valid as long as this object.
    [[nodiscard]] const Result *quickResult() const
    {
        return m_result.wait_for(maxWait) == std::future_status::ready ? &m_result.get() : nullptr;
    }

    /// Blocks for at most maxWait, then runs the event loop. Null if it is cancelled, or the application
    /// quits, before the work is done. Valid as long as this object.
    [[nodiscard]] const Result *resultWhileEventsRun()
    {
        if (const Result *const result = quickResult())
            return result;
        // On the heap: the application may quit before the work is done.
        const auto loop = std::make_shared<QEventLoop>();
        callWhenDone([loop] { loop->quit(); });
        loop->exec();
        const bool isDone = m_result.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        return isDone && !m_stop.stop_requested() ? &m_result.get() : nullptr;
    }

    /// Later, from the event loop, calls the receiver with the result.
    void passResultTo(std::function<void(const Result &)> receiver)
    {
        callWhenDone([result = m_result, stop = m_stop.get_token(), receiver = std::move(receiver)] {
            if (!stop.stop_requested())
                receiver(result.get());
        });
    }

private:
    void callWhenDone(std::function<void()> receiver)
    {
        // The queue's thread may release the last reference to what the receiver owns.
        const auto held = releaseOnMainThread(std::move(receiver));
        m_queue.async([held] { MainQueue::async([held] { (*held)(); }); });
    }

    DispatchQueue m_queue;
    std::stop_source m_stop;
    std::shared_future<Result> m_result;
};
