// SPDX-License-Identifier: MIT
// RemoteObjectProxy stands for the object of a service: what is sent to it, the service receives. It reports
// no errors: a request is answered, or it is not. Thread: any.  Owner: whoever sends; copies send over the
// same connection and do not keep it from being invalidated.
#pragma once

#include "platform/session_bus/ServiceRequest.h"

#include <memory>
#include <utility>

class ServiceChannel;

/// Where on the bus a service has its object, and which interface of it is meant.
struct RemoteObjectInterface {
    QString objectPath; ///< as "/com/example/Counter"
    QString name; ///< as "com.example.Counter"
};

class RemoteObjectProxy {
public:
    /// Returns at once; everything else happens on the thread of the connections. Over an invalidated
    /// connection nothing is sent and nothing answered.
    void send(ServiceRequest request, ServiceReplyHandler handler) const;

private:
    friend class ServiceConnection; // the only one that makes proxies
    RemoteObjectProxy(std::shared_ptr<ServiceChannel> channel, RemoteObjectInterface interface)
        : m_channel(std::move(channel))
        , m_interface(std::move(interface))
    {
    }

    std::shared_ptr<ServiceChannel> m_channel;
    RemoteObjectInterface m_interface;
};
