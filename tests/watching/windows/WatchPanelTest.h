// SPDX-License-Identifier: MIT
// WatchPanelTest is the fixture of the tests of the watch panel: the panel, its presenter, and labels of
// known sizes, without a screen.
// Thread: main.
#pragma once

#include "platform/views/Popover.h"
#include "platform/views/Window.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/views/FakeDesktop.h"
#include "tests/presentation/StatsPanel.h"
#include "watching/windows/WatchTextFileViewController.h"

/// Records the panel's messages: "close", "stop", "spins", "rests", "asked for the pop-over".
class RecordingPanelPresenter : public WatchTextFileViewControllerDelegate {
public:
    void watchTextFileViewControllerRequestedClose(WatchTextFileViewController &panel) override
    {
        note("close", &panel);
    }
    void watchTextFileViewControllerRequestedStop(WatchTextFileViewController *panel) override
    {
        note("stop", panel);
    }
    Popover *popoverFromPresenterForAutoResizeOrNil(WatchTextFileViewController &panel) override
    {
        note("asked for the pop-over", &panel);
        return popover;
    }
    void didChangeActivityIndicatorAnimationState(
        WatchTextFileViewController &panel, bool isAnimating) override
    {
        note(isAnimating ? "spins" : "rests", &panel);
    }

    std::vector<std::string> calls;
    Popover *popover = nullptr;
    WatchTextFileViewController *expectedPanel = nullptr;
    std::function<void()> whenCalled;

private:
    void note(const char *call, const WatchTextFileViewController *panel)
    {
        EXPECT_EQ(panel, expectedPanel) << call;
        calls.emplace_back(call);
        if (whenCalled)
            whenCalled();
    }
};

class WatchPanelTest : public QuillbayTest {
protected:
    using Labels = BaseWordCounterViewController::Labels;

    explicit WatchPanelTest(bool autoSyncActivityIndicator = true)
    {
        preferOnly(everyStatistic);
        makePanel(autoSyncActivityIndicator);
    }

    void makePanel(bool autoSyncActivityIndicator)
    {
        m_panel = std::make_shared<WatchTextFileViewController>(autoSyncActivityIndicator);
        m_panel->setDelegate(&m_presenter);
        m_presenter.expectedPanel = m_panel.get();
    }

    /// Puts the panel's view into a window of the same size, at (100, 200).
    void putIntoWindow()
    {
        m_window = std::make_shared<Window>(QRectF({100, 200}, view().frame().size()));
        m_window->setContentView(m_panel->view());
    }

    /// Loads the view, if it has not been.
    View &view() const { return *m_panel->view(); }
    [[nodiscard]] View &statistics() const { return *m_panel->wordCounterViewController()->view(); }
    [[nodiscard]] const Labels &labels() const
    {
        return m_panel->wordCounterViewController()->allTextfieldsForLayout();
    }
    /// The eight labels, in canonical order.
    void setLabelWidths(const std::array<double, 8> &widths) const
    {
        for (size_t i = 0; i < widths.size(); ++i)
            labels().at(i)->setFrameSize({widths.at(i), 17});
    }

    RecordingPanelPresenter m_presenter;
    FakeDesktop m_desktop;
    std::shared_ptr<WatchTextFileViewController> m_panel;
    std::shared_ptr<Window> m_window;
};
