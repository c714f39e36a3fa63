// SPDX-License-Identifier: MIT
// ServiceObject is the counting service as the bus sees it: the interface of
// docs/dbus/Brisklane.QBYServiceProviderXPC.xml. It turns a message into a request and an outcome into the
// reply; how documents are counted is not its business.
// Thread: main.  Owner: CountingService.
#pragma once

#include "counting_service/protocol/WorkerMessages.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>

#include <functional>

/// One request, not yet looked into.
struct ReceivedRequest {
    using Outcome = Result<QBYWordCounterStats, CountFailure>;

    PayloadKind kind;
    QDBusUnixFileDescriptor payload;
    quint64 length;
    bool isAbsent;
    std::optional<QByteArray> localeName; ///< absent: the service's own
    std::function<void(const Outcome &)> answer; ///< replies; to be called once
};

class ServiceObject : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quillbay.WordCounterServiceProtocol")

public:
    static QString serviceName();
    static QString path();

    using Receiver = std::function<void(const ReceivedRequest &)>;
    explicit ServiceObject(Receiver receiver);

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
    void receive(PayloadKind kind, const QDBusUnixFileDescriptor &payload, quint64 length, bool absent,
        const QVariantMap &options);

    Receiver m_receiver;
};
