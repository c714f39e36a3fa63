// SPDX-License-Identifier: MIT
// WindowActivation gives the focus to windows that the user has asked for. Window managers refuse it to
// windows that come up by themselves; the time and the token of the user's request are what they believe.
// Thread: main.
#pragma once

#include <QByteArray>

class QWidget;

namespace WindowActivation {

/// The token of the request that is being answered (XDG activation, or a startup notification of X11); the
/// next window that comes to the front takes it. Empty for none.
void setToken(const QByteArray &token);

/// Shows the window above the others of its level and asks the window manager to give it the focus, as for a
/// request of this moment where there is no token.
void showAndActivate(QWidget &window);

/// Shows a window that the user has not asked for above the others of its level. The keyboard stays where it
/// is; the window demands attention as the desktop does that, by a flashing entry in a bar for instance.
void showForAttention(QWidget &window);

} // namespace WindowActivation
