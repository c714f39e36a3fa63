// SPDX-License-Identifier: MIT
#include "platform/views/Popover.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <chrono>

namespace {

constexpr std::chrono::milliseconds detachDelay{250};

class PopoverWindow final : public Window {
public:
    using Window::Window;
    [[nodiscard]] bool canBecomeKeyWindow() const override { return true; }
};

/// Unlike std::clamp(), allows lowest > highest, where there is too little space: lowest wins.
double clampToArea(double value, double lowest, double highest)
{
    return std::max(lowest, std::min(value, highest));
}

} // namespace

Popover::Popover(Desktop &desktop)
    : m_desktop(desktop)
    , m_window(std::make_shared<PopoverWindow>())
{
    m_window->setLevel(WindowLevel::Floating);
    m_window->setMovableByBackground(true);
    m_detachTimer.setSingleShot(true);
    m_detachTimer.setInterval(detachDelay);
    connect(&m_detachTimer, &QTimer::timeout, this, &Popover::detach);
    connect(m_window.get(), &Window::frameDidChange, this, &Popover::windowDidMove);
    m_windowOnScreen = m_desktop.putOnScreen(m_window);
}

Popover::~Popover() = default;

void Popover::setContentViewController(std::shared_ptr<ViewController> controller)
{
    m_contentViewController = std::move(controller);
    if (!m_contentViewController) {
        m_window->setContentView(nullptr);
        return;
    }
    const std::shared_ptr<View> view = m_contentViewController->view();
    setContentSize(view->frame().size());
    m_window->setContentView(view);
}

void Popover::setContentSize(const QSizeF &size)
{
    const QScopedValueRollback guard(m_isPlacing, true);
    // The upper edge stays in place.
    const QRectF former = m_window->frame();
    const QPointF origin(former.x(), former.y() + former.height() - size.height());
    const bool isAttached = isShown() && isExactlyEqual(former, placeFor(former.size()));
    m_window->setFrame(isAttached ? placeFor(size) : QRectF(origin, size), true, false);
}

QRectF Popover::placeFor(const QSizeF &size) const
{
    const QRectF &beside = m_positioningRect;
    const QPointF middle = beside.center();
    QPointF origin(middle.x() - size.width() / 2, middle.y() - size.height() / 2);
    switch (m_preferredEdge) {
    case RectEdge::MinX:
        origin.setX(beside.x() - size.width());
        break;
    case RectEdge::MinY:
        origin.setY(beside.y() - size.height());
        break;
    case RectEdge::MaxX:
        origin.setX(beside.x() + beside.width());
        break;
    case RectEdge::MaxY:
        origin.setY(beside.y() + beside.height());
        break;
    }
    const QRectF area = m_desktop.visibleFrameAt(middle);
    if (m_preferredEdge == RectEdge::MinY && origin.y() < area.y())
        origin.setY(beside.y() + beside.height()); // for a panel at the bottom of the screen
    origin.setX(clampToArea(origin.x(), area.x(), area.x() + area.width() - size.width()));
    origin.setY(clampToArea(origin.y(), area.y(), area.y() + area.height() - size.height()));
    return {origin, size};
}

void Popover::place()
{
    const QScopedValueRollback guard(m_isPlacing, true);
    m_window->setFrame(placeFor(contentSize()), true, false);
}

void Popover::show(const QRectF &positioningRect, RectEdge preferredEdge)
{
    m_positioningRect = positioningRect;
    m_preferredEdge = preferredEdge;
    m_detachTimer.stop();
    if (!isShown()) {
        if (PopoverDelegate *const receiver = m_delegate.get())
            receiver->popoverWillShow(*this);
        if (m_contentViewController)
            m_contentViewController->viewWillAppear();
    }
    place();
    m_window->orderFront();
}

void Popover::close()
{
    m_detachTimer.stop();
    m_window->orderOut();
}

void Popover::windowDidMove()
{
    if (m_isPlacing || !isShown())
        return;
    const QPointF distance = m_window->frame().topLeft() - placeFor(contentSize()).topLeft();
    if (distance.manhattanLength() >= detachDistance)
        m_detachTimer.start();
    else
        m_detachTimer.stop();
}

void Popover::detach()
{
    PopoverDelegate *const receiver = m_delegate.get();
    if (!isShown() || !receiver || !receiver->popoverShouldDetach(*this))
        return;
    const std::shared_ptr<Window> detached = receiver->detachableWindowForPopover(*this);
    if (!detached)
        return;
    detached->setFrame({m_window->frame().topLeft(), detached->frame().size()}, true, false);
    close();
    detached->orderFront();
}
