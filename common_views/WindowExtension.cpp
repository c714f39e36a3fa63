// SPDX-License-Identifier: MIT
#include "common_views/WindowExtension.h"

#include "platform/views/Window.h"

namespace {

bool hasStyle(const Window &window, unsigned bit)
{
    return (window.styleMask() & bit) != 0;
}

void setStyle(Window &window, unsigned bit, bool wanted)
{
    if (hasStyle(window, bit) != wanted)
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
