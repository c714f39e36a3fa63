// SPDX-License-Identifier: MIT
#include "platform/session_bus/RemoteChannel.h"

#include "platform/logging/LogChannel.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QThread>

#include <algorithm>
#include <climits>
#include <mutex>
#include <optional>
#include <utility>

namespace {

constexpr int infiniteTimeout = INT_MAX; // DBUS_TIMEOUT_INFINITE of libdbus

std::mutex threadMutex;
// Not owned by a static object: a process that exits without destroying its QCoreApplication, as Qt does when
// the X server dies, would destroy the thread while it runs, and then Qt aborts.
QThread *connectionThread = nullptr;

// Qt's own thread for the bus ends after the application object, so ours never outlives it.
void stopConnectionThread()
{
    QThread *stopped = nullptr;
    {
        const std::lock_guard guard(threadMutex);
        stopped = std::exchange(connectionThread, nullptr);
    }
    stopped->quit();
    stopped->wait(); // without the mutex: a handler may still make connections
    delete stopped;
}

/// The thread on which all connections of the process talk to the bus and deliver replies, so that a bus that
/// hangs blocks no other thread. Runs from the first call until the QCoreApplication ends.
QThread *sharedConnectionThread()
{
    const std::lock_guard guard(threadMutex);
    if (!connectionThread) {
        connectionThread = new QThread;
        connectionThread->setObjectName(QStringLiteral("connections"));
        connectionThread->start();
        qAddPostRoutine(stopConnectionThread);
    }
    return connectionThread;
}

// The bus sends these if the service has died or cannot be started; the library, if the bus was lost.
bool isServiceLost(const QDBusMessage &error)
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

std::optional<RemoteReply> parseReply(const QDBusMessage &answer)
{
    RemoteReply reply = {};
    if (answer.signature() != QString(static_cast<qsizetype>(reply.size()), u't'))
        return std::nullopt;
    std::ranges::transform(
        answer.arguments(), reply.begin(), [](const QVariant &count) { return count.toULongLong(); });
    return reply;
}

} // namespace

std::shared_ptr<RemoteChannel> RemoteChannel::make(const QString &serviceName)
{
    std::shared_ptr<RemoteChannel> channel(
        new RemoteChannel(serviceName), [](RemoteChannel *ended) { ended->deleteLater(); });
    QThread *const thread = sharedConnectionThread();
    channel->moveToThread(thread);
    // A pending handler may own the connection that owns the channel, and would keep both alive for ever.
    connect(
        thread, &QThread::finished, channel.get(), [&replies = channel->m_replies] { replies.close(); },
        Qt::DirectConnection);
    return channel;
}

RemoteChannel::RemoteChannel(QString serviceName)
    : m_serviceName(std::move(serviceName))
{
}

RemoteChannel::~RemoteChannel() = default;

void RemoteChannel::resume()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isResumed = true;
            callWaitingRequests();
        },
        Qt::QueuedConnection);
}

void RemoteChannel::send(RemoteObjectInterface interface, RemoteRequest request, RemoteReplyHandler handler,
    RemoteErrorHandler errorHandler)
{
    Request made{.interface = std::move(interface),
        .content = std::move(request),
        .hasErrorHandler = static_cast<bool>(errorHandler)};
    const Identifier identifier = m_replies.add(std::move(handler), std::move(errorHandler));
    QMetaObject::invokeMethod(
        this, [this, identifier, made = std::move(made)] { accept(identifier, made); }, Qt::QueuedConnection);
}

void RemoteChannel::close()
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

void RemoteChannel::accept(Identifier identifier, const Request &request)
{
    if (m_isClosed)
        return;
    m_requests.emplace(identifier, request);
    if (m_isResumed)
        call(identifier);
}

void RemoteChannel::callWaitingRequests()
{
    for (const Identifier identifier : identifiers()) {
        if (m_requests.at(identifier).pendingCalls == 0)
            call(identifier);
    }
}

void RemoteChannel::call(Identifier identifier)
{
    const Result<QDBusConnection, QString> bus = connectToBus();
    if (!bus) {
        giveUp(identifier, publicly(QStringLiteral("no session bus")), bus.error());
        return;
    }
    Request &request = m_requests.at(identifier);
    // The message duplicates the descriptor, so the empty file is needed in this function only.
    std::optional<SealedMemory::MemoryResult> empty;
    const SealedMemory *payload = request.content.payload.get();
    if (!payload) {
        empty = SealedMemory::copyOf({});
        if (!*empty) {
            giveUp(identifier, publicly(QStringLiteral("no memory file")), causeText(empty->error()));
            return;
        }
        payload = &empty->value();
    }
    ++request.pendingCalls;
    auto *watcher = new QDBusPendingCallWatcher(
        bus.value().asyncCall(messageFor(request, *payload), infiniteTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, identifier, watcher] {
        watcher->deleteLater();
        handleAnswer(identifier, watcher->reply());
    });
}

void RemoteChannel::repeatCall(Identifier identifier)
{
    m_requests.at(identifier).isRepeated = true;
    call(identifier);
}

void RemoteChannel::repeatLostCalls()
{
    for (const Identifier identifier : identifiers()) {
        const Request &request = m_requests.at(identifier);
        if (request.pendingCalls > 0 && !request.isRepeated)
            repeatCall(identifier);
    }
}

Result<QDBusConnection, QString> RemoteChannel::connectToBus()
{
    if (!m_bus)
        m_bus = std::make_unique<SessionBusConnection>();
    if (const QDBusConnection current = m_bus->current(); current.isConnected())
        return current;
    Result<QDBusConnection, QString> bus = m_bus->connect();
    if (!bus)
        return bus;
    m_watcher = std::make_unique<QDBusServiceWatcher>(
        m_serviceName, bus.value(), QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_watcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &oldOwner) {
            if (!oldOwner.isEmpty())
                repeatLostCalls();
        });
    return bus;
}

QDBusMessage RemoteChannel::messageFor(const Request &request, const SealedMemory &payload) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        m_serviceName, request.interface.objectPath, request.interface.name, request.content.method);
    message << QVariant::fromValue(QDBusUnixFileDescriptor(payload.descriptor()))
            << static_cast<quint64>(payload.size()) << (request.content.payload == nullptr)
            << request.content.options;
    return message;
}

// A request may have two pending calls; the first answer to either counts.
void RemoteChannel::handleAnswer(Identifier identifier, const QDBusMessage &answer)
{
    const auto found = m_requests.find(identifier);
    if (found == m_requests.end())
        return;
    Request &request = found->second;
    --request.pendingCalls;
    if (answer.type() == QDBusMessage::ReplyMessage) {
        if (const std::optional<RemoteReply> reply = parseReply(answer)) {
            m_requests.erase(found);
            m_replies.deliver(identifier, *reply);
        } else {
            giveUp(identifier, publicly(QStringLiteral("an answer of another form")),
                publicly(answer.signature()));
        }
        return;
    }
    if (isServiceLost(answer)) {
        if (request.pendingCalls > 0)
            return;
        if (!request.isRepeated) {
            repeatCall(identifier);
            return;
        }
    }
    if (request.hasErrorHandler
        && answer.errorName().startsWith(request.interface.name + QStringLiteral(".Error."))) {
        m_requests.erase(found);
        m_replies.deliverError(identifier, answer.errorMessage());
        return;
    }
    giveUp(identifier, publicly(answer.errorName()), answer.errorMessage());
}

void RemoteChannel::giveUp(Identifier identifier, const LogArgument &cause, const LogArgument &details)
{
    if (!m_isClosed) {
        LogChannel::standard().error(u"No answer from {} to {}: {}: {}",
            {publicly(m_serviceName), publicly(m_requests.at(identifier).content.method), cause, details});
    }
    m_requests.erase(identifier);
    m_replies.drop(identifier);
}

std::vector<RemoteChannel::Identifier> RemoteChannel::identifiers() const
{
    std::vector<Identifier> all;
    all.reserve(m_requests.size());
    for (const auto &[identifier, request] : m_requests)
        all.push_back(identifier);
    return all;
}
