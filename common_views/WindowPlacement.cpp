// SPDX-License-Identifier: MIT
#include "common_views/WindowPlacement.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double pointerGap = 16; // so that the pointer covers nothing of the window

} // namespace

QPointF originBesidePointer(const QSizeF &size, const QPointF &pointer, const QRectF &area)
{
    const double maxX = std::max(area.x(), area.x() + area.width() - size.width());
    const double maxY = area.y() + area.height() - size.height();
    return {std::clamp(pointer.x() - size.width() * 0.5, area.x(), maxX),
        std::clamp(pointer.y() - pointerGap - size.height(), std::min(area.y(), maxY), maxY)};
}

QPointF originInMiddle(const QSizeF &size, const QRectF &area)
{
    const QPointF middle = area.center();
    return {std::floor(middle.x() - size.width() / 2), std::floor(middle.y() - size.height() / 2)};
}
