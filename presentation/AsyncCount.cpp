// SPDX-License-Identifier: MIT
// The asynchronous counts of WordCounterViewController: from the document over the service to the labels.
#include "presentation/WordCounterViewController.h"

#include "documents/rtfd/RtfdWriter.h"
#include "platform/files/FileContents.h"
#include "platform/logging/LogChannel.h"
#include "platform/system/DispatchQueue.h"
#include "platform/system/FileURL.h"
#include "platform/system/MainQueue.h"

#include <utility>

namespace {

using Data = WordCounterServiceProtocol::Data;

// On failure the functions below return null, which the service answers with zeros.

Data sealBytes(const QByteArray &bytes)
{
    SealedMemory::MemoryResult memory = SealedMemory::copyOf(bytes);
    if (!memory) {
        LogChannel::standard().error(
            u"Could not pass a document to the counting service: {}", {publicly(causeText(memory.error()))});
        return nullptr;
    }
    return std::make_shared<const SealedMemory>(std::move(memory).value());
}

Data sealText(const AttributedString &text)
{
    const auto rtfd = RTFDFromRange(text, 0, text.length(), {});
    return rtfd ? sealBytes(rtfd.value()) : nullptr;
}

Data sealFile(const QUrl &url)
{
    const QByteArray path = pathOfFileURL(url);
    if (path.isEmpty())
        return nullptr;
    const auto contents = readFile(path);
    return contents ? sealBytes(contents.value()) : nullptr;
}

} // namespace

void WordCounterViewController::openConnectionToWordCounterService()
{
    if (_connectionToWordCounterService)
        return;
    _connectionToWordCounterService =
        std::make_shared<RemoteObjectConnection>(WordCounterServiceProtocol::serviceName());
    _connectionToWordCounterService->setRemoteObjectInterface(WordCounterServiceProtocol::interface());
    _connectionToWordCounterService->resume();
}

void WordCounterViewController::asyncUpdateStatsWithAttributedString(
    const AttributedString &attributedString, Completion completion)
{
    asyncUpdateStats(
        QStringLiteral("com.rtfdCreatorQueue"), [attributedString] { return sealText(attributedString); },
        &WordCounterServiceProtocol::countWordsForAttributedStringRTFDData, std::move(completion));
}

void WordCounterViewController::asyncUpdateStatsDocXFileURL(const QUrl &fileURL, Completion completion)
{
    asyncUpdateStats(
        QStringLiteral("com.docxCreatorQueue"), [fileURL] { return sealFile(fileURL); },
        &WordCounterServiceProtocol::countWordsForDocX, std::move(completion));
}

void WordCounterViewController::asyncUpdateStats(const QString &queueLabel,
    const std::function<Data()> &makeData, CountRequest request, Completion completion)
{
    openConnectionToWordCounterService();
    if (m_isAsyncCountOperationInProgress)
        return;
    setIsAsyncCountOperationInProgress(true);
    // The queue's thread may release the last reference to either.
    const auto panel = releaseOnMainThread(shared_from_this());
    const HeldCompletion held = releaseOnMainThread(std::move(completion));
    DispatchQueue(queueLabel).async([panel, held, makeData, request] {
        MainQueue::async([panel, held, request, data = makeData()] { (*panel)->send(request, data, held); });
    });
}

// Uses the current connection: a request that was stopped before it was sent is sent after all if a later
// request has opened a connection.
void WordCounterViewController::send(CountRequest request, const Data &data, const HeldCompletion &completion)
{
    const std::shared_ptr<RemoteObjectConnection> connection = _connectionToWordCounterService;
    if (!connection)
        return;
    const WordCounterServiceProtocol service(connection->remoteObjectProxy());
    // The handler shares the connection, so that the answer arrives even if the panel is destroyed first.
    (service.*request)(
        data, [weakPanel = weak_from_this(), connection, completion](const QBYWordCounterStats &stats) {
            MainQueue::async([panel = releaseOnMainThread(weakPanel.lock()),
                                 sentOver = std::weak_ptr(connection), completion, stats] {
                if (!*panel)
                    (*completion)();
                else if ((*panel)->isOpen(sentOver)) // otherwise the count has been stopped
                    (*panel)->showReply(stats, *completion);
            });
        });
}

bool WordCounterViewController::isOpen(const std::weak_ptr<RemoteObjectConnection> &connection) const
{
    return _connectionToWordCounterService && _connectionToWordCounterService == connection.lock();
}

void WordCounterViewController::showReply(const QBYWordCounterStats &stats, const Completion &completion)
{
    updateInterfaceWithPrepopulatedStats(stats);
    completion();
    // After the completion, so that a count which the completion starts is refused.
    setIsAsyncCountOperationInProgress(false);
}

void WordCounterViewController::stopAsyncOperation()
{
    if (const auto connection = std::exchange(_connectionToWordCounterService, nullptr))
        connection->invalidate();
    setIsAsyncCountOperationInProgress(false);
}
