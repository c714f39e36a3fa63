// SPDX-License-Identifier: MIT
// WindowPlacement says where a window opens that the user has just asked for.
// Thread: any. Points, with the origin at the bottom left.
#pragma once

#include <QPointF>
#include <QRectF>

/// The origin of a window of that size: below the pointer and in its middle, as near as the area allows; the
/// top left corner of the area where the window is larger than it.
QPointF originBesidePointer(const QSizeF &size, const QPointF &pointer, const QRectF &area);
