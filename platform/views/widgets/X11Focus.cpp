// SPDX-License-Identifier: MIT
#include "platform/views/widgets/X11Focus.h"

#include "platform/views/widgets/X11Display.h"

#include <cstring>
#include <memory>
#include <optional>

namespace {

/// A startup notification's identifier ends in "_TIME" and the time of the user's action.
std::optional<quint32> timeIn(const QByteArray &token)
{
    const qsizetype mark = token.lastIndexOf("_TIME");
    bool isNumber = false;
    const quint32 time = mark < 0 ? 0 : token.mid(mark + 5).toUInt(&isNumber);
    return isNumber && time != 0 ? std::optional(time) : std::nullopt;
}

/// The display's clock, which only an event tells; on a connection of its own, since Qt reads the events of
/// its own one. Absent where the display is gone.
std::optional<quint32> timeOfDisplay()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()))
        return std::nullopt;
    const xcb_window_t window = xcb_generate_id(connection.get());
    constexpr quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.get(), 0, window, X11Display::root(connection.get()), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_change_property(
        connection.get(), XCB_PROP_MODE_APPEND, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, nullptr);
    xcb_flush(connection.get());
    while (const X11Reply<xcb_generic_event_t> event{xcb_wait_for_event(connection.get())}) {
        if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY)
            return reinterpret_cast<const xcb_property_notify_event_t *>(event.get())->time;
    }
    return std::nullopt;
}

} // namespace

void X11Focus::announce(const QByteArray &token) const
{
    if (token.isEmpty())
        return;
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, atom("_NET_STARTUP_ID"),
        atom("UTF8_STRING"), 8, static_cast<quint32>(token.size()), token.constData());
}

void X11Focus::request(const QByteArray &token) const
{
    std::optional<quint32> time = timeIn(token);
    if (!time)
        time = timeOfDisplay();
    if (!time)
        return;
    setUserTime(*time);
    constexpr quint32 fromApplication = 1;
    sendToWindowManager("_NET_ACTIVE_WINDOW", fromApplication, *time, 0, 0);
}

void X11Focus::setUserTime(quint32 time) const
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, atom("_NET_WM_USER_TIME"),
        XCB_ATOM_CARDINAL, 32, 1, &time);
}

void X11Focus::demandAttention() const
{
    setUserTime(0); // Qt has set it to the present when it mapped a modal window
    constexpr quint32 add = 1;
    constexpr quint32 fromApplication = 1;
    sendToWindowManager("_NET_WM_STATE", add, atom("_NET_WM_STATE_DEMANDS_ATTENTION"), 0, fromApplication);
}

void X11Focus::sendToWindowManager(
    const char *type, quint32 first, quint32 second, quint32 third, quint32 fourth) const
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_window;
    message.type = atom(type);
    message.data.data32[0] = first;
    message.data.data32[1] = second;
    message.data.data32[2] = third;
    message.data.data32[3] = fourth;
    xcb_send_event(m_connection, 0, X11Display::root(m_connection),
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char *>(&message));
    xcb_flush(m_connection);
}

quint32 X11Focus::atom(const char *name) const
{
    const xcb_intern_atom_cookie_t cookie =
        xcb_intern_atom(m_connection, 0, static_cast<quint16>(std::strlen(name)), name);
    const X11Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<quint32>(XCB_ATOM_NONE);
}
