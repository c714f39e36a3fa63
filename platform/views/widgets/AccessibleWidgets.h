// SPDX-License-Identifier: MIT
// What screen readers learn of our windows beyond what Qt tells them: that a window is one, what it shows as
// a whole, and that a spinner at rest is invisible.
// Thread: main.
#pragma once

namespace AccessibleWidgets {

/// For all widgets of the program; further calls do nothing.
void install();

} // namespace AccessibleWidgets
