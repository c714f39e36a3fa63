// SPDX-License-Identifier: MIT
// XDisplay says what the X server and the window manager of the user's display offer to windows; the windows
// themselves are left to the toolkit.
// Thread: any. Blocks as long as the server does not answer.
#pragma once

#include <QString>

#include <optional>

struct XDisplay {
    bool hasWindowManager = false;
    QString windowManager; ///< its name; may be empty
    bool keepsWindowsAbove = false; ///< the window manager knows _NET_WM_STATE_ABOVE
    bool showsTrayIcons = false; ///< a program owns the system tray's selection
};

/// The display that DISPLAY names. Absent if it cannot be opened.
std::optional<XDisplay> readXDisplay();
