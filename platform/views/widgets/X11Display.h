// SPDX-License-Identifier: MIT
// X11Display is the X server as Qt has it: what code that asks the server itself needs to begin with.
// Thread: main.
#pragma once

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

struct X11ReplyDeleter {
    void operator()(void *reply) const { std::free(reply); }
};

/// What XCB hands out, to be freed: a reply or an event; null for none.
template <typename Reply>
using X11Reply = std::unique_ptr<Reply, X11ReplyDeleter>;

namespace X11Display {

/// Qt's own connection; null elsewhere than on X11.
inline xcb_connection_t *connection()
{
    const auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

inline xcb_window_t root(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

} // namespace X11Display
