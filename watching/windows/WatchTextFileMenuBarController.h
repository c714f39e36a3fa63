// SPDX-License-Identifier: MIT
// WatchTextFileMenuBarController is one watcher: it follows one document, shows its statistics and speaks its
// word count. Following the file is left to its model, counting to its panels. Made by init() or
// initWithoutMenuItem().
// Thread: main.  Owner: the registry of its delegate, and its own alerts and delayed work while they are
// pending.
#pragma once

#include "platform/system/BackgroundWork.h"
#include "platform/system/Clock.h"
#include "platform/views/ApplicationActivity.h"
#include "platform/views/Popover.h"
#include "platform/views/StatusItem.h"
#include "presentation/WaitNotice.h"
#include "presentation/WordCounterViewController.h"
#include "speech/ApplicationExtension.h"
#include "watching/WatchTextFileModel.h"
#include "watching/windows/WatchTextFileMenuBarControllerDelegate.h"
#include "watching/windows/WatchTextFileViewController.h"
#include "writing_progress/ProgressRecorder.h"

/// What watchers need of their program. Everything that it refers to outlives them.
struct WatchSurroundings {
    Desktop &desktop;
    ApplicationActivity &applicationActivity;
    StatusBar *statusBar = nullptr; ///< only needed for watchers with a status item
    Clock &clock = systemClock();
    ProgressRecorder *progressRecorder = nullptr; ///< null: counts are not recorded
    QString speechLaunchPath = QBYExtension::speechLaunchPath();
};

/// Has one of two forms: a status item with a pop-over that the user can drag off into a window, or only a
/// small floating window. In the window form one panel serves as that of the pop-over and that of the window.
class WatchTextFileMenuBarController : public QObject,
                                       public PopoverDelegate,
                                       public WatchTextFileModelDelegate,
                                       public WatchTextFileViewControllerDelegate,
                                       public std::enable_shared_from_this<WatchTextFileMenuBarController> {
public:
    /// Time from init() until the pop-over opens.
    static constexpr std::chrono::milliseconds popoverDelay{300};

    /// The form with a status item; requires a status bar in surroundings.
    static std::shared_ptr<WatchTextFileMenuBarController> init(const WatchSurroundings &surroundings);
    /// The window form. showWindow() shows the window.
    static std::shared_ptr<WatchTextFileMenuBarController> initWithoutMenuItem(
        const WatchSurroundings &surroundings);
    ~WatchTextFileMenuBarController() override;

    [[nodiscard]] WatchTextFileMenuBarControllerDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(WatchTextFileMenuBarControllerDelegate *delegate) { m_delegate = delegate; }

    // Null if the form has none, or none yet.
    [[nodiscard]] const std::shared_ptr<StatusItem> &statusItem() const { return m_statusItem; }
    [[nodiscard]] Popover *popover() const { return m_popover.get(); }
    /// The panel that counts.
    [[nodiscard]] const std::shared_ptr<WatchTextFileViewController> &
    watchTextFileViewControllerForPopover() const
    {
        return m_watchTextFileViewControllerForPopover;
    }
    [[nodiscard]] const std::shared_ptr<Window> &detachableWindowForPopover() const
    {
        return m_detachableWindowForPopover;
    }
    [[nodiscard]] const std::shared_ptr<WatchTextFileViewController> &
    contentViewControllerForDetachableWindow() const
    {
        return m_contentViewControllerForDetachableWindow;
    }
    /// Null before the first watch and after a stop.
    [[nodiscard]] WatchTextFileModel *watchFileModel() const { return m_watchFileModel.get(); }
    [[nodiscard]] quint64 lastCalledOutWordCount() const { return m_lastCalledOutWordCount; }
    void setLastCalledOutWordCount(quint64 count) { m_lastCalledOutWordCount = count; }

    /// Reads and counts the document and starts to follow it. If the first read fails, logs the error and
    /// follows the document anyway.
    void watchWithTextFileURL(const QUrl &textFileURL);
    /// Empty without a model.
    [[nodiscard]] QUrl urlBeingWatched() const;
    /// Shows the window in the middle of the screen with the pointer, moving it if it is visible.
    void showWindow();
    [[nodiscard]] bool showsCloseButton() const;
    void setShowsCloseButton(bool shows);
    /// Shows the pop-over unless it is visible.
    void statusBarButtonAction();

    bool popoverShouldDetach(Popover &popover) override;
    void popoverWillShow(Popover &popover) override;
    /// Made on first use and reused.
    std::shared_ptr<Window> detachableWindowForPopover(Popover &popover) override;

    /// Closes the views; the watcher continues.
    void watchTextFileViewControllerRequestedClose(WatchTextFileViewController &panel) override;
    void watchTextFileViewControllerRequestedStop(WatchTextFileViewController *panel) override;
    Popover *popoverFromPresenterForAutoResizeOrNil(WatchTextFileViewController &panel) override;
    void didChangeActivityIndicatorAnimationState(
        WatchTextFileViewController &panel, bool isAnimating) override;

    void currentlyWatchedTextFileDidUpdateWithAttributedString(
        const AttributedString &attributedString, WatchTextFileModel &watchModel) override;
    void currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel &watchModel) override;
    void currentlyWatchedDocXFileDidUpdateWithDocxData(
        const QUrl &docxData, WatchTextFileModel &watchModel) override;
    void currentlyWatchedTextFileWasRenamed(const QString &newName, WatchTextFileModel &watchModel) override;

private:
    explicit WatchTextFileMenuBarController(WatchSurroundings surroundings);
    void setUpWithMenuItem();
    void setUpWithoutMenuItem();
    void makeWindow(const QRectF &contentRect, const std::shared_ptr<WatchTextFileViewController> &panel);
    void schedulePopover();
    /// window: the panel's.
    void setCountingPanel(const std::shared_ptr<WatchTextFileViewController> &panel, Window &window);
    void setTitleOfPanels(const QString &title);

    using Text = Result<AttributedString, DocumentError>;

    void readAndCount(const QUrl &url);
    /// text: a copy, as that of the reading is freed.
    void countFirst(Text text);
    /// whenCounted: called when the counts are on the screen.
    void count(
        const AttributedString &attributedString, const std::function<void()> &whenCounted = [] {});
    void countDocX(const QUrl &url);
    [[nodiscard]] WordCounterViewController::Completion makeCompletion();
    void countDidComplete();
    void record(const QBYWordCounterStats &stats);
    void countingStateDidChange();
    void sayWordCountIfPreferred(quint64 wordCount);

    void askWhatToDo();
    void chooseAnotherFile();
    void closeViews();
    void windowCloseRequested();

    const WatchSurroundings m_surroundings;
    WeakDelegate<WatchTextFileMenuBarControllerDelegate> m_delegate;
    std::shared_ptr<StatusItem> m_statusItem;
    std::unique_ptr<StatusItemInBar> m_statusItemInBar;
    std::unique_ptr<Popover> m_popover;
    std::shared_ptr<WatchTextFileViewController> m_watchTextFileViewControllerForPopover;
    std::shared_ptr<Window> m_detachableWindowForPopover;
    std::unique_ptr<WindowOnScreen> m_detachableWindowOnScreen;
    std::shared_ptr<WatchTextFileViewController> m_contentViewControllerForDetachableWindow;
    std::unique_ptr<WaitNotice> m_waitNotice; // destroyed before the windows
    std::unique_ptr<WatchTextFileModel> m_watchFileModel;
    std::unique_ptr<ClockTimer> m_popoverTimer; // until the pop-over opens by itself
    quint64 m_lastCalledOutWordCount = 0;
    QByteArray m_recordedPath; // at the last count
    std::optional<BackgroundWork<Text>> m_firstReading; // until it is counted, or a later content is
    bool m_isCountRequested = false; // by the user, and not completed yet
    bool m_isChangeUncounted = false; // of a Word document, dropped while the panel was counting
};
