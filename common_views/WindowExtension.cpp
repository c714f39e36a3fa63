// SPDX-License-Identifier: MIT
#include "common_views/WindowExtension.h"

#include "platform/views/WindowController.h"

namespace {

bool hasStyle(const Window &window, unsigned bit)
{
    return (window.styleMask() & bit) != 0;
}

void setStyle(Window &window, unsigned bit, bool isOn)
{
    if (hasStyle(window, bit) != isOn)
        window.setStyleMask(window.styleMask() ^ bit);
}

} // namespace

void QBYExtension::setFrameSize(Window &window, const QSizeF &size, bool display, bool animate)
{
    window.setFrame({window.frame().topLeft(), size}, display, animate);
}

bool QBYExtension::qby_windowClosable(const Window &window)
{
    return hasStyle(window, Window::closable);
}

void QBYExtension::setQby_windowClosable(Window &window, bool closable)
{
    setStyle(window, Window::closable, closable);
}

bool QBYExtension::qby_windowMiniaturizable(const Window &window)
{
    return hasStyle(window, Window::miniaturizable);
}

void QBYExtension::setQby_windowMiniaturizable(Window &window, bool miniaturizable)
{
    setStyle(window, Window::miniaturizable, miniaturizable);
}

double QBYExtension::inchToScreenNumber(const WindowController &windowController, double inches)
{
    const Window *const window = windowController.window().get();
    return inches * 72 / (window ? window->backingScaleFactor() : 1);
}
