// SPDX-License-Identifier: MIT
// WindowController holds one window; subclasses fill and show it.
// Thread: main.  Owner: whatever opened the window; shares the ownership of the window.
#pragma once

#include "platform/views/Window.h"

#include <utility>

class WindowController : public QObject {
public:
    explicit WindowController(std::shared_ptr<Window> window = nullptr)
        : m_window(std::move(window))
    {
    }

    /// Null for none.
    [[nodiscard]] const std::shared_ptr<Window> &window() const { return m_window; }
    void setWindow(std::shared_ptr<Window> window) { m_window = std::move(window); }

private:
    std::shared_ptr<Window> m_window;
};
