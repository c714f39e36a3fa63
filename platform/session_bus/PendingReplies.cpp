// SPDX-License-Identifier: MIT
#include "platform/session_bus/PendingReplies.h"

#include <utility>

// Handlers are called and destroyed without the mutex: what they own may call this object.

PendingReplies::Identifier PendingReplies::add(RemoteReplyHandler handler)
{
    const std::lock_guard guard(m_mutex);
    const Identifier identifier = ++m_lastIdentifier;
    if (!m_isClosed)
        m_handlers.emplace(identifier, std::move(handler));
    return identifier;
}

void PendingReplies::deliver(Identifier identifier, const RemoteReply &reply)
{
    Handlers::node_type pending;
    {
        const std::lock_guard guard(m_mutex);
        pending = m_handlers.extract(identifier);
        if (pending.empty())
            return;
        m_deliveringThread = std::this_thread::get_id();
    }
    pending.mapped()(reply);
    pending = {}; // close() waits for this too
    {
        const std::lock_guard guard(m_mutex);
        m_deliveringThread = {};
    }
    m_deliveryEnded.notify_all();
}

void PendingReplies::drop(Identifier identifier)
{
    Handlers::node_type pending;
    const std::lock_guard guard(m_mutex);
    pending = m_handlers.extract(identifier);
}

void PendingReplies::close()
{
    Handlers handlers;
    std::unique_lock lock(m_mutex);
    m_isClosed = true;
    handlers = std::exchange(m_handlers, {});
    const std::thread::id self = std::this_thread::get_id();
    m_deliveryEnded.wait(
        lock, [this, self] { return m_deliveringThread == std::thread::id() || m_deliveringThread == self; });
}
