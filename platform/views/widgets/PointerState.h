// SPDX-License-Identifier: MIT
// PointerState says what the user does with the pointer at this moment, as the X server knows it: a program
// hears nothing of the buttons while the window manager moves one of its windows. Elsewhere than on X11
// nobody knows; then the pointer counts as idle. Thread: main.
#pragma once

#include <QtGlobal>

namespace PointerState {

/// Whether a button is held down, over whatever window.
bool isPressed();

/// Whether another program has grabbed the pointer, as window managers do until a drag has ended. window: one
/// of ours on the screen.
bool isGrabbed(quint32 window);

} // namespace PointerState
