// SPDX-License-Identifier: MIT
// RecordingPresenter presents a file and records what is reported to it.
// Thread: main.  Owner: the test.
#pragma once

#include "platform/file_coordination/FileCoordinator.h"

#include <QStringList>

#include <utility>

class RecordingPresenter final : public FilePresenter {
public:
    explicit RecordingPresenter(const QString &path)
        : m_url(QUrl::fromLocalFile(path))
    {
    }

    [[nodiscard]] QUrl presentedItemURL() const override { return m_url; }
    void presentedItemDidChange() override;
    void presentedItemDidMoveToURL(const QUrl &newURL) override;
    void accommodatePresentedItemDeletionWithCompletionHandler(
        const CompletionHandler &completionHandler) override;
    void relinquishPresentedItemToReader(const Block &reader) override;
    void relinquishPresentedItemToWriter(const Block &writer) override;

    /// "changed", "moved to PATH", "deleted", "lent to reader", "lent to writer", "back"; those since the
    /// last call.
    QStringList takeNews() { return std::exchange(m_news, {}); }
    [[nodiscard]] const QStringList &news() const { return m_news; }
    /// The file as it was read at the last change.
    [[nodiscard]] const QByteArray &contents() const { return m_contents; }
    void present(const QString &path) { m_url = QUrl::fromLocalFile(path); }

    std::function<void()> whenTold; ///< called after each change, move and deletion
    bool keepsFile = false; ///< does not call the blocks that ask for the file

private:
    void relinquish(const QString &party, const Block &block);
    void note(const QString &news);

    QUrl m_url;
    QStringList m_news;
    QByteArray m_contents;
};
