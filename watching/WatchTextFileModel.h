// SPDX-License-Identifier: MIT
// WatchTextFileModel follows one document on disk and passes its content to its delegate at every change.
// Counting is left to the delegate.
// Thread: main.  Owner: the watch controller, which is its delegate; refers to it weakly.
#pragma once

#include "platform/file_coordination/FileCoordinator.h"
#include "platform/file_coordination/SecurityScopedBookmark.h"
#include "platform/system/BackgroundWork.h"
#include "platform/views/ApplicationActivity.h"
#include "watching/WatchTextFileModelDelegate.h"
#include "watching/WatchedContent.h"

#include <QObject>

#include <memory>
#include <optional>

class QThread;

/// Reads when the file coordination reports a change, on forceRead(), and every two seconds while the
/// application is not active, unless the content was counted and nothing has changed since. Of a Word
/// document it only checks the existence, and never polls it. Logs to QBYLogger::watchFileModelLog().
class WatchTextFileModel : public QObject, public FilePresenter {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds pollInterval{2000};

    /// Takes a bookmark of the document and opens the access to it; a failure is logged and has no other
    /// effect. Does not watch yet. Whether the document is a Word document is decided here once and for all.
    /// applicationActivity, clock: outlive the model.
    WatchTextFileModel(const QUrl &textFileURLToWatch, WatchTextFileModelDelegate *delegate,
        ApplicationActivity &applicationActivity, Clock &clock = systemClock());
    ~WatchTextFileModel() override;

    [[nodiscard]] QUrl presentedItemURL() const override { return m_presentedItemURL; }
    void setPresentedItemURL(const QUrl &presentedItemURL) { m_presentedItemURL = presentedItemURL; }
    /// The thread that receives presenter messages: always the main thread.
    [[nodiscard]] QThread *presentedItemOperationQueue() const;
    [[nodiscard]] WatchTextFileModelDelegate *delegate() const { return m_delegate.get(); }
    /// The new delegate has counted nothing.
    void setDelegate(WatchTextFileModelDelegate *delegate);
    [[nodiscard]] bool isWatchingTextFile() const { return m_isWatchingTextFile; }
    void setIsWatchingTextFile(bool isWatchingTextFile) { m_isWatchingTextFile = isWatchingTextFile; }
    [[nodiscard]] bool isPresentedItemDocXFile() const { return m_isPresentedItemDocXFile; }
    /// False from the moment another process is granted the document until it returns it.
    [[nodiscard]] bool isTextFileReadable() const { return m_isTextFileReadable; }
    void setIsTextFileReadable(bool isTextFileReadable) { m_isTextFileReadable = isTextFileReadable; }

    /// Does not read. Stops polling, even if the application is not active.
    void beginWatchingTextFile();
    /// May be called when not watching.
    void stopWatchingTextFile();
    /// Does not read. Keeps the bookmark of the first document, and whether that was a Word document.
    void setTextFileURLToWatch(const QUrl &textFileURLToWatch, bool andImmediatelyBeginWatching);
    /// Reads and notifies the delegate before it returns. Reads on a thread of its own; the event loop runs
    /// while that takes long. Does nothing if the model does not watch or another process has been granted
    /// the document. sender: ignored.
    void forceRead(QObject *sender);

    /// The number of the content that the delegate was given last.
    [[nodiscard]] quint64 contentNumber() const { return m_content.number(); }
    /// From the delegate: the counts of this content are on the screen. The delegate gets it again at every
    /// read until then, because a count may be dropped, and afterwards once the document or a preference has
    /// changed.
    void contentWasCounted(quint64 contentNumber) { m_content.setCounted(contentNumber); }

    void applicationWillResignActiveNotification();
    void applicationDidBecomeActive();
    void _nsTimerForceRead();
    /// Starts polling if the model watches and the document is not a Word document.
    void _doStartTimerIfAllConditionsAreMet();

    void presentedItemDidChange() override;
    void presentedItemDidMoveToURL(const QUrl &newURL) override;
    void accommodatePresentedItemDeletionWithCompletionHandler(
        const CompletionHandler &completionHandler) override;
    void relinquishPresentedItemToReader(const Block &reader) override;
    void relinquishPresentedItemToWriter(const Block &writer) override;

private:
    void openAccess();
    void renewAccess();
    void _reloadAttributedStringAndTellDelegateAtPresentedURL(const QUrl &url);
    void _reloadDocXInfoAndTellDelegateAtPresentedURL(const QUrl &url);
    /// Absent if the model is destroyed, stops watching or turns to another document meanwhile.
    [[nodiscard]] std::optional<Result<ChangedDocument, DocumentError>> load(
        const QUrl &url, const std::optional<ContentHash> &known);
    void failToLoad();

    ApplicationActivity &m_applicationActivity;
    Clock &m_clock;
    std::unique_ptr<FileCoordinator> m_coordinator; // while watching
    std::unique_ptr<ClockTimer> m_timer; // while polling
    QByteArray m_bookmarkData; // empty if the access could not be opened at first
    std::optional<SecurityScopedURL> m_bookmarkURL; // holds the access
    bool m_isWatchingTextFile = false;
    bool m_isPresentedItemDocXFile;
    bool m_isTextFileReadable = true;
    QUrl m_presentedItemURL;
    WeakDelegate<WatchTextFileModelDelegate> m_delegate;
    quint64 m_documents = 0; // that were given up so far
    WatchedContent m_content;
    /// While load() waits; stopping cancels it.
    std::weak_ptr<BackgroundWork<Result<ChangedDocument, DocumentError>>> m_reading;
};
