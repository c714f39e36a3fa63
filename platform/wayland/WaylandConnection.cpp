// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandConnection.h"

#include "platform/system/Processes.h"

#include <wayland-client-protocol.h>

#include <algorithm>
#include <chrono>
#include <string_view>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto connectTimeout = 2s;
constexpr size_t maxGlobals = 1024;

/// Without the variable, the library would try the first display of the user, which may belong to another
/// session.
wl_display *connectToNamedDisplay()
{
    return qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? nullptr : wl_display_connect(nullptr);
}

int callHandler(const void *handler, void * /*object*/, uint32_t opcode, const wl_message * /*message*/,
    wl_argument *arguments)
{
    (*static_cast<const WaylandConnection::EventHandler *>(handler))(opcode, arguments);
    return 0;
}

} // namespace

WaylandConnection::WaylandConnection()
    : m_display(connectToNamedDisplay())
    , m_registryHandler(
          [this](uint32_t opcode, const wl_argument *arguments) { handleRegistry(opcode, arguments); })
{
    if (!m_display)
        return;
    m_registry.reset(reinterpret_cast<wl_proxy *>(wl_display_get_registry(m_display)));
    follow(m_registry, m_registryHandler);
    m_isConnected = synchronize(QDeadlineTimer(connectTimeout));
}

WaylandConnection::~WaylandConnection()
{
    m_registry.reset();
    if (m_display)
        wl_display_disconnect(m_display);
}

bool WaylandConnection::offers(const wl_interface &interface) const
{
    return std::ranges::any_of(
        m_globals, [&](const Global &global) { return global.interface == interface.name; });
}

WaylandConnection::Object WaylandConnection::bind(const wl_interface &interface)
{
    const auto global = std::ranges::find_if(
        m_globals, [&](const Global &candidate) { return candidate.interface == interface.name; });
    if (global == m_globals.end())
        return {};
    const uint32_t version = std::min(global->version, static_cast<uint32_t>(interface.version));
    return Object(static_cast<wl_proxy *>(wl_registry_bind(
        reinterpret_cast<wl_registry *>(m_registry.get()), global->name, &interface, version)));
}

WaylandConnection::Object WaylandConnection::make(
    const Object &maker, uint32_t opcode, const wl_interface &interface, std::vector<wl_argument> arguments)
{
    return Object(wl_proxy_marshal_array_flags(
        maker.get(), opcode, &interface, wl_proxy_get_version(maker.get()), 0, arguments.data()));
}

void WaylandConnection::request(const Object &object, uint32_t opcode, std::vector<wl_argument> arguments)
{
    wl_proxy_marshal_array_flags(
        object.get(), opcode, nullptr, wl_proxy_get_version(object.get()), 0, arguments.data());
}

void WaylandConnection::follow(const Object &object, EventHandler &handler)
{
    wl_proxy_add_dispatcher(object.get(), callHandler, &handler, nullptr);
}

bool WaylandConnection::waitFor(const std::function<bool()> &condition, const QDeadlineTimer &deadline)
{
    for (;;) {
        if (wl_display_dispatch_pending(m_display) < 0)
            return false;
        if (condition())
            return true;
        if (deadline.hasExpired())
            return false;
        if (wl_display_prepare_read(m_display) != 0)
            continue; // there are events to dispatch
        wl_display_flush(m_display);
        const std::chrono::milliseconds left{deadline.isForever() ? INT_MAX : deadline.remainingTime() + 1};
        if (!waitUntilReadable(wl_display_get_fd(m_display), left)) {
            wl_display_cancel_read(m_display);
            continue;
        }
        if (wl_display_read_events(m_display) < 0)
            return false;
    }
}

bool WaylandConnection::synchronize(const QDeadlineTimer &deadline)
{
    bool isDone = false;
    EventHandler handler = [&isDone](uint32_t, const wl_argument *) { isDone = true; };
    const Object callback(reinterpret_cast<wl_proxy *>(wl_display_sync(m_display)));
    follow(callback, handler);
    return waitFor([&isDone] { return isDone; }, deadline);
}

void WaylandConnection::handleRegistry(uint32_t opcode, const wl_argument *arguments)
{
    constexpr uint32_t globalEvent = 0;
    if (opcode == globalEvent && m_globals.size() < maxGlobals)
        m_globals.push_back({arguments[0].u, arguments[1].s, arguments[2].u});
}
