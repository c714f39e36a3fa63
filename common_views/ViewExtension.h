// SPDX-License-Identifier: MIT
// What Quillbay adds to views and scroll views: midpoint, stacking, inches, scrolling to the top; and outlets
// that may be missing.
// Thread: main.
#pragma once

#include <QPointF>
#include <QRectF>

#include <memory>

class ScrollView;
class View;

namespace QBYExtension {

/// The midpoint of the frame, in the coordinates of the superview.
QPointF center(const View &view);
/// Moves the frame so that this is its midpoint; the size stays.
void setCenter(View &view, const QPointF &center);

// The two conversions are deliberately not inverse where the scale factor is not 1: line counts use margins
// that shrink with the screen's factor, and page sizes that do not.

/// Points to inches: 72 points per inch on every screen.
double screenPointValueToInch(double points);
/// Inches to screen points: 72 points per inch, divided by the backing scale factor of the view's window; a
/// view without a window has a factor of 1.
double inchToScreenNumber(const View &view, double inches);

/// Adds the subview to the view again, above all others.
void bringSubviewToFront(View &view, const std::shared_ptr<View> &subview);

/// Shows the left end of the document's top edge, and moves the scroller to the top. A document that is not
/// flipped and is lower than the scroll view gets a negative scroll position, so that its top is at the
/// view's top. Without a document only the scroller moves.
void scrollToTop(ScrollView &scrollView);

} // namespace QBYExtension

/// Outlets of interface files, which may be null: they have an empty frame at the origin, and moving them
/// does nothing.
namespace Outlet {

QRectF frame(const std::shared_ptr<View> &outlet);
void setFrame(const std::shared_ptr<View> &outlet, const QRectF &frame);
void setFrameOrigin(const std::shared_ptr<View> &outlet, const QPointF &origin);
void setCenter(const std::shared_ptr<View> &outlet, const QPointF &center);

} // namespace Outlet
