// SPDX-License-Identifier: MIT
// ServiceConnection connects its owner to a service, by the name that the service has on the session bus.
// What the requests mean is its user's business. Thread: any, one at a time; replies come on a thread that
// all connections of the process share, never on the main one.  Owner: one client, for all of its requests.
#pragma once

#include "platform/session_bus/RemoteObjectProxy.h"

#include <QString>

#include <memory>

/// The bus starts the service with the first request. A request may take as long as it likes. When the
/// service dies or loses its name before the answer, the request is sent once more, so it must be one that
/// may be repeated. Where an answer never comes - no bus, no such service, dead twice, an error, an answer of
/// another form - the log has one line and the handler is not called. Needs a QCoreApplication.
///
/// Every connection is a client of its own on the bus: a service sees it leave when it is invalidated.
class ServiceConnection {
public:
    /// serviceName: a well-known name on the bus.
    explicit ServiceConnection(const QString &serviceName);
    ServiceConnection(const ServiceConnection &) = delete;
    ServiceConnection &operator=(const ServiceConnection &) = delete;
    /// Invalidates it.
    ~ServiceConnection();

    /// Of the proxies that are made from now on.
    void setRemoteObjectInterface(RemoteObjectInterface interface) { m_interface = std::move(interface); }
    [[nodiscard]] const RemoteObjectInterface &remoteObjectInterface() const { return m_interface; }

    /// Begins to connect, in the background. Requests sent before wait for this.
    void resume();

    /// The object of the service under the interface of the moment.
    [[nodiscard]] RemoteObjectProxy remoteObjectProxy() const { return {m_channel, m_interface}; }

    /// No handler is called any more once this has returned: it waits for one that is being called, unless it
    /// is that one which calls this. Handlers that were not called end their lives in here. For good; may be
    /// repeated.
    void invalidate();

private:
    std::shared_ptr<ServiceChannel> m_channel;
    RemoteObjectInterface m_interface;
};
