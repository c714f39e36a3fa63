// SPDX-License-Identifier: MIT
// The asynchronous counts of WordCounterViewController: from the request over the service to the labels.
#include "presentation/WordCounterViewController.h"

#include "platform/system/DispatchQueue.h"
#include "platform/system/MainQueue.h"
#include "presentation/CountPayload.h"

#include <utility>

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
        QStringLiteral("com.rtfdCreatorQueue"),
        [attributedString] { return CountPayload::ofText(attributedString); },
        &WordCounterServiceProtocol::countWordsForAttributedStringRTFDData, std::move(completion));
}

void WordCounterViewController::asyncUpdateStatsDocXFileURL(const QUrl &fileURL, Completion completion)
{
    asyncUpdateStats(
        QStringLiteral("com.docxCreatorQueue"), [fileURL] { return CountPayload::ofFile(fileURL); },
        &WordCounterServiceProtocol::countWordsForDocX, std::move(completion));
}

void WordCounterViewController::asyncUpdateStats(const QString &queueLabel,
    const std::function<Data()> &makeData, CountRequest request, Completion completion)
{
    openConnectionToWordCounterService();
    if (m_isAsyncCountOperationInProgress)
        return;
    setIsAsyncCountOperationInProgress(true);
    // The queue's thread may be the last to let them go.
    const auto panel = releaseOnMainThread(shared_from_this());
    const HeldCompletion held = releaseOnMainThread(std::move(completion));
    DispatchQueue(queueLabel).async([panel, held, makeData, request] {
        MainQueue::async([panel, held, request, data = makeData()] { (*panel)->send(request, data, held); });
    });
}

// Over the connection of this moment: a request that was stopped while its data were made is sent after all
// where another one has opened a connection since.
void WordCounterViewController::send(CountRequest request, const Data &data, const HeldCompletion &completion)
{
    const std::shared_ptr<RemoteObjectConnection> connection = _connectionToWordCounterService;
    if (!connection)
        return;
    const WordCounterServiceProtocol service(connection->remoteObjectProxy());
    // The handler owns the connection too, so that an answer arrives that the panel does not live to see.
    (service.*request)(
        data, [weakPanel = weak_from_this(), connection, completion](const RemoteReply &reply) {
            MainQueue::async([panel = releaseOnMainThread(weakPanel.lock()),
                                 sentOver = std::weak_ptr(connection), completion, reply] {
                if (!*panel)
                    (*completion)();
                else if ((*panel)->isOpen(sentOver)) // otherwise it was stopped meanwhile
                    (*panel)->showReply(reply, *completion);
            });
        });
}

bool WordCounterViewController::isOpen(const std::weak_ptr<RemoteObjectConnection> &connection) const
{
    return _connectionToWordCounterService && _connectionToWordCounterService == connection.lock();
}

void WordCounterViewController::showReply(const RemoteReply &reply, const Completion &completion)
{
    m_wordCounter->updateModelWithPrepopulatedStats({
        .numberOfWords = reply[0],
        .numberOfCharacters = reply[1],
        .numberOfCharactersIncludingWhitespace = reply[2],
        .numberOfSentences = reply[3],
        .numberOfLines = reply[4],
        .numberOfHardLineBreaks = reply[5],
        .numberOfParagraphs = reply[6],
        .numberOfIndentedParagraphs = reply[7],
    });
    updateLabels();
    repositionLabels();
    completion();
    // Only now, so that a count which the completion starts is refused.
    setIsAsyncCountOperationInProgress(false);
}

void WordCounterViewController::stopAsyncOperation()
{
    if (const auto connection = std::exchange(_connectionToWordCounterService, nullptr))
        connection->invalidate();
    setIsAsyncCountOperationInProgress(false);
}
