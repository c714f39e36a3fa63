// SPDX-License-Identifier: MIT
#include "counting_service/broker/ServiceObject.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QThread>

#include <algorithm>
#include <utility>

namespace {

using Outcome = ReceivedRequest::Outcome;

QString textIn(const QVariantMap &options, const QString &name)
{
    const QVariant value = options.value(name);
    return value.metaType() == QMetaType::fromType<QString>() ? value.toString() : QString();
}

// As with LANG, an impossible name stands for the locale "C".
std::optional<QByteArray> localeNameIn(const QVariantMap &options)
{
    const QString name = textIn(options, QStringLiteral("locale"));
    if (name.isEmpty())
        return std::nullopt;
    const bool isPossible = name.size() <= RulesSnapshot::maxLocaleNameLength
        && std::all_of(
            name.begin(), name.end(), [](QChar unit) { return unit > u' ' && unit < QChar(0x7F); });
    return isPossible ? name.toLatin1() : QByteArray("C");
}

std::optional<DocumentKind> kindIn(const QVariantMap &options, DocumentKind defaultKind)
{
    const QString type = textIn(options, QStringLiteral("type"));
    return type.isEmpty() ? defaultKind : kindOfMimeType(type.toLower());
}

// Names that no charset has count as unknown, which is detected from the bytes.
QByteArray charsetIn(const QVariantMap &options)
{
    const QString name = textIn(options, QStringLiteral("charset"));
    return name.size() <= WorkerMessages::maxCharsetLength ? name.toLatin1() : QByteArray();
}

QVariantList argumentsOf(const QBYWordCounterStats &stats)
{
    QVariantList arguments;
    for (const StatisticRow &row : statisticTable)
        arguments.append(stats.*row.count);
    return arguments;
}

} // namespace

ServiceObject::ServiceObject(QDBusConnection bus, Receiver receiver, Dropper dropper)
    : m_bus(std::move(bus))
    , m_receiver(std::move(receiver))
    , m_dropper(std::move(dropper))
{
    // Qt finds the type of the slots' parameters by this name.
    qRegisterMetaType<QDBusUnixFileDescriptor>("QDBusUnixFileDescriptor");
    if (const QDBusConnectionInterface *const daemon = m_bus.interface())
        moveToThread(daemon->thread());
}

ServiceObject::~ServiceObject()
{
    m_bus.unregisterObject(path());
    QThread *const mainThread = QThread::currentThread();
    if (thread() == mainThread)
        return;
    const auto moveBack = [this, mainThread] {
        m_replies.clear();
        moveToThread(mainThread);
    };
    QMetaObject::invokeMethod(this, moveBack, Qt::BlockingQueuedConnection);
}

// The bus sends a client's departure after its requests. One subscription for all clients: a busy service
// would otherwise need a match rule for each of them, which the bus limits.
bool ServiceObject::registerOnBus()
{
    return m_bus.connect(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
               QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameOwnerChanged"), this,
               SLOT(nameOwnerDidChange(QString, QString, QString)))
        && m_bus.registerObject(path(), this, QDBusConnection::ExportScriptableSlots);
}

void ServiceObject::flush()
{
    if (thread() != QThread::currentThread())
        QMetaObject::invokeMethod(
            this, [] {}, Qt::BlockingQueuedConnection);
    QCoreApplication::sendPostedEvents(&m_onMainThread);
}

QString ServiceObject::serviceName()
{
    return QStringLiteral("Brisklane.QBYServiceProviderXPC");
}

QString ServiceObject::failureName()
{
    return QStringLiteral("com.quillbay.WordCounterServiceProtocol.Error.NotCounted");
}

QString ServiceObject::path()
{
    return QStringLiteral("/Brisklane/QBYServiceProviderXPC");
}

void ServiceObject::countWordsForAttributedStringRTFDData(const QDBusUnixFileDescriptor &payload,
    qulonglong length, bool absent, const QVariantMap &options, qulonglong &, qulonglong &, qulonglong &,
    qulonglong &, qulonglong &, qulonglong &, qulonglong &, qulonglong &)
{
    receive(DocumentKind::Rtfd, payload, length, absent, options);
}

void ServiceObject::countWordsForDocX(const QDBusUnixFileDescriptor &payload, qulonglong length, bool absent,
    const QVariantMap &options, qulonglong &, qulonglong &, qulonglong &, qulonglong &, qulonglong &,
    qulonglong &, qulonglong &, qulonglong &)
{
    receive(DocumentKind::WordDocument, payload, length, absent, options);
}

void ServiceObject::receive(DocumentKind defaultKind, const QDBusUnixFileDescriptor &payload, quint64 length,
    bool absent, const QVariantMap &options)
{
    setDelayedReply(true);
    if (!message().isReplyRequired())
        return;
    const RequestKey key(message().service(), ++m_requests);
    m_replies.emplace(key, PendingReply{message(), options.value(QStringLiteral("wants-cause")).toBool()});
    const auto reply = [this, key](const Outcome &outcome) {
        QMetaObject::invokeMethod(this, [this, key, outcome] { sendReply(key, outcome); });
    };
    const ReceivedRequest request{.number = key.second,
        .kind = kindIn(options, defaultKind),
        .charset = charsetIn(options),
        .payload = payload,
        .length = length,
        .isAbsent = absent,
        .localeName = localeNameIn(options),
        .reply = reply};
    QMetaObject::invokeMethod(
        &m_onMainThread, [this, request] { m_receiver(request); }, Qt::QueuedConnection);
}

void ServiceObject::nameOwnerDidChange(
    const QString &name, const QString & /*oldOwner*/, const QString &newOwner)
{
    if (!newOwner.isEmpty())
        return;
    auto pending = m_replies.lower_bound({name, 0});
    while (pending != m_replies.end() && pending->first.first == name) {
        QMetaObject::invokeMethod(
            &m_onMainThread, [this, number = pending->first.second] { m_dropper(number); },
            Qt::QueuedConnection);
        pending = m_replies.erase(pending);
    }
}

void ServiceObject::sendReply(const RequestKey &key, const Outcome &outcome)
{
    const auto pending = m_replies.extract(key);
    if (pending.empty())
        return; // the client has left meanwhile
    const auto &[request, wantsCause] = pending.mapped();
    if (!outcome && wantsCause)
        m_bus.send(request.createErrorReply(failureName(), causeText(outcome.error())));
    else
        m_bus.send(request.createReply(argumentsOf(outcome ? outcome.value() : QBYWordCounterStats())));
}
