// SPDX-License-Identifier: MIT
// DispatchQueue runs blocks one after another, in the order of their submission, on a thread of its own.
// Thread: any, one at a time.  Owner: whoever submits the blocks; need not outlive them.
#pragma once

#include <QString>

#include <functional>
#include <memory>

/// The thread starts with the first block and ends when no block is left. Blocks are destroyed on it. The
/// process does not wait for blocks when it exits.
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
