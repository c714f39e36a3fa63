// SPDX-License-Identifier: MIT
// Where the windows of the program open. All lengths are points, with the origin at the bottom left.
// Thread: any.
#pragma once

#include <QPointF>
#include <QRectF>

// size: of the window; area: the work area of its screen, as of Desktop::visibleFrameAt().

/// Centred below the pointer, as close to it as the area allows. A window larger than the area starts at the
/// area's top left corner.
QPointF originBesidePointer(const QSizeF &size, const QPointF &pointer, const QRectF &area);

/// The middle of the area, rounded down to whole points.
QPointF originInMiddle(const QSizeF &size, const QRectF &area);
