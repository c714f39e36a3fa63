// SPDX-License-Identifier: MIT
// Conversions between frames and Qt's coordinates: whole device-independent pixels from the top left. A point
// is one such pixel. On the screen, points count from the bottom left corner of the primary screen; other
// screens may have negative coordinates.
// Thread: main; values.
#pragma once

#include "platform/views/Geometry.h"

#include <QRect>

/// The nearest whole number. Halves are rounded up, negative ones too, so that a length of whole points stays
/// the same wherever it starts.
int roundToPixel(double points);

/// The pixels of a rectangle whose origin is the bottom left corner of a window of that height. Each edge is
/// rounded on its own, so that adjacent rectangles stay adjacent.
QRect pixelRectInWindow(const QRectF &rect, int windowHeight);

/// The geometry of the primary screen in Qt's coordinates.
QRect primaryScreenRect();

/// The pixels of a window with that frame: its bottom left corner and its size are rounded. primaryScreen: as
/// of primaryScreenRect().
QRect pixelRectOnScreen(const QRectF &frame, const QRect &primaryScreen);

/// The frame of a window with those pixels. The origin or size of the former frame is kept, with its
/// fractions, if it gives the same pixels.
QRectF frameOnScreen(const QRect &pixels, const QRect &primaryScreen, const QRectF &former);
