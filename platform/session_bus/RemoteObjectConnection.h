// SPDX-License-Identifier: MIT
// RemoteObjectConnection connects its owner to an object of another process, by the name of its service on
// the session bus. What the requests mean is left to its users.
// Thread: any, one at a time; replies arrive on a thread that all connections of the process share, never on
// the main thread.  Owner: one client, for all of its requests.
#pragma once

#include "platform/system/SealedMemory.h"

#include <QString>
#include <QVariantMap>

#include <array>
#include <functional>
#include <memory>
#include <utility>

class RemoteChannel;

/// A request: the name of a method, a document, options. On the bus: (payload h, length t, absent b, options
/// a{sv}). Copies share the document.
struct RemoteRequest {
    QString method;
    std::shared_ptr<const SealedMemory> payload; ///< null: absent; then an empty memory file is sent
    QVariantMap options;
};

/// On the bus: tttttttt.
using RemoteReply = std::array<quint64, 8>;

/// Called on the thread of the connections, at most once. Must be quick, since the replies of all connections
/// wait for it, and must not wait for a thread that may be in RemoteObjectConnection::invalidate().
using RemoteReplyHandler = std::function<void(const RemoteReply &reply)>;

/// Called as a RemoteReplyHandler, in place of it, with the message of an error that the service itself has
/// answered: its name begins with that of the interface and ".Error.".
using RemoteErrorHandler = std::function<void(const QString &message)>;

/// The object of a service on the bus, and one of its interfaces.
struct RemoteObjectInterface {
    QString objectPath; ///< as "/com/example/Counter"
    QString name; ///< as "com.example.Counter"
};

/// Stands for the remote object: the service receives what is sent to the proxy. Reports no errors but those
/// of the service: a request is answered, or it is not. Copies use the same connection and do not keep it
/// from being invalidated.
class RemoteObjectProxy {
public:
    /// Returns at once; everything else happens on the thread of the connections. An invalidated connection
    /// sends nothing and never calls the handler.
    void send(RemoteRequest request, RemoteReplyHandler handler, RemoteErrorHandler errorHandler = {}) const;

private:
    friend class RemoteObjectConnection; // alone makes proxies
    RemoteObjectProxy(std::shared_ptr<RemoteChannel> channel, RemoteObjectInterface interface)
        : m_channel(std::move(channel))
        , m_interface(std::move(interface))
    {
    }

    std::shared_ptr<RemoteChannel> m_channel;
    RemoteObjectInterface m_interface;
};

/// The bus starts the service with the first request. A request may take as long as it needs. If the service
/// dies or loses its name before the answer, the request is sent once more, so it must be repeatable. If no
/// answer can come (no bus, no such service, dead twice, an error, an answer of another form), the log gets
/// one line and the handler is not called. Needs a QCoreApplication.
///
/// Every connection is a separate client of the bus: a service sees it disconnect when it is invalidated.
class RemoteObjectConnection {
public:
    /// serviceName: a well-known name on the bus.
    explicit RemoteObjectConnection(const QString &serviceName);
    RemoteObjectConnection(const RemoteObjectConnection &) = delete;
    RemoteObjectConnection &operator=(const RemoteObjectConnection &) = delete;
    /// Invalidates it.
    ~RemoteObjectConnection();

    /// Applies to the proxies that are made from now on.
    void setRemoteObjectInterface(RemoteObjectInterface interface) { m_interface = std::move(interface); }
    [[nodiscard]] const RemoteObjectInterface &remoteObjectInterface() const { return m_interface; }

    /// Begins to connect, in the background. Requests sent before wait for this.
    void resume();

    /// A proxy for the current interface.
    [[nodiscard]] RemoteObjectProxy remoteObjectProxy() const { return {m_channel, m_interface}; }

    /// Once this has returned, no handler is called any more: it waits for a running handler, unless that
    /// handler makes the call. Handlers that were not called are destroyed in the call. Final; may be called
    /// again.
    void invalidate();

private:
    std::shared_ptr<RemoteChannel> m_channel;
    RemoteObjectInterface m_interface;
};
