// SPDX-License-Identifier: MIT
// WindowActivation gives the keyboard focus to windows that the user has asked for. Window managers refuse it
// to windows that open by themselves; the time or token of the user's request convinces them.
// Thread: main.
#pragma once

#include <QByteArray>

class QWidget;

namespace WindowActivation {

/// The token of the request that is being served (XDG activation, or a startup notification of X11); the next
/// showAndActivate() uses it up. Empty for none.
void setToken(const QByteArray &token);

/// Shows the window above the others of its level and asks the window manager to give it the focus; without a
/// token, as if the user's request came now.
void showAndActivate(QWidget &window);

/// Shows a window that the user has not asked for above the others of its level, without the focus. The
/// desktop draws the user's attention to it, for instance by a flashing taskbar entry.
void showForAttention(QWidget &window);

} // namespace WindowActivation
