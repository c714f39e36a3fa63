// SPDX-License-Identifier: MIT
#include "platform/views/widgets/X11.h"

#include <QGuiApplication>
#include <QScreen>

#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>

namespace {

struct ReplyDeleter {
    void operator()(void *reply) const { std::free(reply); }
};

/// A reply or an event of XCB, which its receiver frees; null for none.
template <typename Type>
using Reply = std::unique_ptr<Type, ReplyDeleter>;

/// Qt's own connection; null on other window systems.
xcb_connection_t *qtConnection()
{
    const auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t root(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

xcb_atom_t atom(xcb_connection_t *connection, const char *name)
{
    const xcb_intern_atom_cookie_t cookie =
        xcb_intern_atom(connection, 0, static_cast<quint16>(std::strlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// Since version 23.1 Xwayland has an extension that says so; before, it gives the screens such names.
bool isXwayland(xcb_connection_t *connection)
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    if (screen && screen->name().startsWith(u"XWAYLAND"))
        return true;
    constexpr std::string_view name = "XWAYLAND";
    const Reply<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(
        connection, xcb_query_extension(connection, name.size(), name.data()), nullptr));
    return reply && reply->present != 0;
}

/// The identifier of a startup notification ends in "_TIME" and the time of the user's action.
std::optional<quint32> parseTime(const QByteArray &token)
{
    const qsizetype mark = token.lastIndexOf("_TIME");
    bool isNumber = false;
    const quint32 time = mark < 0 ? 0 : token.mid(mark + 5).toUInt(&isNumber);
    return isNumber && time != 0 ? std::optional(time) : std::nullopt;
}

/// The server's clock, which only events carry. Needs a connection of its own, since Qt reads the events of
/// its connection. Absent if the server is lost.
std::optional<quint32> serverTime()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()))
        return std::nullopt;
    const xcb_window_t window = xcb_generate_id(connection.get());
    constexpr quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.get(), 0, window, root(connection.get()), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_change_property(
        connection.get(), XCB_PROP_MODE_APPEND, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, nullptr);
    xcb_flush(connection.get());
    while (const Reply<xcb_generic_event_t> event{xcb_wait_for_event(connection.get())}) {
        if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY)
            return reinterpret_cast<const xcb_property_notify_event_t *>(event.get())->time;
    }
    return std::nullopt;
}

void setUserTime(xcb_connection_t *connection, quint32 window, quint32 time)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(connection, "_NET_WM_USER_TIME"),
        XCB_ATOM_CARDINAL, 32, 1, &time);
}

/// text: in UTF-8.
void setText(xcb_connection_t *connection, quint32 window, const char *property, const QByteArray &text)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(connection, property),
        atom(connection, "UTF8_STRING"), 8, static_cast<quint32>(text.size()), text.constData());
}

/// data: the first four of the five values of a client message; the last one is 0.
void sendToWindowManager(
    xcb_connection_t *connection, quint32 window, const char *type, const std::array<quint32, 4> &data)
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(connection, type);
    std::ranges::copy(data, message.data.data32);
    xcb_send_event(connection, 0, root(connection),
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
}

constexpr quint32 sourceIsApplication = 1;

} // namespace

bool X11::isAvailable()
{
    return qtConnection() != nullptr;
}

bool X11::isButtonPressed()
{
    xcb_connection_t *const connection = qtConnection();
    if (!connection)
        return false;
    const Reply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root(connection)), nullptr));
    constexpr int buttons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;
    return reply && (reply->mask & buttons) != 0;
}

bool X11::knowsPointer()
{
    xcb_connection_t *const connection = qtConnection();
    if (!connection || !isXwayland(connection))
        return connection != nullptr;
    const Reply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root(connection)), nullptr));
    if (!pointer || pointer->child == XCB_WINDOW_NONE)
        return false;
    // Compositors cover the screen with invisible windows of their own.
    const Reply<xcb_get_window_attributes_reply_t> window(xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, pointer->child), nullptr));
    return window && window->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
}

bool X11::isPointerGrabbed(quint32 window)
{
    xcb_connection_t *const connection = qtConnection();
    if (!connection)
        return false;
    const Reply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(connection,
        xcb_grab_pointer(connection, 1, window, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE,
            XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    if (reply && reply->status == XCB_GRAB_STATUS_SUCCESS)
        xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

void X11::setDesktopFile(quint32 window, const QString &name)
{
    xcb_connection_t *const connection = qtConnection();
    if (!connection || name.isEmpty())
        return;
    // The names that KDE's and GNOME's window lists read; others read WM_CLASS, which Qt sets.
    for (const char *const property : {"_KDE_NET_WM_DESKTOP_FILE", "_GTK_APPLICATION_ID"})
        setText(connection, window, property, name.toUtf8());
}

void X11::setStartupToken(quint32 window, const QByteArray &token)
{
    xcb_connection_t *const connection = qtConnection();
    if (connection && !token.isEmpty())
        setText(connection, window, "_NET_STARTUP_ID", token);
}

void X11::requestFocus(quint32 window, const QByteArray &token)
{
    xcb_connection_t *const connection = qtConnection();
    if (!connection)
        return;
    std::optional<quint32> time = parseTime(token);
    if (!time)
        time = serverTime();
    if (!time)
        return;
    setUserTime(connection, window, *time);
    sendToWindowManager(connection, window, "_NET_ACTIVE_WINDOW", {sourceIsApplication, *time, 0, 0});
}

void X11::demandAttention(quint32 window)
{
    xcb_connection_t *const connection = qtConnection();
    if (!connection)
        return;
    setUserTime(connection, window, 0); // Qt has set it to the present time when it mapped a modal window
    constexpr quint32 add = 1;
    const quint32 state = atom(connection, "_NET_WM_STATE_DEMANDS_ATTENTION");
    sendToWindowManager(connection, window, "_NET_WM_STATE", {add, state, 0, sourceIsApplication});
}
