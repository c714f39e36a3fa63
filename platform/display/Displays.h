// SPDX-License-Identifier: MIT
// Which displays answer, before Qt is asked to use one: it aborts without an answer. What each desktop can do
// with the windows.
// Thread: main.
#pragma once

namespace Displays {

/// Unsets DISPLAY and WAYLAND_DISPLAY where no display answers, as those of a session that has ended, or
/// where they are empty. To be called before the application object exists.
void forgetUnreachable();

/// Whether the variables name a display that Qt can use, or the user has chosen a platform plugin of Qt.
[[nodiscard]] bool isAny();

/// Whether Qt can use Wayland, for which it has a plugin in a package of its own.
[[nodiscard]] bool hasWaylandPlugin();

/// After forgetUnreachable(): whether the program's windows stay above those of other programs, and choose
/// their place. True on X, Xwayland included; Wayland has no such requests for ordinary windows.
[[nodiscard]] bool keepWindowsAbove();

} // namespace Displays
