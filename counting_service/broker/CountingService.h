// SPDX-License-Identifier: MIT
// CountingService is the broker: it owns the service's name on the session bus, answers every request once
// unless its client has left the bus, and exits when it has been idle for a while. It never reads documents:
// WorkerPool has them counted, under the rules of RulesSource.
// Thread: main.  Owner: main().
#pragma once

#include "counting_service/broker/RulesSource.h"
#include "counting_service/broker/ServiceObject.h"
#include "counting_service/broker/WorkerPool.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <unordered_set>

class CountingService : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds defaultIdleTime = std::chrono::minutes(1);
    /// Bytes; larger documents are not counted. No text can be longer than this.
    static constexpr quint64 maxDocumentSize = (1ULL << 31) - 1;

    /// idleTime: after the last answer, until the service exits.
    CountingService(WorkerProgram workers, std::chrono::milliseconds idleTime);

    /// Requests the name from the bus. False, with a line in the log, if there is no bus. If another process
    /// has the name, the event loop later ends with exit status 1, also with a line in the log.
    [[nodiscard]] bool start();

    /// Releases the name, answers all requests sent before that, and ends the event loop. The bus passes
    /// later requests to the next service.
    void stop();

private Q_SLOTS:
    void exitWithoutBus();

private:
    void receive(const ReceivedRequest &request);
    void finish(const ReceivedRequest &request, const ReceivedRequest::Outcome &outcome);
    void drop(quint64 number);
    void close(quint64 number);
    void requestName();
    void callAsync(const QDBusMessage &call, const std::function<void(const QDBusMessage &)> &takeReply);
    void quit();

    QDBusConnection m_bus;
    ServiceObject m_object; ///< outlives the requests, which reply through it
    RulesSource m_rules;
    WorkerPool m_pool;
    QTimer m_idleTimer;
    double m_columnInForce = 0; ///< points; of the previous request, whichever worker counts it
    std::unordered_set<quint64> m_openRequests; ///< by their numbers; neither answered nor dropped
    bool m_isStopping = false;
    bool m_hasReleasedName = false;
};
