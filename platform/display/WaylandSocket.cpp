// SPDX-License-Identifier: MIT
#include "platform/display/WaylandSocket.h"

#include "platform/system/OwnedDescriptor.h"

#include <QByteArray>

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>

bool isWaylandCompositorListening()
{
    const QByteArray display = qgetenv("WAYLAND_DISPLAY");
    if (display.isEmpty())
        return false;
    const QByteArray path = display.startsWith('/') ? display : qgetenv("XDG_RUNTIME_DIR") + '/' + display;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= qsizetype{sizeof address.sun_path})
        return false;
    std::copy(path.begin(), path.end(), address.sun_path);
    const OwnedDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return socket
        && ::connect(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
}
