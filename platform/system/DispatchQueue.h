// SPDX-License-Identifier: MIT
// DispatchQueue runs blocks one after another, in the order of their submission, on a thread of its own.
// Thread: any, one at a time.  Owner: whoever submits the blocks; need not outlive them.
#pragma once

#include <QString>

#include <functional>
#include <memory>

/// The thread starts with the first block and ends when no block is left. Blocks are destroyed on it. The
/// process does not wait for blocks when it exits; exitDespiteQueues() keeps what they use until then.
class DispatchQueue {
public:
    /// label: the name of the thread; debuggers show its first 15 bytes.
    explicit DispatchQueue(const QString &label);

    /// Returns at once. If the system cannot create a thread, runs the block before it returns.
    void async(std::function<void()> block);

private:
    struct Work;
    static void runOnThread(const std::shared_ptr<Work> &work);
    static void runBlocks(Work &work);

    std::shared_ptr<Work> m_work;
};

/// Ends the process without destroying static objects, which the threads of queues may still use. main()
/// calls it in place of returning, when its own objects are gone; functions of std::at_quick_exit() are
/// called.
[[noreturn]] void exitDespiteQueues(int status);
