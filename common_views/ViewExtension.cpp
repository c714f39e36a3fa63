// SPDX-License-Identifier: MIT
#include "common_views/ViewExtension.h"

#include "platform/views/ScrollView.h"
#include "platform/views/Window.h"

QPointF QBYExtension::center(const View &view)
{
    return view.frame().center();
}

void QBYExtension::setCenter(View &view, const QPointF &center)
{
    const QSizeF size = view.frame().size();
    view.setFrameOrigin(center - QPointF(size.width(), size.height()) / 2);
}

double QBYExtension::screenPointValueToInch(double points)
{
    return points / 72;
}

double QBYExtension::inchToScreenNumber(const View &view, double inches)
{
    const Window *const window = view.window();
    return inches * 72 / (window ? window->backingScaleFactor() : 1);
}

void QBYExtension::bringSubviewToFront(View &view, const std::shared_ptr<View> &subview)
{
    view.addSubview(subview);
}

void QBYExtension::scrollToTop(ScrollView &scrollView)
{
    scrollView.setVerticalScrollerValue(0);
    const View *const document = scrollView.documentView();
    if (!document)
        return;
    const double top =
        document->isFlipped() ? 0 : document->frame().height() - scrollView.contentSize().height();
    scrollView.contentView().scrollToPoint({0, top});
}

QRectF Outlet::frame(const std::shared_ptr<View> &outlet)
{
    return outlet ? outlet->frame() : QRectF();
}

void Outlet::setFrame(const std::shared_ptr<View> &outlet, const QRectF &frame)
{
    if (outlet)
        outlet->setFrame(frame);
}

void Outlet::setFrameOrigin(const std::shared_ptr<View> &outlet, const QPointF &origin)
{
    if (outlet)
        outlet->setFrameOrigin(origin);
}

void Outlet::setCenter(const std::shared_ptr<View> &outlet, const QPointF &center)
{
    if (outlet)
        QBYExtension::setCenter(*outlet, center);
}
