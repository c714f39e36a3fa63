// SPDX-License-Identifier: MIT
// What Quillbay adds to every window: resizing from the bottom left corner, and switches of its buttons.
// Thread: main.
#pragma once

#include <QSizeF>

class Window;

namespace QBYExtension {

/// Grows or shrinks the window at its top and right edges; the bottom left corner stays where it is.
/// For display and animate see Window::setFrame().
void setFrameSize(Window &window, const QSizeF &size, bool display, bool animate = false);

/// Whether the style mask has the bit; a setter changes that bit alone, and sets nothing where it is so
/// already.
bool qby_windowClosable(const Window &window);
void setQby_windowClosable(Window &window, bool closable);
bool qby_windowMiniaturizable(const Window &window);
void setQby_windowMiniaturizable(Window &window, bool miniaturizable);

} // namespace QBYExtension
