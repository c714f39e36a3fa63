// SPDX-License-Identifier: MIT
// FocusedWindow is a transparent window of one pixel, for compositors that show selections to the program
// with the focus only. It disappears with the connection; then the focus returns to the window that had it.
// Thread: one at a time.  Owner: whoever needs the focus for a moment.
#pragma once

#include "platform/wayland/WaylandConnection.h"

#include <optional>

class FocusedWindow {
public:
    /// connection: outlives this object.
    explicit FocusedWindow(WaylandConnection &connection);

    /// Shows the window. True once it has the focus; false after the deadline, or if the compositor has no
    /// windows or no keyboard.
    [[nodiscard]] bool takeFocus(const QDeadlineTimer &deadline);

private:
    using Object = WaylandConnection::Object;
    using EventHandler = WaylandConnection::EventHandler;

    [[nodiscard]] bool show(const QDeadlineTimer &deadline);
    [[nodiscard]] bool attachPixel();

    WaylandConnection &m_connection;
    bool m_hasKeyboard = false;
    bool m_hasFocus = false;
    std::optional<uint32_t> m_configuration; // the number of the last one that the compositor has sent

    EventHandler m_seatHandler;
    EventHandler m_keyboardHandler;
    EventHandler m_surfaceHandler;
    EventHandler m_shellHandler;
    Object m_seat;
    Object m_keyboard;
    Object m_compositor;
    Object m_memory;
    Object m_shell;
    Object m_surface;
    Object m_shellSurface;
    Object m_toplevel;
    Object m_buffer;
};
