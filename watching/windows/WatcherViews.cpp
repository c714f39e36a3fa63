// SPDX-License-Identifier: MIT
// The places where a watcher shows its panels: the status item with its pop-over, the window.
#include "watching/windows/WatchTextFileMenuBarController.h"

#include "common_views/QBYWindow.h"
#include "common_views/WindowExtension.h"
#include "platform/system/MainQueue.h"

#include <cmath>

namespace {

constexpr unsigned texturedBackground = 256; // no title bar; the background moves the window

void setShortStyle(const std::shared_ptr<WatchTextFileViewController> &panel)
{
    panel->wordCounterViewController()->wordCounter()->setFormattedStringStyle(WordCounterModel::shortStyle);
}

} // namespace

std::shared_ptr<WatchTextFileMenuBarController> WatchTextFileMenuBarController::init(
    const WatchSurroundings &surroundings)
{
    const std::shared_ptr<WatchTextFileMenuBarController> made(
        new WatchTextFileMenuBarController(surroundings));
    made->setUpWithMenuItem();
    return made;
}

std::shared_ptr<WatchTextFileMenuBarController> WatchTextFileMenuBarController::initWithoutMenuItem(
    const WatchSurroundings &surroundings)
{
    const std::shared_ptr<WatchTextFileMenuBarController> made(
        new WatchTextFileMenuBarController(surroundings));
    made->setUpWithoutMenuItem();
    return made;
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
    setCountingPanel(panel);
    m_popover->setContentViewController(panel);
    m_popover->setDelegate(this);
    serve(*m_popover->window(), panel);
    showPopoverLater();
}

void WatchTextFileMenuBarController::showPopoverLater()
{
    m_firstShowing = m_surroundings.clock.makeTimer([self = shared_from_this()] {
        // It holds the watcher, and cannot go while it runs.
        MainQueue::async([ended = std::shared_ptr<ClockTimer>(std::move(self->m_firstShowing))] {});
        self->statusBarButtonAction();
    });
    m_firstShowing->start(popoverDelay);
}

void WatchTextFileMenuBarController::setUpWithoutMenuItem()
{
    const auto panel = std::make_shared<WatchTextFileViewController>(true);
    panel->setDelegate(this);
    m_contentViewControllerForDetachableWindow = panel;
    setShortStyle(panel);
    makeWindow({{0, 0}, panel->view()->frame().size()}, panel);
    setCountingPanel(panel);
    m_detachableWindowForPopover->setLevel(WindowLevel::Floating);
}

void WatchTextFileMenuBarController::setCountingPanel(
    const std::shared_ptr<WatchTextFileViewController> &panel)
{
    m_watchTextFileViewControllerForPopover = panel;
    connect(panel->wordCounterViewController().get(),
        &WordCounterViewController::isAsyncCountOperationInProgressChanged, this,
        &WatchTextFileMenuBarController::countingStateDidChange);
}

void WatchTextFileMenuBarController::makeWindow(
    const QRectF &contentRect, const std::shared_ptr<WatchTextFileViewController> &panel)
{
    const auto window = std::make_shared<QBYWindow>(contentRect, texturedBackground);
    window->setContentView(panel->view());
    window->setMovableByBackground(true);
    window->setClosesOnRequest(false);
    connect(
        window.get(), &Window::closeRequested, this, &WatchTextFileMenuBarController::windowCloseRequested);
    serve(*window, panel);
    m_detachableWindowForPopover = window;
    m_detachableWindowOnScreen = m_surroundings.desktop.putOnScreen(window);
}

/// Fits the statistics now; later they see to it themselves.
void WatchTextFileMenuBarController::serve(
    Window &window, const std::shared_ptr<WatchTextFileViewController> &panel)
{
    const std::shared_ptr<WordCounterViewController> statistics = panel->wordCounterViewController();
    statistics->serve(window);
    statistics->fitLabels();
}

void WatchTextFileMenuBarController::setTitleOfPanels(const QString &title)
{
    m_watchTextFileViewControllerForPopover->setTitle(title);
    if (m_contentViewControllerForDetachableWindow)
        m_contentViewControllerForDetachableWindow->setTitle(title);
    if (m_detachableWindowForPopover)
        m_detachableWindowForPopover->setTitle(title); // for lists of windows and screen readers
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
    const QRectF room = m_surroundings.desktop.visibleFrameAt(m_surroundings.desktop.pointerLocation());
    const QSizeF size = window.frame().size();
    const QPointF origin(
        std::floor(room.center().x() - size.width() / 2), std::floor(room.center().y() - size.height() / 2));
    window.setFrame({origin, size}, true, false);
    window.orderFront();
}

void WatchTextFileMenuBarController::statusBarButtonAction()
{
    if (!m_popover || m_popover->isShown())
        return;
    // Most desktops do not say where the item is; then the pointer is the best guess.
    const QRectF atPointer(m_surroundings.desktop.pointerLocation(), QSizeF(0, 0));
    m_popover->show(m_statusItem->buttonFrame().value_or(atPointer), RectEdge::MinY);
}

bool WatchTextFileMenuBarController::popoverShouldDetach(Popover & /*popover*/)
{
    return true;
}

void WatchTextFileMenuBarController::popoverWillShow(Popover & /*popover*/)
{
    setShortStyle(m_watchTextFileViewControllerForPopover);
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
        setShortStyle(panel);
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

/// Of the window manager, and of the keys that close windows: what the button does that the panel has.
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
