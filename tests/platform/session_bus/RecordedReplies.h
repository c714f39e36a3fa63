// SPDX-License-Identifier: MIT
// RecordedReplies records the replies to its handlers, and their threads.
// Thread: any.  Owner: the test; outlives its handlers.
#pragma once

#include "platform/session_bus/RemoteObjectConnection.h"
#include "tests/harness/WaitUntil.h"

#include <gtest/gtest.h>

#include <mutex>
#include <thread>
#include <vector>

class RecordedReplies {
public:
    [[nodiscard]] RemoteReplyHandler handler()
    {
        return [this](const RemoteReply &reply) {
            const std::lock_guard guard(m_mutex);
            m_replies.push_back(reply);
            m_threads.push_back(std::this_thread::get_id());
        };
    }

    [[nodiscard]] std::vector<RemoteReply> replies() const
    {
        const std::lock_guard guard(m_mutex);
        return m_replies;
    }
    [[nodiscard]] std::vector<std::thread::id> threads() const
    {
        const std::lock_guard guard(m_mutex);
        return m_threads;
    }
    [[nodiscard]] size_t count() const { return replies().size(); }

    void waitFor(size_t count) const
    {
        EXPECT_TRUE(waitUntil([this, count] { return this->count() >= count; })) << "replies: " << count;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<RemoteReply> m_replies;
    std::vector<std::thread::id> m_threads;
};
