// SPDX-License-Identifier: MIT
// WatchTextFileViewController is the panel of a watched file: its name, its statistics, and the buttons to
// close the panel and to stop watching. It fits its window or pop-over to the statistics; what the buttons do
// is its delegate's business. Thread: main.  Owner: the watch controller, which is also its delegate. Made
// with std::make_shared.
#pragma once

#include "platform/views/Controls.h"
#include "presentation/WordCounterViewController.h"
#include "watching/windows/WatchTextFileViewControllerDelegate.h"

/// Lengths are points, origins at the bottom left: the stop button at the bottom, the statistics above it,
/// the row of the title at the top. A control that is missing counts as one without place and size.
class WatchTextFileViewController : public ViewController,
                                    public WordCounterViewControllerLayoutDelegate,
                                    public std::enable_shared_from_this<WatchTextFileViewController> {
public:
    /// Whether the activity indicator follows the counting of the statistics by itself.
    explicit WatchTextFileViewController(bool autoSyncActivityIndicator = false);
    ~WatchTextFileViewController() override;

    /// Never null until somebody sets it so; made with the panel.
    [[nodiscard]] const std::shared_ptr<WordCounterViewController> &wordCounterViewController() const
    {
        return m_wordCounterViewController;
    }
    /// To be set before the view loads, which shows it.
    void setWordCounterViewController(std::shared_ptr<WordCounterViewController> controller)
    {
        m_wordCounterViewController = std::move(controller);
    }
    [[nodiscard]] WatchTextFileViewControllerDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(WatchTextFileViewControllerDelegate *delegate) { m_delegate = delegate; }
    [[nodiscard]] bool shouldAutosyncActivityIndicator() const { return m_shouldAutosyncActivityIndicator; }

    // The outlets. They are weak: the panel's view owns them. Null before the view has loaded.
    [[nodiscard]] std::shared_ptr<Label> titleForFileBeingWatchedLabel() const { return m_titleLabel.lock(); }
    [[nodiscard]] std::shared_ptr<Button> stopButton() const { return m_stopButton.lock(); }
    [[nodiscard]] std::shared_ptr<Box> horizontalLine() const { return m_horizontalLine.lock(); }
    [[nodiscard]] std::shared_ptr<Button> closeButton() const { return m_closeButton.lock(); }
    [[nodiscard]] std::shared_ptr<ProgressIndicator> activityIndicator() const
    {
        return m_activityIndicator.lock();
    }
    void setTitleForFileBeingWatchedLabel(const std::shared_ptr<Label> &label) { m_titleLabel = label; }
    void setStopButton(const std::shared_ptr<Button> &button) { m_stopButton = button; }
    void setHorizontalLine(const std::shared_ptr<Box> &line) { m_horizontalLine = line; }
    void setCloseButton(const std::shared_ptr<Button> &button) { m_closeButton = button; }
    void setActivityIndicator(const std::shared_ptr<ProgressIndicator> &indicator)
    {
        m_activityIndicator = indicator;
    }

    [[nodiscard]] bool showsCloseButton() const { return m_showsCloseButton; }
    void setShowsCloseButton(bool shows);
    /// For who drives the indicator from outside; does not tell the delegate.
    [[nodiscard]] bool spinActivityIndicator() const { return m_spinActivityIndicator; }
    void setSpinActivityIndicator(bool spins);

    /// Absent: the title is empty.
    void setTitle(const std::optional<QString> &title) override;

    /// The process ends where the interface file cannot be used: it is a part of the program.
    void loadView() override;
    void viewDidLoad() override;
    /// Fits the container, so that the panel comes onto the screen in its size.
    void viewWillAppear() override;

    /// Places the controls in the view's frame, and every direct subview on whole points.
    void viewsFrameDidChange();
    /// Fits the container to the statistics: the width of the last label that is too wide, never less than it
    /// was.
    void wordCounterViewControllerDidRelayoutLabels() override;

    // They tell the delegate; after that the panel may be gone.
    void closeButtonAction();
    void stopButtonAction();

private:
    void _viewControllersViewFrameDidChangeNotification();
    void _doTellDelegateThatActivityIndicatorAnimationStateChanged(bool isAnimating);
    void isAsyncCountOperationInProgressDidChange();
    [[nodiscard]] double fittingWidth();
    void resizeContainer(const QSizeF &size);
    void centerLabels();

    std::shared_ptr<WordCounterViewController> m_wordCounterViewController;
    WeakDelegate<WatchTextFileViewControllerDelegate> m_delegate;
    std::weak_ptr<Label> m_titleLabel;
    std::weak_ptr<Button> m_stopButton;
    std::weak_ptr<Box> m_horizontalLine;
    std::weak_ptr<Button> m_closeButton;
    std::weak_ptr<ProgressIndicator> m_activityIndicator;
    const bool m_shouldAutosyncActivityIndicator;
    bool m_showsCloseButton = true;
    bool m_spinActivityIndicator = false;
};
