// SPDX-License-Identifier: MIT
// What Quillbay adds to every window controller.
// Thread: main.
#pragma once

class WindowController;

namespace QBYExtension {

/// Inches in screen points: 72 to the inch, divided by the backing scale factor of the controller's window;
/// without a window by 1.
double inchToScreenNumber(const WindowController &windowController, double inches);

} // namespace QBYExtension
