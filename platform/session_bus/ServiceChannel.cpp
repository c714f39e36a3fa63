// SPDX-License-Identifier: MIT
#include "platform/session_bus/ServiceChannel.h"

#include "platform/logging/LogChannel.h"
#include "platform/session_bus/ConnectionThread.h"
#include "platform/session_bus/SessionBusClient.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QThread>

#include <algorithm>
#include <climits>
#include <optional>
#include <utility>

namespace {

constexpr int withoutTimeOut = INT_MAX; // DBUS_TIMEOUT_INFINITE of libdbus

// The bus answers for a service that has gone, or that did not come; the library for a bus that has gone.
bool saysThatTheServiceIsGone(const QDBusMessage &error)
{
    switch (QDBusError(error).type()) {
    case QDBusError::NoReply:
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
        return true;
    default:
        const QString name = error.errorName();
        return name == u"org.freedesktop.DBus.Error.NameHasNoOwner"
            || name == u"org.freedesktop.DBus.Error.Spawn.ChildExited"
            || name == u"org.freedesktop.DBus.Error.Spawn.ChildSignaled";
    }
}

std::optional<ServiceReply> replyIn(const QDBusMessage &answer)
{
    ServiceReply reply = {};
    if (answer.signature() != QString(static_cast<qsizetype>(reply.size()), u't'))
        return std::nullopt;
    std::ranges::transform(
        answer.arguments(), reply.begin(), [](const QVariant &count) { return count.toULongLong(); });
    return reply;
}

} // namespace

std::shared_ptr<ServiceChannel> ServiceChannel::make(const QString &serviceName)
{
    std::shared_ptr<ServiceChannel> channel(
        new ServiceChannel(serviceName), [](ServiceChannel *ended) { ended->deleteLater(); });
    QThread *const thread = ConnectionThread::shared();
    channel->moveToThread(thread);
    // A handler may own what owns the channel, and not every request is answered before the process ends.
    connect(
        thread, &QThread::finished, channel.get(), [&replies = channel->m_replies] { replies.close(); },
        Qt::DirectConnection);
    return channel;
}

ServiceChannel::ServiceChannel(const QString &serviceName)
    : m_serviceName(serviceName)
{
}

ServiceChannel::~ServiceChannel() = default;

void ServiceChannel::resume()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isResumed = true;
            callWhatWaits();
        },
        Qt::QueuedConnection);
}

void ServiceChannel::send(
    RemoteObjectInterface interface, ServiceRequest request, ServiceReplyHandler handler)
{
    const Identifier identifier = m_replies.add(std::move(handler));
    Request made{.interface = std::move(interface), .content = std::move(request)};
    QMetaObject::invokeMethod(
        this, [this, identifier, made = std::move(made)] { accept(identifier, made); }, Qt::QueuedConnection);
}

void ServiceChannel::close()
{
    m_isClosed = true;
    m_replies.close();
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_requests.clear();
            m_watcher.reset();
            m_bus.reset();
        },
        Qt::QueuedConnection);
}

void ServiceChannel::accept(Identifier identifier, const Request &request)
{
    if (m_isClosed)
        return;
    m_requests.emplace(identifier, request);
    if (m_isResumed)
        call(identifier);
}

void ServiceChannel::callWhatWaits()
{
    for (const Identifier identifier : identifiers()) {
        if (m_requests.at(identifier).callsUnderway == 0)
            call(identifier);
    }
}

void ServiceChannel::call(Identifier identifier)
{
    if (!connectToBus()) {
        giveUp(identifier, publicly(QStringLiteral("no session bus")), m_bus->bus().lastError().message());
        return;
    }
    Request &request = m_requests.at(identifier);
    // The message takes a descriptor of its own, so an empty file need not live longer than this.
    std::optional<SealedMemory::MadeMemory> empty;
    const SealedMemory *payload = request.content.payload.get();
    if (!payload) {
        empty = SealedMemory::copyOf({});
        if (!*empty) {
            giveUp(identifier, publicly(QStringLiteral("no memory file")), causeText(empty->error()));
            return;
        }
        payload = &empty->value();
    }
    ++request.callsUnderway;
    auto *watcher = new QDBusPendingCallWatcher(
        m_bus->bus().asyncCall(messageFor(request, *payload), withoutTimeOut), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, identifier, watcher] {
        watcher->deleteLater();
        callEnded(identifier, watcher->reply());
    });
}

void ServiceChannel::callOnceMore(Identifier identifier)
{
    m_requests.at(identifier).isRepeated = true;
    call(identifier);
}

void ServiceChannel::callAgainWhatTheServiceLost()
{
    for (const Identifier identifier : identifiers()) {
        const Request &request = m_requests.at(identifier);
        if (request.callsUnderway > 0 && !request.isRepeated)
            callOnceMore(identifier);
    }
}

bool ServiceChannel::connectToBus()
{
    if (!m_bus)
        m_bus = std::make_unique<SessionBusClient>();
    if (m_bus->isConnected())
        return true;
    if (!m_bus->connect())
        return false;
    m_watcher = std::make_unique<QDBusServiceWatcher>(
        m_serviceName, m_bus->bus(), QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_watcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &oldOwner) {
            if (!oldOwner.isEmpty())
                callAgainWhatTheServiceLost();
        });
    return true;
}

QDBusMessage ServiceChannel::messageFor(const Request &request, const SealedMemory &payload) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        m_serviceName, request.interface.objectPath, request.interface.name, request.content.method);
    message << QVariant::fromValue(QDBusUnixFileDescriptor(payload.descriptor()))
            << static_cast<quint64>(payload.size()) << (request.content.payload == nullptr)
            << request.content.options;
    return message;
}

// An answer to the first of two calls is as good as one to the second.
void ServiceChannel::callEnded(Identifier identifier, const QDBusMessage &answer)
{
    const auto found = m_requests.find(identifier);
    if (found == m_requests.end())
        return;
    Request &request = found->second;
    --request.callsUnderway;
    if (answer.type() == QDBusMessage::ReplyMessage) {
        if (const std::optional<ServiceReply> reply = replyIn(answer)) {
            m_requests.erase(found);
            m_replies.deliver(identifier, *reply);
        } else {
            giveUp(identifier, publicly(QStringLiteral("an answer of another form")),
                publicly(answer.signature()));
        }
        return;
    }
    if (saysThatTheServiceIsGone(answer)) {
        if (request.callsUnderway > 0)
            return;
        if (!request.isRepeated) {
            callOnceMore(identifier);
            return;
        }
    }
    giveUp(identifier, publicly(answer.errorName()), answer.errorMessage());
}

void ServiceChannel::giveUp(Identifier identifier, const LogArgument &cause, const LogArgument &details)
{
    if (!m_isClosed) {
        LogChannel::standard().error(u"No answer from {} to {}: {}: {}",
            {publicly(m_serviceName), publicly(m_requests.at(identifier).content.method), cause, details});
    }
    m_requests.erase(identifier);
    m_replies.drop(identifier);
}

std::vector<ServiceChannel::Identifier> ServiceChannel::identifiers() const
{
    std::vector<Identifier> all;
    for (const auto &[identifier, request] : m_requests)
        all.push_back(identifier);
    return all;
}
