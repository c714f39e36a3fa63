// SPDX-License-Identifier: MIT
// Exact comparison of points, sizes and rectangles, which Qt's own types leave out.
// Thread: any; values.
//
// Lengths are points. A rectangle's x and y are its origin: the bottom left corner where y grows upward, the
// top left corner in flipped views. QRectF's top() and bottom() name the wrong edges for the former and are
// never used on frames.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

// Qt's own == treats values that differ in the last digits as equal, which would swallow small changes.
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
