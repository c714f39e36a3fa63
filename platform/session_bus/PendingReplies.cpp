// SPDX-License-Identifier: MIT
#include "platform/session_bus/PendingReplies.h"

#include <utility>

// Handlers are called and destroyed without the mutex: what they own may call this object.

PendingReplies::Identifier PendingReplies::add(RemoteReplyHandler handler, RemoteErrorHandler errorHandler)
{
    const std::lock_guard guard(m_mutex);
    const Identifier identifier = ++m_lastIdentifier;
    if (!m_isClosed)
        m_handlers.emplace(identifier, Handlers{std::move(handler), std::move(errorHandler)});
    return identifier;
}

void PendingReplies::deliver(Identifier identifier, const RemoteReply &reply)
{
    call(identifier, [&reply](const Handlers &handlers) { handlers.reply(reply); });
}

void PendingReplies::deliverError(Identifier identifier, const QString &message)
{
    call(identifier, [&message](const Handlers &handlers) {
        if (handlers.error)
            handlers.error(message);
    });
}

void PendingReplies::call(Identifier identifier, const std::function<void(const Handlers &)> &handler)
{
    Pending::node_type pending;
    {
        const std::lock_guard guard(m_mutex);
        pending = m_handlers.extract(identifier);
        if (pending.empty())
            return;
        m_deliveringThread = std::this_thread::get_id();
    }
    handler(pending.mapped());
    pending = {}; // close() waits for this too
    {
        const std::lock_guard guard(m_mutex);
        m_deliveringThread = {};
    }
    m_deliveryEnded.notify_all();
}

void PendingReplies::drop(Identifier identifier)
{
    Pending::node_type pending;
    const std::lock_guard guard(m_mutex);
    pending = m_handlers.extract(identifier);
}

void PendingReplies::close()
{
    Pending handlers;
    std::unique_lock lock(m_mutex);
    m_isClosed = true;
    handlers = std::exchange(m_handlers, {});
    const std::thread::id self = std::this_thread::get_id();
    m_deliveryEnded.wait(
        lock, [this, self] { return m_deliveringThread == std::thread::id() || m_deliveringThread == self; });
}
