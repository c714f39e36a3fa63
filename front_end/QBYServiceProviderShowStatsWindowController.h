// SPDX-License-Identifier: MIT
// QBYServiceProviderShowStatsWindowController shows the counts of one text in a small floating window: a row
// with a spinner, the product's name and a close button, and the statistics panel below it. The panel counts,
// and places its labels, by itself. Thread: main.  Owner: the registry of the application's delegate, and its
// own operations while they run; made with std::make_shared.
#pragma once

#include "front_end/QBYServiceProviderShowStatsWindowControllerDelegate.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/views/Controls.h"
#include "platform/views/Desktop.h"
#include "platform/views/WindowController.h"
#include "presentation/WordCounterViewController.h"
#include "presentation/WordCounterViewControllerLayoutDelegate.h"

#include <memory>

/// A count that fails or is never answered leaves the spinner turning and the statistics invisible; the user
/// closes the window. Frames are points, with the origin at the bottom left.
class QBYServiceProviderShowStatsWindowController
    : public WindowController,
      public WordCounterViewControllerLayoutDelegate,
      public std::enable_shared_from_this<QBYServiceProviderShowStatsWindowController> {
public:
    /// The interface file that comes with the program, a resource.
    static QString windowInterfaceFile();

    /// Counts nothing yet. desktop: outlives the controller.
    QBYServiceProviderShowStatsWindowController(AttributedString attributedStringToCount, Desktop &desktop);
    ~QBYServiceProviderShowStatsWindowController() override;

    [[nodiscard]] const AttributedString &attributedStringToCount() const
    {
        return m_attributedStringToCount;
    }
    [[nodiscard]] QBYServiceProviderShowStatsWindowControllerDelegate *delegate() const
    {
        return m_delegate.get();
    }
    void setDelegate(QBYServiceProviderShowStatsWindowControllerDelegate *delegate) { m_delegate = delegate; }

    // The outlets; empty before the window has been loaded, and where a test has taken one away.
    [[nodiscard]] std::shared_ptr<WordCounterViewController> wordCounterViewController() const
    {
        return m_wordCounterViewController;
    }
    [[nodiscard]] std::shared_ptr<ProgressIndicator> activityIndicator() const
    {
        return m_activityIndicator.lock();
    }
    [[nodiscard]] std::shared_ptr<Label> titleLabel() const { return m_titleLabel.lock(); }
    [[nodiscard]] std::shared_ptr<Button> closeButton() const { return m_closeButton.lock(); }
    [[nodiscard]] std::shared_ptr<Box> lineSeparator() const { return m_lineSeparator.lock(); }
    void setWordCounterViewController(std::shared_ptr<WordCounterViewController> controller)
    {
        m_wordCounterViewController = std::move(controller);
    }
    void setActivityIndicator(const std::shared_ptr<ProgressIndicator> &view) { m_activityIndicator = view; }
    void setTitleLabel(const std::shared_ptr<Label> &view) { m_titleLabel = view; }
    void setCloseButton(const std::shared_ptr<Button> &view) { m_closeButton = view; }
    void setLineSeparator(const std::shared_ptr<Box> &view) { m_lineSeparator = view; }

    /// Makes window and outlets from the interface file where there is no window yet, and has windowDidLoad()
    /// follow. The process ends where the file cannot be used: it is a part of the program.
    void loadWindow();
    /// Sets the window up and starts the count.
    void windowDidLoad();
    /// Loads the window on first use, and puts it on the screen beside the pointer, where the user has just
    /// asked for it. sender: ignored.
    void showWindow(QObject *sender);

    /// What the close button, Escape, Ctrl+W and the window manager's close do: closes the window, and then
    /// tells the delegate. sender: ignored.
    void closeButtonAction(QObject *sender);

    /// Fits the window to the labels. Of several visible labels that are at least as wide as the window, the
    /// last one gives the width.
    void wordCounterViewControllerDidRelayoutLabels() override;
    /// Places the title row and the panel.
    void windowContentViewFrameDidChange();

private:
    static constexpr double titleRowHeight = 31;

    void setUpForDesktop();
    void showStatistics();
    void widenPanel();
    [[nodiscard]] std::shared_ptr<View> panelView() const;

    const AttributedString m_attributedStringToCount;
    Desktop &m_desktop;
    WeakDelegate<QBYServiceProviderShowStatsWindowControllerDelegate> m_delegate;
    std::shared_ptr<WordCounterViewController> m_wordCounterViewController;
    std::weak_ptr<ProgressIndicator> m_activityIndicator;
    std::weak_ptr<Label> m_titleLabel;
    std::weak_ptr<Button> m_closeButton;
    std::weak_ptr<Box> m_lineSeparator;
    std::unique_ptr<WindowOnScreen> m_windowOnScreen;
    bool m_isWideningPanel = false;
};
