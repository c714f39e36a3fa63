// SPDX-License-Identifier: MIT
// CountingService is the broker: it owns the service's name on the session bus, answers every request once,
// and leaves when nobody has asked for a while. It passes documents on without looking into them. Who counts
// is WorkerPool's business, what a count rests on RulesSource's.
// Thread: main.  Owner: main().
#pragma once

#include "counting_service/broker/RulesSource.h"
#include "counting_service/broker/ServiceObject.h"
#include "counting_service/broker/WorkerPool.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>

class CountingService : public QObject {
    Q_OBJECT

public:
    /// How long it stays without a request.
    static constexpr std::chrono::milliseconds usualIdleTime = std::chrono::minutes(1);
    /// Bytes of a document; longer ones are not counted. No text could be longer than this.
    static constexpr quint64 largestDocument = (1ULL << 31) - 1;

    CountingService(WorkerProgram workers, std::chrono::milliseconds idleTime);

    /// Goes on the bus. False, with a line in the log, where there is none or the name is somebody else's.
    [[nodiscard]] bool start();

    /// Gives the name away, answers all that were sent before, and ends the event loop. What is sent from now
    /// on the bus gives to the next service.
    void leave();

private Q_SLOTS:
    void leaveAtOnce();

private:
    void receive(const ReceivedRequest &request);
    void finish(const ReceivedRequest &request, const ReceivedRequest::Outcome &outcome);
    void noteEndOfRequest();
    void quit();

    RulesSource m_rules;
    WorkerPool m_pool;
    ServiceObject m_object;
    QDBusConnection m_bus;
    QTimer m_idleTimer;
    size_t m_openRequests = 0;
    const size_t m_mostOpenRequests;
    bool m_isLeaving = false;
};
