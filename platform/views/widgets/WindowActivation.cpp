// SPDX-License-Identifier: MIT
#include "platform/views/widgets/WindowActivation.h"

#include "platform/views/widgets/X11.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <chrono>
#include <utility>

namespace {

// After this time the window manager has decided which window has the focus.
constexpr std::chrono::seconds mappingTime{1};

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
    window.setAttribute(Qt::WA_ShowWithoutActivating); // on X11 a user time of 0: no focus wanted
    X11::setDesktopFile(static_cast<quint32>(window.winId()), QGuiApplication::desktopFileName());
    QWindow *const native = window.windowHandle();
    // Qt requests the focus for modal dialogs, and some window managers give it to every new window that
    // accepts it.
    native->setFlag(Qt::WindowDoesNotAcceptFocus);
    window.show();
    window.raise();
    QTimer::singleShot(mappingTime, native, [native, &window] {
        native->setFlag(Qt::WindowDoesNotAcceptFocus, false);
        if (X11::isAvailable())
            X11::demandAttention(static_cast<quint32>(window.winId()));
        else
            QApplication::alert(&window);
    });
}

void WindowActivation::showAndActivate(QWidget &window)
{
    const QByteArray token = std::exchange(nextToken(), {});
    const auto native = static_cast<quint32>(window.winId());
    X11::setDesktopFile(native, QGuiApplication::desktopFileName());
    if (X11::isAvailable())
        X11::setStartupToken(native, token);
    else if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token); // Qt's Wayland plugin reads it from there
    window.show();
    window.raise();
    window.activateWindow();
    X11::requestFocus(native, token);
}
