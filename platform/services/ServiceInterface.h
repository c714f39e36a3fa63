// SPDX-License-Identifier: MIT
// ServiceInterface has the names of the program's services on the session bus, as docs/dbus/ describes them.
// Thread: any.
#pragma once

#include <QString>

namespace ServiceInterface {

inline QString busName()
{
    return QStringLiteral("com.quillbay.ServiceProvider");
}

inline QString objectPath()
{
    return QStringLiteral("/com/quillbay/ServiceProvider");
}

inline QString interfaceName()
{
    return QStringLiteral("com.quillbay.ServiceProvider");
}

/// The D-Bus error of a service that failed; its message is the service's, word for word.
inline QString failureName()
{
    return QStringLiteral("com.quillbay.ServiceProvider.Error.Failed");
}

// Options of a message.

/// string: the token that lets the new window take the focus (XDG activation, startup notification).
inline QString activationTokenOption()
{
    return QStringLiteral("activation-token");
}

} // namespace ServiceInterface
