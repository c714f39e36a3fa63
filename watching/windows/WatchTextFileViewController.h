// SPDX-License-Identifier: MIT
// WatchTextFileViewController is the panel of a watched file: its name, its statistics, and the buttons to
// close the panel and to stop watching. It fits its window or pop-over to the statistics; what the buttons do
// is left to its delegate. Made with std::make_shared.
// Thread: main.  Owner: the watch controller, which is also its delegate.
#pragma once

#include "platform/views/Controls.h"
#include "presentation/WordCounterViewController.h"
#include "watching/windows/WatchTextFileViewControllerDelegate.h"

/// Lengths are points, with the origin at the bottom left: the stop button at the bottom, the statistics
/// above it, the title row at the top. A missing control counts as one with an empty frame.
class WatchTextFileViewController : public ViewController,
                                    public WordCounterViewControllerLayoutDelegate,
                                    public std::enable_shared_from_this<WatchTextFileViewController> {
public:
    /// autoSyncActivityIndicator: the activity indicator turns while the statistics are counted.
    explicit WatchTextFileViewController(bool autoSyncActivityIndicator = false);
    ~WatchTextFileViewController() override;

    /// Made with the panel.
    [[nodiscard]] const std::shared_ptr<WordCounterViewController> &wordCounterViewController() const
    {
        return m_wordCounterViewController;
    }
    /// To be called before the view loads. controller: not null.
    void setWordCounterViewController(std::shared_ptr<WordCounterViewController> controller)
    {
        m_wordCounterViewController = std::move(controller);
    }
    [[nodiscard]] WatchTextFileViewControllerDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(WatchTextFileViewControllerDelegate *delegate) { m_delegate = delegate; }
    [[nodiscard]] bool shouldAutosyncActivityIndicator() const { return m_shouldAutosyncActivityIndicator; }

    // The outlets. They are weak: the panel's view owns them. Null before the view is loaded.
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
    /// The indicator's state without autoSyncActivityIndicator; its setter does not notify the delegate.
    [[nodiscard]] bool spinActivityIndicator() const { return m_spinActivityIndicator; }
    void setSpinActivityIndicator(bool spins);

    /// An absent title is an empty one.
    void setTitle(const std::optional<QString> &title) override;

    /// Aborts the process if the interface file cannot be used: it is part of the program.
    void loadView() override;
    void viewDidLoad() override;
    /// Fits the container, so that the panel appears in its final size.
    void viewWillAppear() override;

    /// Places the controls in the view's frame, then rounds the origins of all direct subviews down to whole
    /// points.
    void viewsFrameDidChange();
    /// Gives the controls the sizes that their texts need in the user's fonts, at least those of the
    /// interface file. To be called when the window's text metrics have changed and the statistics are
    /// fitted.
    void fitControls();
    /// Fits the container to the statistics; see PanelHost::fittingWidth().
    void wordCounterViewControllerDidRelayoutLabels() override;

    // Notify the delegate, which may destroy the panel.
    void closeButtonAction();
    void stopButtonAction();

private:
    void _viewControllersViewFrameDidChangeNotification();
    void _doTellDelegateThatActivityIndicatorAnimationStateChanged(bool isAnimating);
    void isAsyncCountOperationInProgressDidChange();
    void resizeContainer(const QSizeF &size);
    void centerLabels();

    std::shared_ptr<WordCounterViewController> m_wordCounterViewController;
    WeakDelegate<WatchTextFileViewControllerDelegate> m_delegate;
    std::weak_ptr<Label> m_titleLabel;
    std::weak_ptr<Button> m_stopButton;
    std::weak_ptr<Box> m_horizontalLine;
    std::weak_ptr<Button> m_closeButton;
    std::weak_ptr<ProgressIndicator> m_activityIndicator;
    // Of the interface file.
    double m_titleHeight = 0;
    double m_closeButtonHeight = 0;
    QSizeF m_stopButtonSize;
    const bool m_shouldAutosyncActivityIndicator;
    bool m_showsCloseButton = true;
    bool m_spinActivityIndicator = false;
};
