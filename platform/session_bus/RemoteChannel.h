// SPDX-License-Identifier: MIT
// RemoteChannel is the side of a RemoteObjectConnection that talks to the bus: it sends requests, sends them
// once more when the service is lost, and hands answers to PendingReplies. Used inside this folder only.
// Thread: any for the public functions, which return at once; everything else runs on the thread of the
// connections, and the object is destroyed there.  Owner: shared by a connection and its proxies.
#pragma once

#include "platform/logging/LogChannel.h"
#include "platform/session_bus/PendingReplies.h"
#include "platform/session_bus/RemoteObjectConnection.h"
#include "platform/session_bus/SessionBusConnection.h"

#include <QObject>

#include <atomic>
#include <map>
#include <memory>
#include <vector>

class QDBusMessage;
class QDBusServiceWatcher;

class RemoteChannel final : public QObject {
public:
    static std::shared_ptr<RemoteChannel> make(const QString &serviceName);
    ~RemoteChannel() override;

    void resume();
    void send(RemoteObjectInterface interface, RemoteRequest request, RemoteReplyHandler handler,
        RemoteErrorHandler errorHandler);
    /// As RemoteObjectConnection::invalidate(); disconnects from the bus later.
    void close();

private:
    using Identifier = PendingReplies::Identifier;

    struct Request {
        RemoteObjectInterface interface;
        RemoteRequest content;
        bool hasErrorHandler;
        int pendingCalls = 0; ///< two if the service lost its name and its old owner may still answer
        bool isRepeated = false;
    };

    explicit RemoteChannel(QString serviceName);

    void accept(Identifier identifier, const Request &request);
    void callWaitingRequests();
    void call(Identifier identifier);
    void repeatCall(Identifier identifier);
    void repeatLostCalls();
    /// The error is the reason why there is no connection.
    Result<QDBusConnection, QString> connectToBus();
    [[nodiscard]] QDBusMessage messageFor(const Request &request, const SealedMemory &payload) const;
    void handleAnswer(Identifier identifier, const QDBusMessage &answer);
    void giveUp(Identifier identifier, const LogArgument &cause, const LogArgument &details);
    [[nodiscard]] std::vector<Identifier> identifiers() const;

    const QString m_serviceName;
    PendingReplies m_replies;
    std::map<Identifier, Request> m_requests; // in the order of their arrival
    bool m_isResumed = false;
    std::atomic<bool> m_isClosed = false;
    std::unique_ptr<SessionBusConnection> m_bus; // null before the first request
    std::unique_ptr<QDBusServiceWatcher> m_watcher;
};
