// SPDX-License-Identifier: MIT
// MainQueue runs blocks on the main thread, one after the other, from its event loop.
// Thread: any.  Owner: the process.
#pragma once

#include <functional>
#include <memory>
#include <utility>

class MainQueue {
public:
    /// Returns at once, on the main thread too. Blocks run, and end their lives, on the main thread in the
    /// order in which they came. Those that come after the QCoreApplication, or that it leaves behind, are
    /// let go unrun.
    static void async(std::function<void()> block);

    /// Whether the caller is on the main thread.
    static bool isCurrent();
};

/// A value that ends its life on the main thread, wherever the last reference to it is let go.
template <typename Value>
std::shared_ptr<Value> releasedOnMainThread(Value value)
{
    return {new Value(std::move(value)), [](Value *released) {
                if (MainQueue::isCurrent())
                    delete released;
                else
                    MainQueue::async([owner = std::shared_ptr<Value>(released)] {});
            }};
}
