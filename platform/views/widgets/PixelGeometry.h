// SPDX-License-Identifier: MIT
// Where rectangles of points lie in Qt's coordinates: whole device-independent pixels from the top left. A
// point is one device-independent pixel. The origin of the screen is the bottom left corner of the primary
// screen; other screens of the desktop reach into negative coordinates. Thread: main; values.
#pragma once

#include "platform/views/Geometry.h"

#include <QRect>

/// The nearest whole number; of two that are equally near, the larger one, whatever the sign, so that a
/// length of whole points keeps it wherever it starts.
int roundedToPixel(double points);

/// In a window of that height, which its bottom left corner is the origin of. Every edge is rounded on its
/// own: rectangles that touch still do.
QRect pixelRectInWindow(const QRectF &rect, int windowHeight);

/// In Qt's coordinates.
QRect primaryScreenRect();

/// Where a window with that frame lies on the screen: its bottom left corner and its size are rounded.
/// primaryScreen: its rectangle in Qt's coordinates.
QRect pixelRectOnScreen(const QRectF &frame, const QRect &primaryScreen);

/// The frame of a window that lies there. What of the former frame gives the same pixels stays as it was,
/// with its fractions.
QRectF frameOnScreen(const QRect &pixels, const QRect &primaryScreen, const QRectF &former);
