// SPDX-License-Identifier: MIT
#include "platform/views/View.h"

#include "platform/views/Window.h"

#include <algorithm>
#include <cmath>
#include <utility>

View::View(const QRectF &frame)
    : m_frame(frame)
{
}

View::~View()
{
    for (const std::shared_ptr<View> &subview : m_subviews)
        subview->m_superview = nullptr;
}

void View::setFrame(const QRectF &frame)
{
    if (isExactlyEqual(frame, m_frame))
        return;
    m_frame = frame;
    layoutForNewFrame();
    Q_EMIT frameDidChange();
}

Window *View::window() const
{
    const View *root = this;
    while (root->m_superview)
        root = root->m_superview;
    return root->m_window;
}

QRectF View::convertToSuperview(const QRectF &rect) const
{
    const QRectF visible = bounds();
    const double xScale = visible.width() > 0 ? m_frame.width() / visible.width() : 1;
    const double yScale = visible.height() > 0 ? m_frame.height() / visible.height() : 1;
    const bool isTurned = isFlipped() != (m_superview && m_superview->isFlipped());
    const double height = rect.height() * yScale;
    const double fromStart = (rect.y() - visible.y()) * yScale;
    return {m_frame.x() + (rect.x() - visible.x()) * xScale,
        m_frame.y() + (isTurned ? m_frame.height() - fromStart - height : fromStart), rect.width() * xScale,
        height};
}

QRectF View::convertToWindow(const QRectF &rect) const
{
    QRectF converted = rect;
    for (const View *view = this; view; view = view->m_superview)
        converted = view->convertToSuperview(converted);
    return converted;
}

bool View::isOrLiesIn(const View &view) const
{
    const View *place = this;
    while (place && place != &view)
        place = place->m_superview;
    return place != nullptr;
}

std::shared_ptr<View> View::takeSubview(const View &view)
{
    const auto place = std::ranges::find(m_subviews, &view, &std::shared_ptr<View>::get);
    std::shared_ptr<View> taken = std::move(*place);
    m_subviews.erase(place);
    return taken;
}

void View::setHidden(bool hidden)
{
    if (m_hidden == hidden)
        return;
    m_hidden = hidden;
    Q_EMIT hiddenDidChange();
}

void View::setAccessibleName(const QString &name)
{
    if (m_accessibleName == name)
        return;
    m_accessibleName = name;
    Q_EMIT descriptionDidChange();
}

void View::setToolTip(const QString &text)
{
    if (m_toolTip == text)
        return;
    m_toolTip = text;
    Q_EMIT descriptionDidChange();
}

void View::fadeTo(double alpha, int milliseconds)
{
    if (std::isnan(alpha))
        return;
    const double clamped = std::clamp(alpha, 0.0, 1.0);
    if (clamped == m_alphaValue)
        return;
    m_alphaValue = clamped;
    Q_EMIT alphaValueDidChange(milliseconds);
}

void View::addSubview(std::shared_ptr<View> view)
{
    if (!view || isOrLiesIn(*view))
        return;
    if (view->m_superview == this) {
        if (m_subviews.back() == view)
            return;
        takeSubview(*view);
    } else {
        view->leaveSuperviewAndWindow();
        view->m_superview = this;
    }
    m_subviews.push_back(std::move(view));
    Q_EMIT subviewsDidChange();
}

void View::leaveSuperviewAndWindow()
{
    removeFromSuperview();
    if (m_window)
        m_window->setContentView(nullptr);
}

void View::removeFromSuperview()
{
    if (!m_superview)
        return;
    View *const superview = std::exchange(m_superview, nullptr);
    const std::shared_ptr<View> keptAlive = superview->takeSubview(*this);
    Q_EMIT superview->subviewsDidChange();
}

void View::drawRect(const QRectF & /*dirtyRect*/, Painter & /*painter*/) { }

void View::scrollWheel(const ScrollWheelEvent &event)
{
    if (m_superview)
        m_superview->scrollWheel(event);
}
