// SPDX-License-Identifier: MIT
#include "platform/views/ScrollView.h"

#include <algorithm>
#include <cmath>

namespace {

/// Along one axis. An axis on which the whole document is visible does not scroll.
double scrolled(
    double position, double delta, double visibleLength, double documentStart, double documentLength)
{
    if (delta == 0 || documentLength <= visibleLength)
        return position;
    return std::clamp(position + delta, documentStart, documentStart + documentLength - visibleLength);
}

} // namespace

ScrollView::ScrollView(const QRectF &frame)
    : View(frame)
    , m_contentView(std::make_shared<ClipView>(QRectF(QPointF(), frame.size())))
{
    addSubview(m_contentView);
}

void ScrollView::layoutForNewFrame()
{
    m_contentView->setFrameSize(frame().size());
}

void ScrollView::setMinMagnification(double factor)
{
    if (factor > 0 && factor <= maxMagnification)
        m_minMagnification = factor;
}

void ScrollView::magnifyToFitRect(const QRectF &rect)
{
    const bool hasArea = rect.width() > 0 && rect.height() > 0;
    if (!hasArea || !std::isfinite(rect.x() + rect.width()) || !std::isfinite(rect.y() + rect.height()))
        return;
    const double fitting =
        std::min(contentSize().width() / rect.width(), contentSize().height() / rect.height());
    m_contentView->setMagnification(std::clamp(fitting, m_minMagnification, maxMagnification));
    const QSizeF visible = m_contentView->bounds().size();
    m_contentView->scrollToPoint(rect.center() - QPointF(visible.width(), visible.height()) / 2);
    setVerticalScrollerValue(scrollerValueForScrollPosition());
}

void ScrollView::setHasVerticalScroller(bool hasScroller)
{
    if (hasScroller == hasVerticalScroller())
        return;
    m_verticalScrollerValue = hasScroller ? std::optional(scrollerValueForScrollPosition()) : std::nullopt;
    Q_EMIT verticalScrollerDidChange();
}

void ScrollView::setVerticalScrollerValue(double value)
{
    if (!m_verticalScrollerValue || std::isnan(value))
        return;
    const double reachable = std::clamp(value, 0.0, 1.0);
    if (reachable == *m_verticalScrollerValue)
        return;
    m_verticalScrollerValue = reachable;
    Q_EMIT verticalScrollerDidChange();
}

double ScrollView::scrollerValueForScrollPosition() const
{
    const View *const document = documentView();
    if (!document)
        return 0;
    const QRectF visible = m_contentView->bounds();
    const double room = document->frame().height() - visible.height();
    if (room <= 0)
        return 0;
    const double fromStart = std::clamp((visible.y() - document->frame().y()) / room, 0.0, 1.0);
    return document->isFlipped() ? fromStart : 1 - fromStart;
}

QPointF ScrollView::scrollPositionAfter(const ScrollWheelEvent &event) const
{
    const QRectF visible = m_contentView->bounds();
    const View *const document = documentView();
    if (!document)
        return visible.topLeft();
    const QRectF whole = document->frame();
    const double right = -event.deltaX / magnification();
    const double up = event.deltaY / magnification();
    return {scrolled(visible.x(), right, visible.width(), whole.x(), whole.width()),
        scrolled(visible.y(), document->isFlipped() ? -up : up, visible.height(), whole.y(), whole.height())};
}

void ScrollView::scrollWheel(const ScrollWheelEvent &event)
{
    const QPointF position = scrollPositionAfter(event);
    if (isExactlyEqual(position, m_contentView->bounds().topLeft())) {
        View::scrollWheel(event);
        return;
    }
    m_contentView->scrollToPoint(position);
    setVerticalScrollerValue(scrollerValueForScrollPosition());
}
