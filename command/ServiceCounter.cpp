// SPDX-License-Identifier: MIT
#include "command/ServiceCounter.h"

#include "documents/rtfd/RtfdWriter.h"

#include <future>
#include <memory>

QString causeText(CountServiceFailure failure)
{
    switch (failure) {
    case CountServiceFailure::NoAnswer:
        return QStringLiteral("the counting service does not answer; count without --service");
    case CountServiceFailure::NotEnoughMemory:
        break;
    }
    return QStringLiteral("not enough memory to hand it to the counting service");
}

ServiceCounter::ServiceCounter()
    : m_connection(WordCounterServiceProtocol::serviceName())
{
    m_connection.setRemoteObjectInterface(WordCounterServiceProtocol::interface());
    m_connection.resume();
}

Result<QBYWordCounterStats, CountServiceFailure> ServiceCounter::countText(const AttributedString &text)
{
    const auto data = RTFDFromRange(text, 0, text.length());
    if (!data)
        return CountServiceFailure::NotEnoughMemory;
    return count(&WordCounterServiceProtocol::countWordsForAttributedStringRTFDData, data.value());
}

Result<QBYWordCounterStats, CountServiceFailure> ServiceCounter::countWordDocument(QByteArrayView bytes)
{
    return count(&WordCounterServiceProtocol::countWordsForDocX, bytes);
}

Result<QBYWordCounterStats, CountServiceFailure> ServiceCounter::count(
    Request request, QByteArrayView payload)
{
    SealedMemory::MemoryResult memory = SealedMemory::copyOf(payload);
    if (!memory)
        return CountServiceFailure::NotEnoughMemory;
    // A connection that gives a request up lets its handler go, and with it the promise.
    auto promise = std::make_shared<std::promise<RemoteReply>>();
    std::future<RemoteReply> answer = promise->get_future();
    const WordCounterServiceProtocol service(m_connection.remoteObjectProxy());
    (service.*request)(std::make_shared<const SealedMemory>(std::move(memory).value()),
        [promise = std::move(promise)](const RemoteReply &reply) { promise->set_value(reply); });
    try {
        const RemoteReply counts = answer.get();
        return QBYWordCounterStats{
            counts[0], counts[1], counts[2], counts[3], counts[4], counts[5], counts[6], counts[7]};
    } catch (const std::future_error &) {
        return CountServiceFailure::NoAnswer;
    }
}
