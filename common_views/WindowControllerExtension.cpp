// SPDX-License-Identifier: MIT
#include "common_views/WindowControllerExtension.h"

#include "platform/views/WindowController.h"

double QBYExtension::inchToScreenNumber(const WindowController &windowController, double inches)
{
    const Window *const window = windowController.window().get();
    return inches * 72 / (window ? window->backingScaleFactor() : 1);
}
