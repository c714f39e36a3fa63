// SPDX-License-Identifier: MIT
#include "tests/platform/file_coordination/RecordingPresenter.h"

#include <QFile>

void RecordingPresenter::presentedItemDidChange()
{
    QFile file(m_url.toLocalFile());
    m_contents = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    note(QStringLiteral("changed"));
}

void RecordingPresenter::presentedItemDidMoveToURL(const QUrl &newURL)
{
    m_url = newURL;
    note(QStringLiteral("moved to ") + newURL.toLocalFile());
}

void RecordingPresenter::accommodatePresentedItemDeletionWithCompletionHandler(
    const CompletionHandler &completionHandler)
{
    note(QStringLiteral("deleted"));
    completionHandler(std::nullopt);
}

void RecordingPresenter::relinquishPresentedItemToReader(const Block &reader)
{
    relinquish(QStringLiteral("lent to reader"), reader);
}

void RecordingPresenter::relinquishPresentedItemToWriter(const Block &writer)
{
    relinquish(QStringLiteral("lent to writer"), writer);
}

void RecordingPresenter::relinquish(const QString &party, const Block &block)
{
    m_news << party;
    if (!keepsFile)
        block([this] { m_news << QStringLiteral("back"); });
}

void RecordingPresenter::note(const QString &news)
{
    m_news << news;
    if (whenTold)
        whenTold();
}
