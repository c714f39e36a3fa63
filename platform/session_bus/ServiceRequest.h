// SPDX-License-Identifier: MIT
// ServiceRequest is what travels to a service: the name of a method, a document, options. ServiceReply is
// what comes back. Thread: any; values, copies share the document.
#pragma once

#include "platform/system/SealedMemory.h"

#include <QString>
#include <QVariantMap>

#include <array>
#include <functional>
#include <memory>

/// On the bus: (payload h, length t, absent b, options a{sv}).
struct ServiceRequest {
    QString method;
    std::shared_ptr<const SealedMemory>
        payload; ///< null: absent; an empty memory file then travels in its place
    QVariantMap options;
};

/// On the bus: tttttttt.
using ServiceReply = std::array<quint64, 8>;

/// Called on the thread of the connections, at most once. Must be quick, as the replies of all connections
/// wait for it, and must not wait for a thread that may be in ServiceConnection::invalidate().
using ServiceReplyHandler = std::function<void(const ServiceReply &reply)>;
