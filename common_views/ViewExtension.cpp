// SPDX-License-Identifier: MIT
#include "common_views/ViewExtension.h"

#include "platform/views/View.h"
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
