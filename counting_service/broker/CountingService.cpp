// SPDX-License-Identifier: MIT
#include "counting_service/broker/CountingService.h"

#include "counting_service/broker/BusLimits.h"
#include "counting_service/broker/ServiceLog.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusPendingCallWatcher>

#include <limits>
#include <memory>
#include <utility>

namespace {

CountFailure failureOf(const SealedMemoryError &error)
{
    using Cause = SealedMemoryError::Cause;
    switch (error.cause) {
    case Cause::NotSealed:
        return CountFailure::Cause::NotSealed;
    case Cause::LengthDiffers:
        return CountFailure::Cause::LengthDiffers;
    case Cause::SystemError:
        break;
    }
    return CountFailure::Cause::NotReceived;
}

Result<SealedMemory, CountFailure> documentOf(const ReceivedRequest &request)
{
    if (request.isAbsent)
        return CountFailure(CountFailure::Cause::DocumentMissing);
    if (request.length > CountingService::largestDocument)
        return CountFailure(CountFailure::Cause::TooLarge);
    SealedMemory::MemoryResult memory =
        SealedMemory::receive(request.payload.fileDescriptor(), request.length);
    if (!memory)
        return failureOf(memory.error());
    return std::move(memory).value();
}

void logMissingName(const QString &cause)
{
    countingServiceLog().error(u"The bus name {} cannot be acquired: {}",
        {publicly(ServiceObject::serviceName()),
            publicly(cause.isEmpty() ? QStringLiteral("another process has it") : cause)});
}

QDBusMessage callOfBus(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments(arguments);
    return call;
}

} // namespace

CountingService::CountingService(WorkerProgram workers, std::chrono::milliseconds idleTime)
    : m_bus(QDBusConnection::sessionBus())
    , m_object(m_bus, [this](const ReceivedRequest &request) { receive(request); })
    , m_pool(std::move(workers), WorkerPool::workersOfThisMachine())
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
    if (!m_bus.isConnected() || !limitRequestsToDescriptors(m_bus) || !m_object.registerOnBus()) {
        logMissingName(m_bus.lastError().message());
        return false;
    }
    askForName();
    return true;
}

// The event loop runs meanwhile: requests may come before the bus's answer, more than fit at a time, and the
// answer is not read until some of them are done.
void CountingService::askForName()
{
    constexpr uint doNotQueue = 4; // a flag and an answer of the bus, as D-Bus numbers them
    constexpr uint isPrimaryOwner = 1;
    whenAnswered(callOfBus(QStringLiteral("RequestName"), {ServiceObject::serviceName(), doNotQueue}),
        [this](const QDBusMessage &answer) {
            if (answer.type() == QDBusMessage::ReplyMessage
                && answer.arguments().value(0).toUInt() == isPrimaryOwner) {
                if (m_openRequests == 0)
                    m_idleTimer.start();
                return;
            }
            logMissingName(answer.errorMessage());
            QCoreApplication::exit(1);
        });
}

void CountingService::whenAnswered(
    const QDBusMessage &call, const std::function<void(const QDBusMessage &)> &take)
{
    auto *const watcher =
        new QDBusPendingCallWatcher(m_bus.asyncCall(call, std::numeric_limits<int>::max()), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, take] {
        watcher->deleteLater();
        take(watcher->reply());
    });
}

void CountingService::receive(const ReceivedRequest &request)
{
    ++m_openRequests;
    m_idleTimer.stop();
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
        m_columnInForce = columnWidthOf(rules.page).value_or(m_columnInForce);
        rules.page.columnBefore = m_columnInForce;
        m_pool.add({kept.kind, std::move(*memory), rules,
            [this, kept](const CountJob::Outcome &outcome) { finish(kept, outcome); }});
    });
}

void CountingService::finish(const ReceivedRequest &request, const ReceivedRequest::Outcome &outcome)
{
    if (!outcome) {
        countingServiceLog().notice(u"Could not count a document ({} bytes): {}",
            {request.length, publicly(causeText(outcome.error()))});
    }
    request.answer(outcome);
    noteEndOfRequest();
}

void CountingService::noteEndOfRequest()
{
    if (--m_openRequests > 0)
        return;
    if (m_hasGivenNameAway)
        quit();
    else if (!m_isLeaving)
        m_idleTimer.start();
}

void CountingService::leave()
{
    if (std::exchange(m_isLeaving, true))
        return;
    m_idleTimer.stop();
    whenAnswered(callOfBus(QStringLiteral("ReleaseName"), {ServiceObject::serviceName()}),
        [this](const QDBusMessage &) {
            // No request comes behind the bus's answer, and all before it have been read.
            m_object.settle();
            m_hasGivenNameAway = true;
            if (m_openRequests == 0)
                quit();
        });
}

// The bus handles the messages of one connection in their order: its answer says that it has the replies.
void CountingService::quit()
{
    m_object.settle();
    const QDBusMessage ping = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus.Peer"),
        QStringLiteral("Ping"));
    m_bus.call(ping);
    QCoreApplication::exit(0);
}

void CountingService::leaveAtOnce()
{
    countingServiceLog().notice(u"The session bus was lost");
    m_isLeaving = true;
    m_idleTimer.stop();
    QCoreApplication::exit(0);
}
