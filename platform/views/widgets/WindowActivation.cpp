// SPDX-License-Identifier: MIT
#include "platform/views/widgets/WindowActivation.h"

#include "platform/views/widgets/X11Focus.h"

#include <QGuiApplication>
#include <QWidget>

#include <utility>

namespace {

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

void WindowActivation::showAndActivate(QWidget &window)
{
    const QByteArray token = std::exchange(nextToken(), {});
    const auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11) {
        const X11Focus focus(x11->connection(), static_cast<quint32>(window.winId()));
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
