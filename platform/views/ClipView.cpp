// SPDX-License-Identifier: MIT
#include "platform/views/ClipView.h"

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
