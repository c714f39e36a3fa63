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
    if (!request.kind)
        return CountFailure(CountFailure::Cause::UnknownType);
    if (request.length > CountingService::maxDocumentSize)
        return CountFailure(CountFailure::Cause::TooLarge);
    SealedMemory::MemoryResult memory =
        SealedMemory::receive(request.payload.fileDescriptor(), request.length);
    if (!memory)
        return failureOf(memory.error());
    return std::move(memory).value();
}

void logMissingName(const QString &cause)
{
    countingServiceLog().error(u"Cannot acquire bus name {}: {}",
        {publicly(ServiceObject::serviceName()),
            publicly(cause.isEmpty() ? QStringLiteral("another process has it") : cause)});
}

QDBusMessage busCall(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments(arguments);
    return call;
}

} // namespace

CountingService::CountingService(WorkerProgram workers, std::chrono::milliseconds idleTime)
    : m_bus(QDBusConnection::sessionBus())
    , m_object(
          m_bus, [this](const ReceivedRequest &request) { receive(request); },
          [this](quint64 number) { drop(number); })
    , m_pool(std::move(workers), WorkerPool::defaultWorkerCount())
{
    m_idleTimer.setInterval(idleTime);
    m_idleTimer.setSingleShot(true);
    connect(&m_idleTimer, &QTimer::timeout, this, [this] { stop(); });
}

bool CountingService::start()
{
    m_pool.setFontGeneration(m_rules.fontGeneration()); // also starts the first worker
    m_rules.requestSnapshot([](const RulesSource::Snapshot &) {}); // asks the print server early
    m_bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
        SLOT(exitWithoutBus()));
    // Before the name: requests may already be waiting for it.
    if (!m_bus.isConnected() || !limitRequestsToDescriptors(m_bus) || !m_object.registerOnBus()) {
        logMissingName(m_bus.lastError().message());
        return false;
    }
    requestName();
    return true;
}

// Asynchronous: more requests than can be held may arrive before the bus's reply, which is then not read
// until some of them are answered.
void CountingService::requestName()
{
    constexpr uint doNotQueue = 4; // flag and reply code of RequestName in D-Bus
    constexpr uint isPrimaryOwner = 1;
    callAsync(busCall(QStringLiteral("RequestName"), {ServiceObject::serviceName(), doNotQueue}),
        [this](const QDBusMessage &reply) {
            if (reply.type() == QDBusMessage::ReplyMessage
                && reply.arguments().value(0).toUInt() == isPrimaryOwner) {
                if (m_openRequests.empty())
                    m_idleTimer.start();
                return;
            }
            logMissingName(reply.errorMessage());
            QCoreApplication::exit(1);
        });
}

void CountingService::callAsync(
    const QDBusMessage &call, const std::function<void(const QDBusMessage &)> &takeReply)
{
    auto *const watcher =
        new QDBusPendingCallWatcher(m_bus.asyncCall(call, std::numeric_limits<int>::max()), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, takeReply] {
        watcher->deleteLater();
        takeReply(watcher->reply());
    });
}

void CountingService::receive(const ReceivedRequest &request)
{
    m_openRequests.insert(request.number);
    m_idleTimer.stop();
    Result<SealedMemory, CountFailure> document = documentOf(request);
    if (!document)
        return finish(request, document.error());
    const auto memory = std::make_shared<SealedMemory>(std::move(document).value());
    ReceivedRequest pending = request;
    pending.payload = {}; // the sealed memory has its own descriptor
    m_rules.requestSnapshot([this, pending, memory](const RulesSource::Snapshot &snapshot) {
        if (!m_openRequests.contains(pending.number))
            return;
        m_pool.setFontGeneration(snapshot.fontGeneration);
        RulesSnapshot rules = snapshot.rules;
        if (pending.localeName)
            rules.localeName = *pending.localeName;
        m_columnInForce = columnWidthOf(rules.page).value_or(m_columnInForce);
        rules.page.columnBefore = m_columnInForce;
        m_pool.add({.number = pending.number,
            .kind = *pending.kind,
            .document = std::move(*memory),
            .rules = rules,
            .answer = [this, pending](const CountJob::Outcome &outcome) { finish(pending, outcome); },
            .charset = pending.charset});
    });
}

void CountingService::finish(const ReceivedRequest &request, const ReceivedRequest::Outcome &outcome)
{
    if (!outcome) {
        countingServiceLog().notice(u"Could not count a document ({} bytes): {}",
            {request.length, publicly(causeText(outcome.error()))});
    }
    request.reply(outcome);
    close(request.number);
}

void CountingService::drop(quint64 number)
{
    if (!m_openRequests.contains(number))
        return; // answered while the client was leaving
    countingServiceLog().info(u"Dropped a document: its client has left the bus");
    m_pool.drop(number);
    close(number);
}

void CountingService::close(quint64 number)
{
    m_openRequests.erase(number);
    if (!m_openRequests.empty())
        return;
    if (m_hasReleasedName)
        quit();
    else if (!m_isStopping)
        m_idleTimer.start();
}

void CountingService::stop()
{
    if (std::exchange(m_isStopping, true))
        return;
    m_idleTimer.stop();
    callAsync(
        busCall(QStringLiteral("ReleaseName"), {ServiceObject::serviceName()}), [this](const QDBusMessage &) {
            // The bus's reply follows the last request: all of them have been read.
            m_object.flush();
            m_hasReleasedName = true;
            if (m_openRequests.empty())
                quit();
        });
}

// The bus handles the messages of one connection in order: its reply to the ping confirms that it has ours.
void CountingService::quit()
{
    m_object.flush();
    const QDBusMessage ping = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus.Peer"),
        QStringLiteral("Ping"));
    m_bus.call(ping);
    QCoreApplication::exit(0);
}

void CountingService::exitWithoutBus()
{
    countingServiceLog().notice(u"The session bus was lost");
    m_isStopping = true;
    m_idleTimer.stop();
    QCoreApplication::exit(0);
}
