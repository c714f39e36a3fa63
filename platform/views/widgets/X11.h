// SPDX-License-Identifier: MIT
// What the windows of the program need of the X server beyond Qt: the state of the pointer, and the focus by
// the Extended Window Manager Hints (EWMH 1.5). All of it goes through Qt's own connection, so that messages
// arrive after those by which Qt shows a window.
// Thread: main.
#pragma once

#include <QByteArray>

namespace X11 {

/// False on other window systems, where the functions below do nothing and return false.
bool isAvailable();

/// Whether a mouse button is pressed, over any window. A program receives no button events while the window
/// manager moves one of its windows.
bool isButtonPressed();

/// Whether the server knows where the pointer is. Xwayland knows it only over windows of X clients, and
/// reports the last place there otherwise.
bool knowsPointer();

/// Whether another program has grabbed the pointer, as window managers do until a drag has ended. window: any
/// window of this program.
bool isPointerGrabbed(quint32 window);

/// To be called before the window is shown: names the program's desktop file, by which desktops find its
/// icon and group its windows.
void setDesktopFile(quint32 window, const QString &name);

/// To be called before the window is shown: marks it as belonging to a startup notification.
void setStartupToken(quint32 window, const QByteArray &token);

/// To be called once the window is shown: asks for the focus, with the time in the token, or the present one.
void requestFocus(quint32 window, const QByteArray &token);

/// To be called once the window is shown: asks for the user's attention without the focus.
void demandAttention(quint32 window);

} // namespace X11
