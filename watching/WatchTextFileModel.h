// SPDX-License-Identifier: MIT
// WatchTextFileModel follows one document on disk and hands its content on at every change; it never counts.
// Thread: main.  Owner: the controller of the watch panel, to which it refers weakly.
#pragma once

#include "documents/loading/RepeatedLoader.h"
#include "platform/file_coordination/FileCoordinator.h"
#include "platform/file_coordination/SecurityScopedBookmark.h"
#include "platform/views/ApplicationActivity.h"
#include "watching/WatchTextFileModelDelegate.h"

#include <QObject>

#include <memory>
#include <optional>

class QThread;

/// Reads when the file coordination tells of a change, at forceRead(), and every two seconds while the
/// application is not active. A Word document is not read but only looked for, and never polled. Everything
/// is logged to QBYLogger::watchFileModelLog().
class WatchTextFileModel : public QObject, public FilePresenter {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds pollInterval{2000};

    /// Takes a bookmark of the document and opens the access to it; where that fails, the log says so and the
    /// model works all the same. Does not watch yet. Whether the document is a Word document is decided here
    /// for good. applicationActivity: must outlive the model, as must the clock.
    WatchTextFileModel(const QUrl &textFileURLToWatch, WatchTextFileModelDelegate *delegate,
        ApplicationActivity &applicationActivity, Clock &clock = systemClock());
    ~WatchTextFileModel() override;

    [[nodiscard]] QUrl presentedItemURL() const override { return m_presentedItemURL; }
    void setPresentedItemURL(const QUrl &presentedItemURL) { m_presentedItemURL = presentedItemURL; }
    /// Where presenter messages arrive: always the main thread.
    [[nodiscard]] QThread *presentedItemOperationQueue() const;
    [[nodiscard]] WatchTextFileModelDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(WatchTextFileModelDelegate *delegate) { m_delegate = delegate; }
    [[nodiscard]] bool isWatchingTextFile() const { return m_isWatchingTextFile; }
    void setIsWatchingTextFile(bool isWatchingTextFile) { m_isWatchingTextFile = isWatchingTextFile; }
    [[nodiscard]] bool isPresentedItemDocXFile() const { return m_isPresentedItemDocXFile; }
    /// False while another one has been granted the document and has not given it back.
    [[nodiscard]] bool isTextFileReadable() const { return m_isTextFileReadable; }
    void setIsTextFileReadable(bool isTextFileReadable) { m_isTextFileReadable = isTextFileReadable; }

    /// Reads nothing, and ends polling, even where the application is not active at that moment.
    void beginWatchingTextFile();
    /// Harmless when not watching.
    void stopWatchingTextFile();
    /// Reads nothing. Keeps the bookmark of the first document, and whether that was a Word document.
    void setTextFileURLToWatch(const QUrl &textFileURLToWatch, bool andImmediatelyBeginWatching);
    /// Reads now, and tells the delegate before it returns; nothing where the model does not watch or the
    /// document has been lent. sender: ignored.
    void forceRead(QObject *sender);

    void applicationWillResignActiveNotification();
    void applicationDidBecomeActive();
    void _nsTimerForceRead();
    /// Polls from now on, unless the model does not watch or the document is a Word document.
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
    void failToLoad();

    ApplicationActivity &m_applicationActivity;
    Clock &m_clock;
    std::unique_ptr<FileCoordinator> m_coordinator; // while watching
    std::unique_ptr<ClockTimer> m_timer; // while polling
    QByteArray m_bookmarkData; // empty where the access could not be opened at the start
    std::optional<SecurityScopedURL> m_bookmarkURL; // holds the access
    bool m_isWatchingTextFile = false;
    bool m_isPresentedItemDocXFile;
    bool m_isTextFileReadable = true;
    QUrl m_presentedItemURL;
    WeakDelegate<WatchTextFileModelDelegate> m_delegate;
    RepeatedLoader m_loader; // most polls find what the last one found
};
