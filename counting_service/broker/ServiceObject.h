// SPDX-License-Identifier: MIT
// ServiceObject is the counting service as the bus sees it: the interface of
// docs/dbus/Brisklane.QBYServiceProviderXPC.xml. It turns a message into a request and an outcome into the
// reply; how documents are counted is not its business.
// Thread: lives on that on which Qt reads the bus, where messages come and end (BusLimits.h tells why); its
// public functions, main.  Owner: CountingService.
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

/// One request, not yet looked into.
struct ReceivedRequest {
    using Outcome = Result<QBYWordCounterStats, CountFailure>;

    DocumentKind kind;
    QDBusUnixFileDescriptor payload;
    quint64 length;
    bool isAbsent;
    std::optional<QByteArray> localeName; ///< absent: the service's own
    std::function<void(const Outcome &)> answer; ///< replies; to be called once, on the main thread
};

class ServiceObject : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quillbay.WordCounterServiceProtocol")

public:
    static QString serviceName();
    static QString path();

    /// Called on the main thread.
    using Receiver = std::function<void(const ReceivedRequest &)>;
    ServiceObject(QDBusConnection bus, Receiver receiver);
    ServiceObject(const ServiceObject &) = delete;
    ServiceObject &operator=(const ServiceObject &) = delete;
    /// Waits for the bus's thread to be done with it; requests without an answer get none.
    ~ServiceObject() override;

    /// Puts it on the bus. Requests come once the service has its name.
    [[nodiscard]] bool registerOnBus();

    /// Hands over every request that the bus's thread has read before, and waits until it has sent every
    /// answer.
    void settle();

public Q_SLOTS:
    // The counts are never set here: the reply follows when they are known.
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

private:
    void receive(DocumentKind kind, const QDBusUnixFileDescriptor &payload, quint64 length, bool absent,
        const QVariantMap &options);
    void reply(quint64 number, const ReceivedRequest::Outcome &outcome);

    QDBusConnection m_bus;
    Receiver m_receiver;
    QObject m_onMainThread; ///< where requests are handed over
    std::map<quint64, QDBusMessage> m_replies; ///< each holds its request's message; of the bus's thread
    quint64 m_requests = 0; ///< so far; of the bus's thread
};
