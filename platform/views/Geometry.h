// SPDX-License-Identifier: MIT
// What views need to know of points, sizes and rectangles beyond Qt's own types.
// Thread: any; values.
//
// Lengths are points. A rectangle's x and y are its origin: the bottom left corner where y grows upward, the
// top left corner in flipped views. QRectF's top() and bottom() name the wrong edges for the former and
// are not used on frames.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

// Qt's own == takes values that differ in the last digits for equal, and would swallow a small change.
inline bool isExactlyEqual(const QPointF &one, const QPointF &other)
{
    return one.x() == other.x() && one.y() == other.y();
}

inline bool isExactlyEqual(const QSizeF &one, const QSizeF &other)
{
    return one.width() == other.width() && one.height() == other.height();
}

inline bool isExactlyEqual(const QRectF &one, const QRectF &other)
{
    return isExactlyEqual(one.topLeft(), other.topLeft()) && isExactlyEqual(one.size(), other.size());
}
