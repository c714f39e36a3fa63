// SPDX-License-Identifier: MIT
#include "presentation/ServiceCounter.h"

#include "documents/rtfd/RtfdWriter.h"
#include "platform/session_bus/SessionBusState.h"
#include "presentation/WordCounterServiceProtocol.h"

#include <QCoreApplication>

#include <future>
#include <memory>

namespace {

using Outcome = Result<QBYWordCounterStats, QString>;

QString memoryFailure()
{
    return QCoreApplication::translate(
        "presentation", "not enough memory to send it to the counting service");
}

/// The service gives the cause in English, whatever its own language is.
QString inUsersLanguage(const QString &cause)
{
    const QByteArray source = cause.toUtf8();
    for (const char *const room : {"documents", "counting_service", "platform/files"}) {
        if (QString text = QCoreApplication::translate(room, source.constData()); text != cause)
            return text;
    }
    return cause;
}

} // namespace

ServiceCounter::ServiceCounter()
    : m_connection(WordCounterServiceProtocol::serviceName())
{
    m_connection.setRemoteObjectInterface(WordCounterServiceProtocol::interface());
    m_connection.resume();
}

Outcome ServiceCounter::countText(const AttributedString &text)
{
    const auto data = RTFDFromRange(text, 0, text.length());
    if (!data)
        return memoryFailure();
    return countDocument(DocumentKind::Rtfd, data.value());
}

Outcome ServiceCounter::countDocument(DocumentKind kind, QByteArrayView bytes)
{
    if (sessionBusFault())
        return QCoreApplication::translate("presentation",
            "there is no session bus, over which the counting service is reached; run "
            "again without --service");
    SealedMemory::MemoryResult memory = SealedMemory::copyOf(bytes);
    if (!memory)
        return memoryFailure();
    // A connection that gives up a request destroys its handlers, which breaks the promise.
    auto promise = std::make_shared<std::promise<Outcome>>();
    std::future<Outcome> answer = promise->get_future();
    const WordCounterServiceProtocol service(m_connection.remoteObjectProxy());
    service.countDocument(
        kind, std::make_shared<const SealedMemory>(std::move(memory).value()),
        [promise](const QBYWordCounterStats &stats) { promise->set_value(stats); },
        [promise](const QString &cause) { promise->set_value(inUsersLanguage(cause)); });
    promise.reset();
    try {
        return answer.get();
    } catch (const std::future_error &) {
        return QCoreApplication::translate("presentation",
            "the counting service does not answer; run again without --service, or 'quillbay doctor' to find "
            "out why");
    }
}
