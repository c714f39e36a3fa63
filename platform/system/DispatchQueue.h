// SPDX-License-Identifier: MIT
// DispatchQueue runs blocks one after the other, in the order in which they came, on a thread of its own.
// Thread: any, one at a time.  Owner: whoever submits the blocks; need not outlive them.
#pragma once

#include <QString>

#include <functional>
#include <memory>

/// The thread begins with the first block that waits and ends when none waits any more. Blocks end their
/// lives on it. A process that ends does not wait for them.
class DispatchQueue {
public:
    /// label: the name of the thread; debuggers show its first 15 bytes.
    explicit DispatchQueue(const QString &label);

    /// Returns at once; runs the block itself where the system gives no thread.
    void async(std::function<void()> block);

private:
    struct Work;
    static void run(const std::shared_ptr<Work> &work);
    static void drain(Work &work);

    std::shared_ptr<Work> m_work;
};
