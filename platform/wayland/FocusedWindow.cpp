// SPDX-License-Identifier: MIT
#include "platform/wayland/FocusedWindow.h"

#include "platform/system/OwnedDescriptor.h"

#include <wayland-client-protocol.h>

#include <array>

#include <sys/mman.h>
#include <unistd.h>

namespace {

// The first requests of the tables of xdg-shell 1, up to the last one that is used here.
enum ShellRequest : uint32_t { GetShellSurface = 2, Pong = 3 };
enum ShellEvent : uint32_t { Ping };
enum ShellSurfaceRequest : uint32_t { GetToplevel = 1, AcknowledgeConfiguration = 4 };
enum ShellSurfaceEvent : uint32_t { Configure };
enum ToplevelRequest : uint32_t { SetTitle = 2, SetApplication = 3 };

// The types of the arguments, one for each; null for numbers and texts. libwayland only reads them, but does
// not take constants.
std::array<const wl_interface *, 4> noTypes{};

const std::array<wl_message, 4> toplevelRequests{
    {{"destroy", "", nullptr}, {"set_parent", "?o", noTypes.data()}, {"set_title", "s", noTypes.data()},
        {"set_app_id", "s", noTypes.data()}}};
const std::array<wl_message, 2> toplevelEvents{
    {{"configure", "iia", noTypes.data()}, {"close", "", nullptr}}};
const wl_interface toplevelInterface{
    "xdg_toplevel", 1, toplevelRequests.size(), toplevelRequests.data(), 2, toplevelEvents.data()};

std::array<const wl_interface *, 1> newToplevel{&toplevelInterface};
const std::array<wl_message, 5> shellSurfaceRequests{{{"destroy", "", nullptr},
    {"get_toplevel", "n", newToplevel.data()}, {"get_popup", "n?oo", noTypes.data()},
    {"set_window_geometry", "iiii", noTypes.data()}, {"ack_configure", "u", noTypes.data()}}};
const std::array<wl_message, 1> shellSurfaceEvents{{{"configure", "u", noTypes.data()}}};
const wl_interface shellSurfaceInterface{
    "xdg_surface", 1, shellSurfaceRequests.size(), shellSurfaceRequests.data(), 1, shellSurfaceEvents.data()};

std::array<const wl_interface *, 2> newShellSurface{&shellSurfaceInterface, &wl_surface_interface};
const std::array<wl_message, 4> shellRequests{
    {{"destroy", "", nullptr}, {"create_positioner", "n", noTypes.data()},
        {"get_xdg_surface", "no", newShellSurface.data()}, {"pong", "u", noTypes.data()}}};
const std::array<wl_message, 1> shellEvents{{{"ping", "u", noTypes.data()}}};
const wl_interface shellInterface{
    "xdg_wm_base", 1, shellRequests.size(), shellRequests.data(), 1, shellEvents.data()};

/// A pointer of the type that the functions of libwayland take.
template <typename Type>
Type *as(const WaylandConnection::Object &object)
{
    return reinterpret_cast<Type *>(object.get());
}

WaylandConnection::Object owned(void *object)
{
    return WaylandConnection::Object(static_cast<wl_proxy *>(object));
}

} // namespace

FocusedWindow::FocusedWindow(WaylandConnection &connection)
    : m_connection(connection)
    , m_seatHandler([this](uint32_t opcode, const wl_argument *arguments) {
        constexpr uint32_t capabilitiesEvent = 0;
        if (opcode == capabilitiesEvent)
            m_hasKeyboard = (arguments[0].u & WL_SEAT_CAPABILITY_KEYBOARD) != 0;
    })
    , m_keyboardHandler([this](uint32_t opcode, const wl_argument *arguments) {
        constexpr uint32_t keymapEvent = 0;
        constexpr uint32_t enterEvent = 1;
        if (opcode == keymapEvent)
            ::close(arguments[1].h);
        else if (opcode == enterEvent)
            m_hasFocus = true;
    })
    , m_surfaceHandler([this](uint32_t opcode, const wl_argument *arguments) {
        if (opcode == Configure)
            m_configuration = arguments[0].u;
    })
    , m_shellHandler([this](uint32_t opcode, const wl_argument *arguments) {
        if (opcode == Ping)
            WaylandConnection::request(m_shell, Pong, {{.u = arguments[0].u}});
    })
    , m_seat(connection.bind(wl_seat_interface))
    , m_compositor(connection.bind(wl_compositor_interface))
    , m_memory(connection.bind(wl_shm_interface))
    , m_shell(connection.bind(shellInterface))
{
}

bool FocusedWindow::takeFocus(const QDeadlineTimer &deadline)
{
    if (!m_seat || !m_compositor || !m_memory || !m_shell)
        return false;
    WaylandConnection::follow(m_seat, m_seatHandler);
    WaylandConnection::follow(m_shell, m_shellHandler);
    // A keyboard must not be requested where there is none.
    if (!m_connection.synchronize(deadline) || !m_hasKeyboard)
        return false;
    m_keyboard = owned(wl_seat_get_keyboard(as<wl_seat>(m_seat)));
    WaylandConnection::follow(m_keyboard, m_keyboardHandler);
    return show(deadline) && m_connection.waitFor([this] { return m_hasFocus; }, deadline);
}

bool FocusedWindow::show(const QDeadlineTimer &deadline)
{
    m_surface = owned(wl_compositor_create_surface(as<wl_compositor>(m_compositor)));
    m_shellSurface = WaylandConnection::make(
        m_shell, GetShellSurface, shellSurfaceInterface, {{.o = nullptr}, {.o = as<wl_object>(m_surface)}});
    WaylandConnection::follow(m_shellSurface, m_surfaceHandler);
    m_toplevel = WaylandConnection::make(m_shellSurface, GetToplevel, toplevelInterface, {{.o = nullptr}});
    WaylandConnection::request(m_toplevel, SetTitle, {{.s = "Quillbay"}});
    WaylandConnection::request(m_toplevel, SetApplication, {{.s = "com.quillbay.Quillbay"}});
    wl_surface_commit(as<wl_surface>(m_surface));
    if (!m_connection.waitFor([this] { return m_configuration.has_value(); }, deadline))
        return false;
    WaylandConnection::request(m_shellSurface, AcknowledgeConfiguration, {{.u = *m_configuration}});
    return attachPixel();
}

bool FocusedWindow::attachPixel()
{
    constexpr int size = 4; // one pixel of 32 bits, all zero: transparent
    const OwnedDescriptor memory(::memfd_create("quillbay-pixel", MFD_CLOEXEC));
    if (!memory || ::ftruncate(memory.get(), size) != 0)
        return false;
    const Object pool = owned(wl_shm_create_pool(as<wl_shm>(m_memory), memory.get(), size));
    m_buffer = owned(wl_shm_pool_create_buffer(as<wl_shm_pool>(pool), 0, 1, 1, size, WL_SHM_FORMAT_ARGB8888));
    wl_surface_attach(as<wl_surface>(m_surface), as<wl_buffer>(m_buffer), 0, 0);
    wl_surface_commit(as<wl_surface>(m_surface));
    return true;
}
