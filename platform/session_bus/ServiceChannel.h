// SPDX-License-Identifier: MIT
// ServiceChannel is the side of a connection that talks to the bus: it sends requests, once more where a
// service is lost, and hands answers to PendingReplies. Thread: any for its public functions, which return at
// once; the rest runs on the thread of the connections, and the object ends there.  Owner: shared by a
// ServiceConnection and its proxies. Used inside this folder only.
#pragma once

#include "platform/logging/LogArgument.h"
#include "platform/session_bus/PendingReplies.h"
#include "platform/session_bus/RemoteObjectProxy.h"

#include <QObject>

#include <atomic>
#include <map>
#include <memory>
#include <vector>

class QDBusMessage;
class QDBusServiceWatcher;
class SessionBusClient;

class ServiceChannel final : public QObject {
public:
    static std::shared_ptr<ServiceChannel> make(const QString &serviceName);
    ~ServiceChannel() override;

    void resume();
    void send(RemoteObjectInterface interface, ServiceRequest request, ServiceReplyHandler handler);
    /// As ServiceConnection::invalidate(); what is left to do on the bus follows later.
    void close();

private:
    using Identifier = PendingReplies::Identifier;

    struct Request {
        RemoteObjectInterface interface;
        ServiceRequest content;
        int callsUnderway = 0; ///< two where the name was lost and its owner may still answer
        bool isRepeated = false;
    };

    explicit ServiceChannel(const QString &serviceName);

    void accept(Identifier identifier, const Request &request);
    void callWhatWaits();
    void call(Identifier identifier);
    void callOnceMore(Identifier identifier);
    void callAgainWhatTheServiceLost();
    bool connectToBus();
    [[nodiscard]] QDBusMessage messageFor(const Request &request, const SealedMemory &payload) const;
    void callEnded(Identifier identifier, const QDBusMessage &answer);
    void giveUp(Identifier identifier, const LogArgument &cause, const LogArgument &details);
    [[nodiscard]] std::vector<Identifier> identifiers() const;

    const QString m_serviceName;
    PendingReplies m_replies;
    std::map<Identifier, Request> m_requests; // in the order in which they came
    bool m_isResumed = false;
    std::atomic<bool> m_isClosed = false;
    std::unique_ptr<SessionBusClient> m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_watcher;
};
