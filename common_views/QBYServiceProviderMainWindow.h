// SPDX-License-Identifier: MIT
// QBYServiceProviderMainWindow is a window of the service provider that takes the focus in every style, even
// without a title bar.
// Thread: main.  Owner: its controller.
#pragma once

#include "platform/views/Window.h"

class QBYServiceProviderMainWindow : public Window {
public:
    using Window::Window;

    [[nodiscard]] bool canBecomeKeyWindow() const override { return true; }
    [[nodiscard]] bool canBecomeMainWindow() const override { return true; }
};
