// SPDX-License-Identifier: MIT
// Where windows of the program go on a screen besides the place that their owner wants: next to each other
// instead of on top of each other, and into the work area when they grow. All rectangles are Qt's: pixels
// from the top left.
// Thread: main; values, but for placesOfWindows().
#pragma once

#include <QList>
#include <QPoint>
#include <QRect>

class QWidget;

namespace WindowPlaces {

/// The distance between windows of a cascade; more than the height of a window's title row, which stays
/// visible.
constexpr int cascadeStep = 32;

/// The wanted place, if a window there hides none of the others. Otherwise the next place of a cascade to the
/// bottom right, which starts again at an edge of the work area once it has reached the opposite edge. The
/// wanted place too if there are so many windows that no such place is free.
QPoint freePlace(const QRect &wanted, const QList<QRect> &others, const QRect &workArea);

/// A window that grows to the top and to the right, moved so that it grows over no edge of the work area.
/// former: its place before. What was outside before may stay there.
QRect keptInside(const QRect &grown, const QRect &former, const QRect &workArea);

/// Of the visible windows and dialogs of the program, except this one.
QList<QRect> placesOfWindows(const QWidget &except);

/// The work area of the screen that shows most of the rectangle.
QRect workAreaAround(const QRect &rect);

} // namespace WindowPlaces
