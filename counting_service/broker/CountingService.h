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
#include <functional>

class CountingService : public QObject {
    Q_OBJECT

public:
    /// How long it stays without a request.
    static constexpr std::chrono::milliseconds usualIdleTime = std::chrono::minutes(1);
    /// Bytes of a document; longer ones are not counted. No text could be longer than this.
    static constexpr quint64 largestDocument = (1ULL << 31) - 1;

    CountingService(WorkerProgram workers, std::chrono::milliseconds idleTime);

    /// Asks the bus for the name. False, with a line in the log, where there is no bus. Where the name is
    /// somebody else's, the event loop ends with exit status 1 and such a line.
    [[nodiscard]] bool start();

    /// Gives the name away, answers all that were sent before, and ends the event loop. What is sent once the
    /// name is free the bus gives to the next service.
    void leave();

private Q_SLOTS:
    void leaveAtOnce();

private:
    void receive(const ReceivedRequest &request);
    void finish(const ReceivedRequest &request, const ReceivedRequest::Outcome &outcome);
    void noteEndOfRequest();
    void askForName();
    void whenAnswered(const QDBusMessage &call, const std::function<void(const QDBusMessage &)> &take);
    void quit();

    QDBusConnection m_bus;
    ServiceObject m_object; ///< outlives the requests, which answer through it
    RulesSource m_rules;
    WorkerPool m_pool;
    QTimer m_idleTimer;
    double m_columnInForce = 0; ///< points; of the request before, whichever worker counts it
    size_t m_openRequests = 0;
    bool m_isLeaving = false;
    bool m_hasGivenNameAway = false;
};
