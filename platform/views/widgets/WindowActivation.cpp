// SPDX-License-Identifier: MIT
#include "platform/views/widgets/WindowActivation.h"

#include "platform/views/widgets/X11Display.h"
#include "platform/views/widgets/X11Focus.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <chrono>
#include <utility>

namespace {

// By then the window manager has decided which window has the keyboard.
constexpr std::chrono::seconds untilManaged{1};

QByteArray &nextToken()
{
    static QByteArray token;
    return token;
}

} // namespace

void WindowActivation::setToken(const QByteArray &token)
{
    nextToken() = token;
}

void WindowActivation::showForAttention(QWidget &window)
{
    window.setAttribute(Qt::WA_ShowWithoutActivating); // on X11 a user time of 0, which asks for no focus
    window.winId(); // makes the native window
    QWindow *const native = window.windowHandle();
    // A modal dialog of Qt asks for the keyboard by itself, and some window managers give it to every new
    // window that takes it at all.
    native->setFlag(Qt::WindowDoesNotAcceptFocus);
    window.show();
    window.raise();
    QTimer::singleShot(untilManaged, native, [native, &window] {
        native->setFlag(Qt::WindowDoesNotAcceptFocus, false);
        if (xcb_connection_t *const connection = X11Display::connection())
            X11Focus(connection, static_cast<quint32>(window.winId())).demandAttention();
        else
            QApplication::alert(&window);
    });
}

void WindowActivation::showAndActivate(QWidget &window)
{
    const QByteArray token = std::exchange(nextToken(), {});
    if (xcb_connection_t *const connection = X11Display::connection()) {
        const X11Focus focus(connection, static_cast<quint32>(window.winId()));
        focus.announce(token);
        window.show();
        window.raise();
        window.activateWindow();
        focus.request(token);
        return;
    }
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token); // where Qt looks for it
    window.show();
    window.raise();
    window.activateWindow();
}
