// SPDX-License-Identifier: MIT
#include "platform/display/XDisplay.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace {

constexpr uint32_t maxPropertyLength = 4096; // units of four bytes

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply *reply)
{
    return {reply, &std::free};
}

/// Reads properties of the first screen's root window and of the window manager (EWMH 1.5).
class DisplayReader {
public:
    explicit DisplayReader(xcb_connection_t *connection)
        : m_connection(connection)
        , m_root(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root)
    {
    }

    [[nodiscard]] XDisplay read()
    {
        XDisplay display;
        display.showsTrayIcons = hasOwner("_NET_SYSTEM_TRAY_S0");
        const xcb_window_t manager = managerWindow();
        display.hasWindowManager = manager != XCB_WINDOW_NONE;
        if (!display.hasWindowManager)
            return display;
        display.windowManager = QString::fromUtf8(bytesOf(manager, "_NET_WM_NAME"));
        const std::vector<uint32_t> supported = numbersOf(m_root, "_NET_SUPPORTED");
        display.keepsWindowsAbove =
            std::find(supported.begin(), supported.end(), atom("_NET_WM_STATE_ABOVE")) != supported.end();
        return display;
    }

private:
    xcb_atom_t atom(const char *name)
    {
        const auto reply = owned(xcb_intern_atom_reply(m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(std::strlen(name)), name), nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    QByteArray bytesOf(xcb_window_t window, const char *property)
    {
        const auto reply = owned(xcb_get_property_reply(m_connection,
            xcb_get_property(m_connection, 0, window, atom(property), XCB_ATOM_ANY, 0, maxPropertyLength),
            nullptr));
        if (!reply)
            return {};
        return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
    }

    std::vector<uint32_t> numbersOf(xcb_window_t window, const char *property)
    {
        const QByteArray bytes = bytesOf(window, property);
        std::vector<uint32_t> numbers(static_cast<size_t>(bytes.size()) / sizeof(uint32_t));
        if (!numbers.empty())
            std::memcpy(numbers.data(), bytes.constData(), numbers.size() * sizeof(uint32_t));
        return numbers;
    }

    /// None if there is no window manager, even if one has died and left its property behind.
    xcb_window_t managerWindow()
    {
        constexpr char check[] = "_NET_SUPPORTING_WM_CHECK";
        const std::vector<uint32_t> named = numbersOf(m_root, check);
        if (named.empty() || numbersOf(named.front(), check) != named)
            return XCB_WINDOW_NONE;
        return named.front();
    }

    bool hasOwner(const char *selection)
    {
        const auto reply = owned(xcb_get_selection_owner_reply(
            m_connection, xcb_get_selection_owner(m_connection, atom(selection)), nullptr));
        return reply && reply->owner != XCB_WINDOW_NONE;
    }

    xcb_connection_t *const m_connection;
    const xcb_window_t m_root;
};

} // namespace

std::optional<XDisplay> readXDisplay()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0)
        return std::nullopt;
    return DisplayReader(connection.get()).read();
}
