// SPDX-License-Identifier: MIT
#include "counting_service/broker/CountingService.h"

#include "counting_service/broker/BusLimits.h"
#include "counting_service/broker/ServiceLog.h"

#include <QCoreApplication>
#include <QDBusError>

#include <memory>
#include <utility>

namespace {

CountFailure failureOf(const SealedMemoryError &error)
{
    using Cause = SealedMemoryError::Cause;
    switch (error.cause) {
    case Cause::NotSealed:
        return CountFailure::NotSealed;
    case Cause::LengthDiffers:
        return CountFailure::LengthDiffers;
    case Cause::SystemError:
        break;
    }
    return CountFailure::NotReceived;
}

Result<SealedMemory, CountFailure> documentOf(const ReceivedRequest &request)
{
    if (request.isAbsent)
        return CountFailure::Absent;
    if (request.length > CountingService::largestDocument)
        return CountFailure::TooLarge;
    SealedMemory::MadeMemory memory =
        SealedMemory::received(request.payload.fileDescriptor(), request.length);
    if (!memory)
        return failureOf(memory.error());
    return std::move(memory).value();
}

} // namespace

CountingService::CountingService(WorkerProgram workers, std::chrono::milliseconds idleTime)
    : m_pool(std::move(workers), WorkerPool::workersOfThisMachine())
    , m_object([this](const ReceivedRequest &request) { receive(request); })
    , m_bus(QDBusConnection::sessionBus())
    , m_mostOpenRequests(roomForRequests(m_bus))
{
    m_idleTimer.setInterval(idleTime);
    m_idleTimer.setSingleShot(true);
    connect(&m_idleTimer, &QTimer::timeout, this, [this] { leave(); });
}

bool CountingService::start()
{
    m_pool.setFontGeneration(m_rules.fontGeneration()); // starts the first worker, too
    m_rules.ask([](const RulesSource::Snapshot &) {}); // so that the print server is asked early
    m_bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
        SLOT(leaveAtOnce()));
    // The object comes before the name: requests may be waiting for it.
    const bool isOnBus = m_bus.isConnected()
        && m_bus.registerObject(ServiceObject::path(), &m_object, QDBusConnection::ExportScriptableSlots)
        && m_bus.registerService(ServiceObject::serviceName());
    if (!isOnBus) {
        const QString cause = m_bus.lastError().message();
        countingServiceLog().error(u"The name {} is not to be had: {}",
            {publicly(ServiceObject::serviceName()),
                publicly(cause.isEmpty() ? QStringLiteral("another process has it") : cause)});
        return false;
    }
    m_idleTimer.start();
    return true;
}

void CountingService::receive(const ReceivedRequest &request)
{
    ++m_openRequests;
    m_idleTimer.stop();
    if (m_openRequests > m_mostOpenRequests)
        return finish(request, CountFailure::TooManyRequests);
    Result<SealedMemory, CountFailure> document = documentOf(request);
    if (!document)
        return finish(request, document.error());
    const auto memory = std::make_shared<SealedMemory>(std::move(document).value());
    ReceivedRequest kept = request;
    kept.payload = {}; // one descriptor is enough
    m_rules.ask([this, kept, memory](const RulesSource::Snapshot &snapshot) {
        m_pool.setFontGeneration(snapshot.fontGeneration);
        RulesSnapshot rules = snapshot.rules;
        if (kept.localeName)
            rules.localeName = *kept.localeName;
        m_pool.add({kept.kind, std::move(*memory), rules,
            [this, kept](const CountJob::Outcome &outcome) { finish(kept, outcome); }});
    });
}

void CountingService::finish(const ReceivedRequest &request, const ReceivedRequest::Outcome &outcome)
{
    if (!outcome) {
        countingServiceLog().notice(u"A document of {} bytes has no counts: it {}",
            {request.length, publicly(causeText(outcome.error()))});
    }
    request.answer(outcome);
    noteEndOfRequest();
}

void CountingService::noteEndOfRequest()
{
    if (--m_openRequests > 0)
        return;
    if (m_isLeaving)
        quit();
    else
        m_idleTimer.start();
}

void CountingService::leave()
{
    if (std::exchange(m_isLeaving, true))
        return;
    m_idleTimer.stop();
    // Behind the bus's answer to this comes no request any more, and all before it are in our queue.
    m_bus.unregisterService(ServiceObject::serviceName());
    QCoreApplication::sendPostedEvents();
    if (m_openRequests == 0)
        quit();
}

// The bus handles the messages of one connection in their order: its answer says that it has the replies.
void CountingService::quit()
{
    const QDBusMessage ping = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus.Peer"),
        QStringLiteral("Ping"));
    m_bus.call(ping);
    QCoreApplication::quit();
}

void CountingService::leaveAtOnce()
{
    countingServiceLog().notice(u"The session bus is gone");
    m_isLeaving = true;
    m_idleTimer.stop();
    QCoreApplication::quit();
}
