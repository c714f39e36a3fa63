// SPDX-License-Identifier: MIT
// The asynchronous counts of WordCounterViewController: from the request over the service to the labels.
#include "presentation/word_counter/WordCounterViewController.h"

#include "platform/dispatch/DispatchQueue.h"
#include "platform/dispatch/MainQueue.h"
#include "presentation/word_counter/CountPayload.h"

#include <utility>

void WordCounterViewController::openConnectionToWordCounterService()
{
    if (_connectionToWordCounterService)
        return;
    _connectionToWordCounterService =
        std::make_shared<ServiceConnection>(WordCounterServiceProtocol::serviceName());
    _connectionToWordCounterService->setRemoteObjectInterface(WordCounterServiceProtocol::interface());
    _connectionToWordCounterService->resume();
}

void WordCounterViewController::dropConnectionToWordCounterService()
{
    if (_connectionToWordCounterService)
        _connectionToWordCounterService->invalidate();
    _connectionToWordCounterService.reset();
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
    const auto panel = releasedOnMainThread(shared_from_this());
    const HeldCompletion held = releasedOnMainThread(std::move(completion));
    const std::weak_ptr acceptedOver(_connectionToWordCounterService);
    DispatchQueue(queueLabel).async([panel, held, makeData, request, acceptedOver] {
        MainQueue::async([panel, held, request, acceptedOver, data = makeData()] {
            if ((*panel)->isOpen(acceptedOver)) // otherwise it was stopped meanwhile
                (*panel)->send(request, data, held);
        });
    });
}

bool WordCounterViewController::isOpen(const std::weak_ptr<ServiceConnection> &connection) const
{
    return _connectionToWordCounterService && _connectionToWordCounterService == connection.lock();
}

void WordCounterViewController::send(CountRequest request, const Data &data, const HeldCompletion &completion)
{
    const WordCounterServiceProtocol service(_connectionToWordCounterService->remoteObjectProxy());
    const std::weak_ptr sentOver(_connectionToWordCounterService);
    (service.*request)(data, [weakPanel = weak_from_this(), sentOver, completion](const ServiceReply &reply) {
        MainQueue::async([panel = releasedOnMainThread(weakPanel.lock()), sentOver, completion, reply] {
            if (!*panel)
                (*completion)();
            else if ((*panel)->isOpen(sentOver)) // otherwise it was stopped meanwhile
                (*panel)->showReply(reply, *completion);
        });
    });
}

void WordCounterViewController::showReply(const ServiceReply &reply, const Completion &completion)
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
    dropConnectionToWordCounterService();
    setIsAsyncCountOperationInProgress(false);
}
