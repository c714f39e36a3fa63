// SPDX-License-Identifier: MIT
// MainQueue runs blocks on the main thread, one after another, from its event loop.
// Thread: any.  Owner: the process.
#pragma once

#include <functional>
#include <memory>
#include <utility>

class MainQueue {
public:
    /// Returns at once, on the main thread too. Blocks run, and are destroyed, on the main thread in the
    /// order of their submission. Blocks submitted after the end of the QCoreApplication, or still waiting at
    /// its end, are destroyed without running.
    static void async(std::function<void()> block);

    static bool isCurrent();
};

/// Shares a value that is destroyed on the main thread, on whichever thread the last reference is dropped.
template <typename Value>
std::shared_ptr<Value> releaseOnMainThread(Value value)
{
    return {new Value(std::move(value)), [](Value *released) {
                if (MainQueue::isCurrent())
                    delete released;
                else
                    MainQueue::async([owner = std::shared_ptr<Value>(released)] {});
            }};
}
