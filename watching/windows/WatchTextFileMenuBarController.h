// SPDX-License-Identifier: MIT
// WatchTextFileMenuBarController is one watcher: it follows one document, shows its statistics and speaks its
// word count. It has a model that follows the file, and panels that count and show. Thread: main.  Owner: the
// registry of its delegate, and its own alerts and delayed work while they wait; made by init() or
// initWithoutMenuItem().
#pragma once

#include "platform/views/Popover.h"
#include "presentation/WordCounterViewController.h"
#include "watching/WatchTextFileModel.h"
#include "watching/windows/WatchSurroundings.h"
#include "watching/windows/WatchTextFileMenuBarControllerDelegate.h"
#include "watching/windows/WatchTextFileViewController.h"

/// Two forms: an item in the status bar with a pop-over that can be dragged off into a window, or only a
/// small floating window. In the window form there is one panel, which stands for both.
class WatchTextFileMenuBarController : public QObject,
                                       public PopoverDelegate,
                                       public WatchTextFileModelDelegate,
                                       public WatchTextFileViewControllerDelegate,
                                       public std::enable_shared_from_this<WatchTextFileMenuBarController> {
public:
    /// How long after init() the pop-over shows itself.
    static constexpr std::chrono::milliseconds popoverDelay{300};

    /// The form with a status item; surroundings must have a status bar.
    static std::shared_ptr<WatchTextFileMenuBarController> init(const WatchSurroundings &surroundings);
    /// The window form. The window is shown by showWindow().
    static std::shared_ptr<WatchTextFileMenuBarController> initWithoutMenuItem(
        const WatchSurroundings &surroundings);
    ~WatchTextFileMenuBarController() override;

    [[nodiscard]] WatchTextFileMenuBarControllerDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(WatchTextFileMenuBarControllerDelegate *delegate) { m_delegate = delegate; }

    // Null where the form has none, or none yet.
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

    /// Reads and counts the document, and begins to follow it. A first read that fails is logged; the
    /// document is followed all the same.
    void watchWithTextFileURL(const QUrl &textFileURL);
    /// Empty without a model.
    [[nodiscard]] QUrl urlBeingWatched() const;
    /// Shows the window in the middle of the screen, also one that is shown elsewhere already.
    void showWindow();
    [[nodiscard]] bool showsCloseButton() const;
    void setShowsCloseButton(bool shows);
    /// Shows the pop-over; one that is shown stays.
    void statusBarButtonAction();

    bool popoverShouldDetach(Popover &popover) override;
    void popoverWillShow(Popover &popover) override;
    /// Made once, and kept for the next time.
    std::shared_ptr<Window> detachableWindowForPopover(Popover &popover) override;

    /// The watching goes on.
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
    explicit WatchTextFileMenuBarController(const WatchSurroundings &surroundings);
    void setUpWithMenuItem();
    void setUpWithoutMenuItem();
    void makeWindow(const QRectF &contentRect, const std::shared_ptr<WatchTextFileViewController> &panel);
    void serve(Window &window, const std::shared_ptr<WatchTextFileViewController> &panel);
    void showPopoverLater();
    void setCountingPanel(const std::shared_ptr<WatchTextFileViewController> &panel);
    void setTitleOfPanels(const QString &title);

    void readFirst(const QUrl &url);
    void count(const AttributedString &attributedString);
    void countDocX(const QUrl &url);
    [[nodiscard]] WordCounterViewController::Completion whenCounted();
    void countDidComplete();
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
    std::unique_ptr<WatchTextFileModel> m_watchFileModel;
    std::unique_ptr<ClockTimer> m_firstShowing; // of the pop-over
    quint64 m_lastCalledOutWordCount = 0;
    bool m_isChangeUncounted = false; // of a Word document: the panel was counting
};
