// SPDX-License-Identifier: MIT
// The views of a watcher: the status item with its pop-over, and the window.
#include "watching/windows/WatchTextFileMenuBarController.h"

#include "common_views/QBYWindow.h"
#include "common_views/WindowExtension.h"
#include "common_views/WindowPlacement.h"
#include "platform/system/MainQueue.h"
#include "presentation/PanelHost.h"

namespace {

constexpr unsigned texturedBackground = 256; // a style without a title bar

} // namespace

std::shared_ptr<WatchTextFileMenuBarController> WatchTextFileMenuBarController::init(
    const WatchSurroundings &surroundings)
{
    const std::shared_ptr<WatchTextFileMenuBarController> watcher(
        new WatchTextFileMenuBarController(surroundings));
    watcher->setUpWithMenuItem();
    return watcher;
}

std::shared_ptr<WatchTextFileMenuBarController> WatchTextFileMenuBarController::initWithoutMenuItem(
    const WatchSurroundings &surroundings)
{
    const std::shared_ptr<WatchTextFileMenuBarController> watcher(
        new WatchTextFileMenuBarController(surroundings));
    watcher->setUpWithoutMenuItem();
    return watcher;
}

void WatchTextFileMenuBarController::setUpWithMenuItem()
{
    m_statusItem = std::make_shared<StatusItem>();
    m_statusItem->setImageName(QStringLiteral("MenubarIcon"));
    connect(m_statusItem.get(), &StatusItem::clicked, this,
        &WatchTextFileMenuBarController::statusBarButtonAction);
    m_statusItemInBar = m_surroundings.statusBar->addItem(m_statusItem);

    m_popover = std::make_unique<Popover>(m_surroundings.desktop);
    const auto panel = std::make_shared<WatchTextFileViewController>(true);
    panel->setDelegate(this);
    panel->view();
    setCountingPanel(panel, *m_popover->window());
    m_popover->setContentViewController(panel);
    m_popover->setDelegate(this);
    panel->wordCounterViewController()->serve(*m_popover->window());
    connect(m_popover->window().get(), &Window::textMetricsDidChange, panel.get(),
        &WatchTextFileViewController::fitControls);
    panel->wordCounterViewController()->fitLabels();
    schedulePopover();
}

void WatchTextFileMenuBarController::schedulePopover()
{
    m_popoverTimer = m_surroundings.clock.makeTimer([self = shared_from_this()] {
        // The timer holds the watcher, so it is dropped; but not before its handler has returned.
        MainQueue::async([timer = std::shared_ptr<ClockTimer>(std::move(self->m_popoverTimer))] {});
        self->statusBarButtonAction();
    });
    m_popoverTimer->start(popoverDelay);
}

void WatchTextFileMenuBarController::setUpWithoutMenuItem()
{
    const auto panel = std::make_shared<WatchTextFileViewController>(true);
    panel->setDelegate(this);
    m_contentViewControllerForDetachableWindow = panel;
    PanelHost::useShortStyle(*panel->wordCounterViewController());
    makeWindow({{0, 0}, panel->view()->frame().size()}, panel);
    setCountingPanel(panel, *m_detachableWindowForPopover);
    m_detachableWindowForPopover->setLevel(WindowLevel::Floating);
}

void WatchTextFileMenuBarController::setCountingPanel(
    const std::shared_ptr<WatchTextFileViewController> &panel, Window &window)
{
    m_watchTextFileViewControllerForPopover = panel;
    m_waitNotice = std::make_unique<WaitNotice>(panel->activityIndicator(), window, m_surroundings.clock,
        [this] { return m_firstReading ? WaitNotice::Subject::Text : WaitNotice::Subject::CountingService; });
    connect(panel->wordCounterViewController().get(),
        &WordCounterViewController::isAsyncCountOperationInProgressChanged, this,
        &WatchTextFileMenuBarController::countingStateDidChange);
}

void WatchTextFileMenuBarController::makeWindow(
    const QRectF &contentRect, const std::shared_ptr<WatchTextFileViewController> &panel)
{
    const auto window = std::make_shared<QBYWindow>(contentRect, texturedBackground);
    window->setContentView(panel->view());
    PanelHost::setUpWindow(
        *window, *panel->wordCounterViewController(), *this, [this] { windowCloseRequested(); });
    connect(
        window.get(), &Window::textMetricsDidChange, panel.get(), &WatchTextFileViewController::fitControls);
    panel->wordCounterViewController()->fitLabels(); // later, the window's text metrics cause it
    m_detachableWindowForPopover = window;
    m_detachableWindowOnScreen = m_surroundings.desktop.putOnScreen(window);
}

void WatchTextFileMenuBarController::setTitleOfPanels(const QString &title)
{
    m_watchTextFileViewControllerForPopover->setTitle(title);
    if (m_contentViewControllerForDetachableWindow)
        m_contentViewControllerForDetachableWindow->setTitle(title);
    if (m_detachableWindowForPopover)
        m_detachableWindowForPopover->setTitle(title); // for window lists and screen readers
    if (m_popover)
        m_popover->window()->setTitle(title);
    if (m_statusItem)
        m_statusItem->setToolTip(title);
}

bool WatchTextFileMenuBarController::showsCloseButton() const
{
    return m_watchTextFileViewControllerForPopover->showsCloseButton();
}

void WatchTextFileMenuBarController::setShowsCloseButton(bool shows)
{
    m_watchTextFileViewControllerForPopover->setShowsCloseButton(shows);
}

void WatchTextFileMenuBarController::showWindow()
{
    if (!m_detachableWindowForPopover)
        return;
    Window &window = *m_detachableWindowForPopover;
    if (!window.isVisible())
        m_contentViewControllerForDetachableWindow->viewWillAppear();
    const Desktop &desktop = m_surroundings.desktop;
    std::optional<QRectF> area = desktop.visibleFrameAtPointer();
    if (!area && window.isVisible())
        area = desktop.visibleFrameAt(window.frame().center());
    window.setPlacedByDesktop(!area);
    if (area) {
        const QSizeF size = window.frame().size();
        window.setFrame({originInMiddle(size, *area), size}, true, false);
    }
    window.orderFront();
}

void WatchTextFileMenuBarController::statusBarButtonAction()
{
    if (!m_popover || m_popover->isShown())
        return;
    // Most desktops do not report where the item is. Then the pointer is the best guess, or the usual place
    // of trays: the corner at the bottom right.
    const Desktop &desktop = m_surroundings.desktop;
    const QRectF area = desktop.visibleFrameAt({});
    const QPointF guess = desktop.pointerLocation().value_or(QPointF(area.right(), area.y()));
    m_popover->show(m_statusItem->buttonFrame().value_or(QRectF(guess, QSizeF(0, 0))), RectEdge::MinY);
}

bool WatchTextFileMenuBarController::popoverShouldDetach(Popover & /*popover*/)
{
    return true;
}

void WatchTextFileMenuBarController::popoverWillShow(Popover & /*popover*/)
{
    PanelHost::useShortStyle(*m_watchTextFileViewControllerForPopover->wordCounterViewController());
    if (m_detachableWindowForPopover)
        m_detachableWindowForPopover->close();
}

std::shared_ptr<Window> WatchTextFileMenuBarController::detachableWindowForPopover(Popover &popover)
{
    const WatchTextFileViewController &source = *m_watchTextFileViewControllerForPopover;
    if (!m_detachableWindowForPopover) {
        const auto panel = std::make_shared<WatchTextFileViewController>();
        panel->setDelegate(this);
        m_contentViewControllerForDetachableWindow = panel;
        const QPointF origin = popover.contentViewController()->view()->frame().topLeft();
        makeWindow({origin, popover.contentSize()}, panel);
        PanelHost::useShortStyle(*panel->wordCounterViewController());
        panel->wordCounterViewController()->updateInterfaceWithPrepopulatedStats(
            source.wordCounterViewController()->wordCounter()->statsRepresentation());
        QBYExtension::setFrameSize(*m_detachableWindowForPopover, popover.contentSize(), true);
    }
    m_contentViewControllerForDetachableWindow->setTitle(source.title());
    m_detachableWindowForPopover->setTitle(source.title().value_or(QString()));
    m_contentViewControllerForDetachableWindow->viewWillAppear();
    return m_detachableWindowForPopover;
}

void WatchTextFileMenuBarController::closeViews()
{
    if (m_popover)
        m_popover->close();
    if (m_detachableWindowForPopover)
        m_detachableWindowForPopover->close();
}

void WatchTextFileMenuBarController::watchTextFileViewControllerRequestedClose(
    WatchTextFileViewController & /*panel*/)
{
    closeViews();
}

/// The window manager's close and the keys that close windows act like the panel's visible button.
void WatchTextFileMenuBarController::windowCloseRequested()
{
    WatchTextFileViewController *const panel = m_contentViewControllerForDetachableWindow.get();
    if (panel->showsCloseButton())
        watchTextFileViewControllerRequestedClose(*panel);
    else
        watchTextFileViewControllerRequestedStop(panel);
}

Popover *WatchTextFileMenuBarController::popoverFromPresenterForAutoResizeOrNil(
    WatchTextFileViewController &panel)
{
    return &panel == m_watchTextFileViewControllerForPopover.get() ? m_popover.get() : nullptr;
}

void WatchTextFileMenuBarController::didChangeActivityIndicatorAnimationState(
    WatchTextFileViewController &panel, bool isAnimating)
{
    if (m_watchTextFileViewControllerForPopover == m_contentViewControllerForDetachableWindow
        || &panel != m_watchTextFileViewControllerForPopover.get()
        || !m_contentViewControllerForDetachableWindow)
        return;
    m_contentViewControllerForDetachableWindow->setSpinActivityIndicator(isAnimating);
}
