// SPDX-License-Identifier: MIT
#include "command/ServiceCounter.h"

#include "documents/rtfd/RtfdWriter.h"

#include <future>
#include <memory>

QString causeText(CountServiceFailure failure)
{
    switch (failure) {
    case CountServiceFailure::NoAnswer:
        return QStringLiteral("the counting service does not answer; run again without --service");
    case CountServiceFailure::NotEnoughMemory:
        break;
    }
    return QStringLiteral("not enough memory to send it to the counting service");
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
    CountRequest request, QByteArrayView payload)
{
    SealedMemory::MemoryResult memory = SealedMemory::copyOf(payload);
    if (!memory)
        return CountServiceFailure::NotEnoughMemory;
    // A connection that gives up a request destroys its handler, which breaks the promise.
    auto promise = std::make_shared<std::promise<QBYWordCounterStats>>();
    std::future<QBYWordCounterStats> answer = promise->get_future();
    const WordCounterServiceProtocol service(m_connection.remoteObjectProxy());
    (service.*request)(std::make_shared<const SealedMemory>(std::move(memory).value()),
        [promise = std::move(promise)](const QBYWordCounterStats &stats) { promise->set_value(stats); });
    try {
        return answer.get();
    } catch (const std::future_error &) {
        return CountServiceFailure::NoAnswer;
    }
}
