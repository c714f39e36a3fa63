// SPDX-License-Identifier: MIT
// What Quillbay adds to every view: its midpoint, its stacking, and lengths in inches.
// Thread: main.
#pragma once

#include <QPointF>

#include <memory>

class View;

namespace QBYExtension {

/// The midpoint of the frame, in the coordinates of the superview.
QPointF center(const View &view);
/// Moves the frame so that its midpoint lies there; the size stays.
void setCenter(View &view, const QPointF &center);

// The two conversions are deliberately not each other's inverse where the scale factor is not 1: line counts
// rest on margins that shrink with the screen's factor and on page sizes that do not.

/// Points in inches: 72 to the inch, whatever the screen.
double screenPointValueToInch(double points);
/// Inches in screen points: 72 to the inch, divided by the backing scale factor of the view's window. A view
/// in no window is measured with a factor of 1.
double inchToScreenNumber(const View &view, double inches);

/// Adds the subview to the view again, above all others.
void bringSubviewToFront(View &view, const std::shared_ptr<View> &subview);

} // namespace QBYExtension
