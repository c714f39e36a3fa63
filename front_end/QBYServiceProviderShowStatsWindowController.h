// SPDX-License-Identifier: MIT
// QBYServiceProviderShowStatsWindowController shows the counts of one text in a small floating window: a row
// with a spinner, the product's name and a close button, and the statistics panel below it. Counting, and
// placing the labels, is left to the panel. Made with std::make_shared.
// Thread: main.  Owner: the registry of the application's delegate, and its own operations while they run.
#pragma once

#include "front_end/QBYServiceProviderShowStatsWindowControllerDelegate.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/BackgroundWork.h"
#include "platform/views/Controls.h"
#include "platform/views/Desktop.h"
#include "platform/views/WindowController.h"
#include "presentation/WaitNotice.h"
#include "presentation/WordCounterViewController.h"
#include "presentation/WordCounterViewControllerLayoutDelegate.h"

#include <memory>
#include <optional>

/// While a count fails or is never answered, the spinner turns and the statistics stay invisible; after a
/// while a notice says so, and the user closes the window. Frames are points, with the origin at the bottom
/// left.
class QBYServiceProviderShowStatsWindowController
    : public WindowController,
      public WordCounterViewControllerLayoutDelegate,
      public std::enable_shared_from_this<QBYServiceProviderShowStatsWindowController> {
public:
    /// Of a text; its result is absent where it cannot be read.
    using TextReading = BackgroundWork<std::optional<AttributedString>>;

    /// The program's interface file, a resource.
    static QString windowInterfaceFile();

    // Count nothing yet. desktop and clock: outlive the controller.
    QBYServiceProviderShowStatsWindowController(
        AttributedString attributedStringToCount, Desktop &desktop, Clock &clock = systemClock());
    /// For a text that is still being read; setAttributedStringToCount() follows. Until then the spinner
    /// turns.
    explicit QBYServiceProviderShowStatsWindowController(Desktop &desktop, Clock &clock = systemClock());
    ~QBYServiceProviderShowStatsWindowController() override;

    /// Empty while the text is being read.
    [[nodiscard]] const AttributedString &attributedStringToCount() const
    {
        return m_attributedStringToCount;
    }
    /// Starts the count, if the window is loaded. Only once, for a controller made without a text.
    void setAttributedStringToCount(AttributedString text);
    /// The reading that brings the text; closing the window cancels it.
    void setReading(TextReading reading) { m_reading.emplace(std::move(reading)); }
    /// The file that the text comes from: the window's name in taskbars and for screen readers; its title row
    /// shows the product's. Before the window is loaded.
    void setDocumentName(const QString &name) { m_documentName = name; }
    [[nodiscard]] QBYServiceProviderShowStatsWindowControllerDelegate *delegate() const
    {
        return m_delegate.get();
    }
    void setDelegate(QBYServiceProviderShowStatsWindowControllerDelegate *delegate) { m_delegate = delegate; }

    // The outlets; null before the window is loaded.
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

    /// Makes window and outlets from the interface file and calls windowDidLoad(), unless there is a window.
    /// Aborts the process if the file cannot be used: it is part of the program.
    void loadWindow();
    /// Sets the window up and starts the count, if there is a text.
    void windowDidLoad();
    /// Loads the window on first use and shows it beside the pointer, where the user has just asked for it.
    /// sender: ignored.
    void showWindow(QObject *sender);

    /// Closes the window, stops the reading and the count, then notifies the delegate. Close button, Escape,
    /// Ctrl+W and the window manager's close call it. sender: ignored.
    void closeButtonAction(QObject *sender);

    /// Fits the window to the labels; see PanelHost::fittingWidth().
    void wordCounterViewControllerDidRelayoutLabels() override;
    /// Places the title row and the panel.
    void windowContentViewFrameDidChange();

private:
    static constexpr double titleRowHeight = 31;

    void putWindowOnScreen();
    void count();
    void showStatistics();
    void widenPanel();
    [[nodiscard]] std::shared_ptr<View> panelView() const;

    AttributedString m_attributedStringToCount;
    bool m_hasText;
    std::optional<TextReading> m_reading; // until the window is closed
    QString m_documentName; // empty if the text comes from no file
    Desktop &m_desktop;
    Clock &m_clock;
    WeakDelegate<QBYServiceProviderShowStatsWindowControllerDelegate> m_delegate;
    std::shared_ptr<WordCounterViewController> m_wordCounterViewController;
    std::weak_ptr<ProgressIndicator> m_activityIndicator;
    std::weak_ptr<Label> m_titleLabel;
    std::weak_ptr<Button> m_closeButton;
    std::weak_ptr<Box> m_lineSeparator;
    std::unique_ptr<WindowOnScreen> m_windowOnScreen;
    std::unique_ptr<WaitNotice> m_waitNotice;
    bool m_isWideningPanel = false;
};
