// SPDX-License-Identifier: MIT
#include "platform/views/ScrollView.h"

#include <algorithm>
#include <cmath>

namespace {

/// The new position on one axis. An axis on which the whole document is visible does not scroll.
double positionAfterScrolling(
    double position, double delta, double visibleLength, double documentStart, double documentLength)
{
    if (delta == 0 || documentLength <= visibleLength)
        return position;
    return std::clamp(position + delta, documentStart, documentStart + documentLength - visibleLength);
}

} // namespace

void ClipView::setDocumentView(const std::shared_ptr<View> &view)
{
    View *const former = documentView();
    if (former == view.get())
        return;
    if (former)
        former->removeFromSuperview();
    addSubview(view);
}

QRectF ClipView::bounds() const
{
    return {m_scrollPosition, frame().size() / m_magnification};
}

bool ClipView::isFlipped() const
{
    const View *const document = documentView();
    return document && document->isFlipped();
}

void ClipView::scrollToPoint(const QPointF &point)
{
    if (isExactlyEqual(point, m_scrollPosition))
        return;
    m_scrollPosition = point;
    Q_EMIT boundsDidChange();
}

void ClipView::setMagnification(double factor)
{
    if (factor == m_magnification)
        return;
    m_magnification = factor;
    Q_EMIT boundsDidChange();
}

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
    const double clamped = std::clamp(value, 0.0, 1.0);
    if (clamped == *m_verticalScrollerValue)
        return;
    m_verticalScrollerValue = clamped;
    Q_EMIT verticalScrollerDidChange();
}

double ScrollView::scrollerValueForScrollPosition() const
{
    const View *const document = documentView();
    if (!document)
        return 0;
    const QRectF visible = m_contentView->bounds();
    const double range = document->frame().height() - visible.height();
    if (range <= 0)
        return 0;
    const double fromStart = std::clamp((visible.y() - document->frame().y()) / range, 0.0, 1.0);
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
    return {positionAfterScrolling(visible.x(), right, visible.width(), whole.x(), whole.width()),
        positionAfterScrolling(
            visible.y(), document->isFlipped() ? -up : up, visible.height(), whole.y(), whole.height())};
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
