// SPDX-License-Identifier: MIT
// RecordingDelegate records the messages of a watched-file model.
// Thread: main.  Owner: the test.
#pragma once

#include "watching/WatchTextFileModelDelegate.h"

#include <QStringList>

#include <functional>
#include <utility>

class RecordingDelegate final : public WatchTextFileModelDelegate {
public:
    void currentlyWatchedTextFileDidUpdateWithAttributedString(
        const AttributedString &attributedString, WatchTextFileModel &watchModel) override;
    void currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel &watchModel) override;
    void currentlyWatchedDocXFileDidUpdateWithDocxData(
        const QUrl &docxData, WatchTextFileModel &watchModel) override;
    void currentlyWatchedTextFileWasRenamed(const QString &newName, WatchTextFileModel &watchModel) override;

    /// "text CONTENTS", "failed", "failed while watching", "docx NAME", "renamed to NAME", since the last
    /// call.
    QStringList takeMessages() { return std::exchange(m_messages, {}); }

    /// The text of the last "text".
    [[nodiscard]] const AttributedString &lastText() const { return m_lastText; }

    std::function<void()> whenTold;

private:
    void note(const QString &message);

    QStringList m_messages;
    AttributedString m_lastText;
};

/// A delegate without the optional message.
class TerseDelegate final : public WatchTextFileModelDelegate {
public:
    void currentlyWatchedTextFileDidUpdateWithAttributedString(
        const AttributedString & /*attributedString*/, WatchTextFileModel & /*watchModel*/) override
    {
    }
    void currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel & /*watchModel*/) override { }
    void currentlyWatchedDocXFileDidUpdateWithDocxData(
        const QUrl & /*docxData*/, WatchTextFileModel & /*watchModel*/) override
    {
    }
};
