// SPDX-License-Identifier: MIT
#include "platform/views/widgets/PointerState.h"

#include "platform/views/widgets/X11Display.h"

bool PointerState::isPressed()
{
    xcb_connection_t *const connection = X11Display::connection();
    if (!connection)
        return false;
    const xcb_window_t root = X11Display::root(connection);
    const X11Reply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root), nullptr));
    constexpr int buttons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;
    return reply && (reply->mask & buttons) != 0;
}

bool PointerState::isGrabbed(quint32 window)
{
    xcb_connection_t *const connection = X11Display::connection();
    if (!connection)
        return false;
    const X11Reply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(connection,
        xcb_grab_pointer(connection, 1, window, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE,
            XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    if (reply && reply->status == XCB_GRAB_STATUS_SUCCESS)
        xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}
