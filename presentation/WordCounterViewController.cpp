// SPDX-License-Identifier: MIT
#include "presentation/WordCounterViewController.h"

#include "platform/logging/LogChannel.h"
#include "platform/system/MainQueue.h"

#include <utility>

WordCounterViewController::WordCounterViewController(QString interfaceFile)
    : BaseWordCounterViewController(std::move(interfaceFile))
{
    _setUpOnInit();
}

WordCounterViewController::~WordCounterViewController() = default;

void WordCounterViewController::_setUpOnInit()
{
    m_wordCounter = std::make_shared<WordCounterModel>();
}

void WordCounterViewController::setIsAsyncCountOperationInProgress(bool isInProgress)
{
    if (std::exchange(m_isAsyncCountOperationInProgress, isInProgress) != isInProgress)
        Q_EMIT isAsyncCountOperationInProgressChanged();
}

void WordCounterViewController::updateStatsWithString(const QString &string)
{
    LogChannel::standard().notice(
        u"Called update stats with string..you should use the updateStatsWithAttributedString: if "
        u"possible...as "
        u"it will result in more accurate line number calculations. We are going to default to a 12 point "
        u"helvitica font.");
    MainQueue::async([panel = shared_from_this(), string] {
        TextAttributes attributes;
        attributes.font = FontAttributes{.family = QStringLiteral("Helvetica"), .pointSize = 12};
        panel->updateStatsWithAttributedString(AttributedString(string, attributes));
    });
}

void WordCounterViewController::updateStatsWithAttributedString(const AttributedString &attributedString)
{
    MainQueue::async([panel = shared_from_this(), attributedString] {
        panel->m_wordCounter->setAttributedStringToCount(attributedString);
        panel->updateLabels();
        panel->repositionLabels();
    });
}

void WordCounterViewController::updateStatsWithDocXMetaData(const QBYDocxMetaData &docXMetaData)
{
    MainQueue::async([panel = shared_from_this(), docXMetaData] {
        panel->m_wordCounter->setDocXMetaDataToFormat(docXMetaData);
        panel->updateLabels();
        panel->repositionLabels();
    });
}

void WordCounterViewController::updateInterfaceWithPrepopulatedStats(const QBYWordCounterStats &stats)
{
    m_wordCounter->updateModelWithPrepopulatedStats(stats);
    updateLabels();
    repositionLabels();
}

void WordCounterViewController::updateLabels()
{
    for (const StatisticRow &row : statisticTable) {
        const std::shared_ptr<Label> label = textField(row.statistic);
        if (!label)
            continue; // the view is not loaded yet
        label->setStringValue(m_wordCounter->formattedString(row.statistic));
        label->sizeToFit();
    }
}
