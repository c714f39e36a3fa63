// SPDX-License-Identifier: MIT
// X11Focus asks the window manager for the focus by the Extended Window Manager Hints (EWMH 1.5), with the
// time of the user's request. Thread: main.  Owner: whoever shows a window; a value.
#pragma once

#include <QByteArray>

struct xcb_connection_t;

class X11Focus {
public:
    /// connection: Qt's own, so that the messages come behind those by which Qt shows the window.
    X11Focus(xcb_connection_t *connection, quint32 window)
        : m_connection(connection)
        , m_window(window)
    {
    }

    /// Before the window is shown: that it belongs to this startup notification.
    void announce(const QByteArray &token) const;
    /// Once it is shown: the focus, at the time in the token, or now.
    void request(const QByteArray &token) const;
    /// Once it is shown: the user's attention, without the focus.
    void demandAttention() const;

private:
    void setUserTime(quint32 time) const;
    void sendToWindowManager(
        const char *type, quint32 first, quint32 second, quint32 third, quint32 fourth) const;
    [[nodiscard]] quint32 atom(const char *name) const;

    xcb_connection_t *m_connection;
    quint32 m_window;
};
