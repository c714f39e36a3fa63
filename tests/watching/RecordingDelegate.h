// SPDX-License-Identifier: MIT
// RecordingDelegate writes down what a watched-file model tells.
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

    /// "text CONTENTS", "failed", "failed while watching", "docx NAME", "renamed to NAME"; those since the
    /// last call.
    QStringList takeMessages() { return std::exchange(m_messages, {}); }

    /// That of the last "text".
    [[nodiscard]] const AttributedString &lastText() const { return m_lastText; }

    std::function<void()> whenTold;

private:
    void note(const QString &message);

    QStringList m_messages;
    AttributedString m_lastText;
};

/// A delegate that leaves the optional message out.
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
