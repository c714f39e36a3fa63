// SPDX-License-Identifier: MIT
// QBYWindow is a window that takes the keyboard focus in every style, even without a title bar.
// Thread: main.  Owner: its controller.
#pragma once

#include "platform/views/Window.h"

class QBYWindow : public Window {
public:
    using Window::Window;

    [[nodiscard]] bool canBecomeKeyWindow() const override { return true; }
    [[nodiscard]] bool canBecomeMainWindow() const override { return true; }
};
