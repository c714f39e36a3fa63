// SPDX-License-Identifier: MIT
// PendingReplies holds the handlers of one connection until their replies arrive, and sees to it that none is
// called twice or after the end. Thread: any.  Owner: ServiceChannel. Used inside this folder only.
#pragma once

#include "platform/session_bus/ServiceRequest.h"

#include <QtGlobal>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <unordered_map>

class PendingReplies {
public:
    using Identifier = quint64;

    /// Once closed, the handler is let go at once and the identifier belongs to nothing.
    Identifier add(ServiceReplyHandler handler);

    /// Calls the handler, here and now, and lets it go. A second reply to the same request, or one after
    /// close(), is nobody's. To be called on one thread only, and not from a handler.
    void deliver(Identifier identifier, const ServiceReply &reply);

    /// Lets the handler of a request go that will not be answered.
    void drop(Identifier identifier);

    /// Lets all handlers go, here and now. When this returns, none is running, unless it is the one that
    /// calls this, and none will be called.
    void close();

private:
    using Handlers = std::unordered_map<Identifier, ServiceReplyHandler>;

    std::mutex m_mutex;
    std::condition_variable m_deliveryEnded;
    std::thread::id m_deliveringThread; // of no thread while no handler runs
    bool m_isClosed = false;
    Identifier m_lastIdentifier = 0;
    Handlers m_handlers;
};
