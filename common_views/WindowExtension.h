// SPDX-License-Identifier: MIT
// What Quillbay adds to windows and their controllers: resizing from the bottom left corner, switches for the
// title bar's buttons, inches.
// Thread: main.
#pragma once

#include <QSizeF>

class Window;
class WindowController;

namespace QBYExtension {

/// Moves the window's top and right edges; the bottom left corner stays. display and animate: as of
/// Window::setFrame().
void setFrameSize(Window &window, const QSizeF &size, bool display, bool animate = false);

// A switch is a bit of the style mask. Its setter changes only that bit, and sets no mask if the bit has the
// value already.
bool qby_windowClosable(const Window &window);
void setQby_windowClosable(Window &window, bool closable);
bool qby_windowMiniaturizable(const Window &window);
void setQby_windowMiniaturizable(Window &window, bool miniaturizable);

/// Inches to screen points: 72 points per inch, divided by the backing scale factor of the controller's
/// window; without a window the factor is 1.
double inchToScreenNumber(const WindowController &windowController, double inches);

} // namespace QBYExtension
