// SPDX-License-Identifier: MIT
// WaylandConnection is a connection of its own to the Wayland compositor, for a program that speaks a few
// protocols without a toolkit. It leaves the protocols to its users; Protocols.h has their tables.
// Thread: one at a time.  Owner: who made it; outlives all objects made through it.
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

#include <wayland-client-core.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class WaylandConnection {
public:
    struct ProxyDeleter {
        void operator()(wl_proxy *proxy) const { wl_proxy_destroy(proxy); }
    };
    /// An object of the compositor. Destroying it here sends no request: the compositor destroys its side
    /// with the connection.
    using Object = std::unique_ptr<wl_proxy, ProxyDeleter>;
    /// opcode: the number of the event in its interface.
    using EventHandler = std::function<void(uint32_t opcode, const wl_argument *arguments)>;

    /// Connects to the compositor that WAYLAND_DISPLAY names, and to no other.
    WaylandConnection();
    WaylandConnection(const WaylandConnection &) = delete;
    WaylandConnection &operator=(const WaylandConnection &) = delete;
    ~WaylandConnection();

    /// Whether the compositor has answered within two seconds.
    [[nodiscard]] bool isConnected() const { return m_isConnected; }

    /// Whether the compositor offers the interface to this program.
    [[nodiscard]] bool offers(const wl_interface &interface) const;

    /// The first global object with that interface; null if there is none. Uses at most the version of the
    /// table.
    [[nodiscard]] Object bind(const wl_interface &interface);

    /// Sends a request that makes an object. arguments: of the request, with 0 in place of the new object.
    [[nodiscard]] static Object make(const Object &maker, uint32_t opcode, const wl_interface &interface,
        std::vector<wl_argument> arguments);
    /// Sends a request that makes no object, at the latest when the connection waits or is flushed.
    static void request(const Object &object, uint32_t opcode, std::vector<wl_argument> arguments);
    void flush() { wl_display_flush(m_display); }

    /// Has the object's events handled. handler: stays where it is as long as the object lives, and closes
    /// the descriptors that it gets. Events of objects without a handler are dropped.
    static void follow(const Object &object, EventHandler &handler);

    /// Handles events until the condition holds. False after the deadline, or if the connection is lost.
    [[nodiscard]] bool waitFor(const std::function<bool()> &condition, const QDeadlineTimer &deadline);
    /// Waits until the compositor has performed all requests and its events have been handled.
    [[nodiscard]] bool synchronize(const QDeadlineTimer &deadline);

private:
    struct Global {
        uint32_t name;
        QByteArray interface;
        uint32_t version;
    };

    void handleRegistry(uint32_t opcode, const wl_argument *arguments);

    wl_display *const m_display; // null without a connection
    EventHandler m_registryHandler;
    Object m_registry;
    std::vector<Global> m_globals;
    bool m_isConnected = false;
};
