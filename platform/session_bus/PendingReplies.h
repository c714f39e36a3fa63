// SPDX-License-Identifier: MIT
// PendingReplies keeps the handlers of one connection until their replies arrive; no handler is called twice,
// or after close(). Used inside this folder only.
// Thread: any.  Owner: RemoteChannel.
#pragma once

#include "platform/session_bus/RemoteObjectConnection.h"

#include <QtGlobal>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <unordered_map>

class PendingReplies {
public:
    using Identifier = quint64;

    /// After close(), destroys the handlers at once; the identifier is then unknown to the other functions.
    /// errorHandler: may be empty.
    Identifier add(RemoteReplyHandler handler, RemoteErrorHandler errorHandler = {});

    /// Calls the handler in the calling thread, and destroys it. Ignores a second reply to the same request,
    /// and one after close(). To be called on one thread only, and not from a handler.
    void deliver(Identifier identifier, const RemoteReply &reply);
    /// The same for an error.
    void deliverError(Identifier identifier, const QString &message);

    /// Destroys the handler of a request that will not be answered.
    void drop(Identifier identifier);

    /// Destroys all handlers in the calling thread. When this returns, no handler runs, except one that makes
    /// this call, and none will be called.
    void close();

private:
    struct Handlers {
        RemoteReplyHandler reply;
        RemoteErrorHandler error;
    };
    using Pending = std::unordered_map<Identifier, Handlers>;

    void call(Identifier identifier, const std::function<void(const Handlers &)> &handler);

    std::mutex m_mutex;
    std::condition_variable m_deliveryEnded;
    std::thread::id m_deliveringThread; // the default value while no handler runs
    bool m_isClosed = false;
    Identifier m_lastIdentifier = 0;
    Pending m_handlers;
};
