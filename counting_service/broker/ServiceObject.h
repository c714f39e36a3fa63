// SPDX-License-Identifier: MIT
// ServiceObject is the counting service on the bus: the interface of
// docs/dbus/Brisklane.QBYServiceProviderXPC.xml. It turns messages into requests and outcomes into replies,
// and notices when a client leaves the bus; the counting is left to CountingService.
// Thread: that of Qt's bus connection (see BusLimits.h); public functions: main.  Owner: CountingService.
#pragma once

#include "counting_service/protocol/WorkerMessages.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <map>
#include <utility>

/// A request as it was received; nothing about it has been checked.
struct ReceivedRequest {
    using Outcome = Result<QBYWordCounterStats, CountFailure>;

    quint64 number; ///< of the requests so far; a later request has a greater one
    std::optional<DocumentKind> kind; ///< absent: of a MIME type that no reader has
    QByteArray charset; ///< as of ReadOptions
    QDBusUnixFileDescriptor payload;
    quint64 length;
    bool isAbsent;
    std::optional<QByteArray> localeName; ///< absent: use that of the service
    /// To be called once at most, on the main thread. A client that has left the bus gets no reply.
    std::function<void(const Outcome &)> reply;
};

class ServiceObject : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quillbay.WordCounterServiceProtocol")

public:
    static QString serviceName();
    static QString path();
    /// The error for a client that wants the cause of a failure.
    static QString failureName();

    // Called on the main thread.
    using Receiver = std::function<void(const ReceivedRequest &)>;
    /// Called with the number of a request that has been received, and whose client has left the bus before
    /// the reply. Called after the receiver.
    using Dropper = std::function<void(quint64 number)>;
    ServiceObject(QDBusConnection bus, Receiver receiver, Dropper dropper);
    ServiceObject(const ServiceObject &) = delete;
    ServiceObject &operator=(const ServiceObject &) = delete;
    /// Waits until the bus's thread no longer uses it; open requests get no reply.
    ~ServiceObject() override;

    /// Registers the object. Requests arrive once the service has its name.
    [[nodiscard]] bool registerOnBus();

    /// Delivers every request that the bus's thread has read, and waits until it has sent every reply.
    void flush();

public Q_SLOTS:
    // The counts are never set here: the reply is sent when they are known.
    // NOLINTBEGIN(readability-non-const-parameter)
    Q_SCRIPTABLE void countWordsForAttributedStringRTFDData(const QDBusUnixFileDescriptor &payload,
        qulonglong length, bool absent, const QVariantMap &options, qulonglong &numberOfWords,
        qulonglong &numberOfCharacters, qulonglong &numberOfCharactersIncludingWhitespace,
        qulonglong &numberOfSentences, qulonglong &numberOfLines, qulonglong &numberOfHardLineBreaks,
        qulonglong &numberOfParagraphs, qulonglong &numberOfIndentedParagraphs);
    Q_SCRIPTABLE void countWordsForDocX(const QDBusUnixFileDescriptor &payload, qulonglong length,
        bool absent, const QVariantMap &options, qulonglong &numberOfWords, qulonglong &numberOfCharacters,
        qulonglong &numberOfCharactersIncludingWhitespace, qulonglong &numberOfSentences,
        qulonglong &numberOfLines, qulonglong &numberOfHardLineBreaks, qulonglong &numberOfParagraphs,
        qulonglong &numberOfIndentedParagraphs);
    // NOLINTEND(readability-non-const-parameter)

private Q_SLOTS:
    void nameOwnerDidChange(const QString &name, const QString &oldOwner, const QString &newOwner);

private:
    /// The client's name on the bus, then the number of the request: the requests of a client are in a row.
    using RequestKey = std::pair<QString, quint64>;
    struct PendingReply {
        QDBusMessage request;
        bool wantsCause; ///< of a failure, as an error in place of eight zeros
    };

    void receive(DocumentKind defaultKind, const QDBusUnixFileDescriptor &payload, quint64 length,
        bool absent, const QVariantMap &options);
    void sendReply(const RequestKey &key, const ReceivedRequest::Outcome &outcome);

    QDBusConnection m_bus;
    Receiver m_receiver;
    Dropper m_dropper;
    QObject m_onMainThread; ///< receives requests
    std::map<RequestKey, PendingReply> m_replies; ///< used by the bus's thread
    quint64 m_requests = 0; ///< so far; used by the bus's thread
};
