// SPDX-License-Identifier: MIT
#include "front_end/WindowPlacement.h"

#include <algorithm>

namespace {

constexpr double gap = 16; // so that the pointer hides nothing

} // namespace

QPointF originBesidePointer(const QSizeF &size, const QPointF &pointer, const QRectF &area)
{
    const double mostRight = std::max(area.x(), area.x() + area.width() - size.width());
    const double highest = area.y() + area.height() - size.height();
    return {std::clamp(pointer.x() - size.width() * 0.5, area.x(), mostRight),
        std::clamp(pointer.y() - gap - size.height(), std::min(area.y(), highest), highest)};
}
