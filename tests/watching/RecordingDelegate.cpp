// SPDX-License-Identifier: MIT
#include "tests/watching/RecordingDelegate.h"

#include "watching/WatchTextFileModel.h"

void RecordingDelegate::currentlyWatchedTextFileDidUpdateWithAttributedString(
    const AttributedString &attributedString, WatchTextFileModel & /*watchModel*/)
{
    m_lastText = attributedString;
    note(QStringLiteral("text ") + attributedString.string());
}

void RecordingDelegate::currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel &watchModel)
{
    note(
        watchModel.isWatchingTextFile() ? QStringLiteral("failed while watching") : QStringLiteral("failed"));
}

void RecordingDelegate::currentlyWatchedDocXFileDidUpdateWithDocxData(
    const QUrl &docxData, WatchTextFileModel & /*watchModel*/)
{
    note(QStringLiteral("docx ") + docxData.fileName());
}

void RecordingDelegate::currentlyWatchedTextFileWasRenamed(
    const QString &newName, WatchTextFileModel & /*watchModel*/)
{
    note(QStringLiteral("renamed to ") + newName);
}

void RecordingDelegate::note(const QString &message)
{
    m_messages << message;
    if (whenTold)
        whenTold();
}
