// SPDX-License-Identifier: MIT
// How the services of the program are named on the session bus, as docs/dbus/ describes them.
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

/// The error whose message is what a service says has failed, word for word.
inline QString failureName()
{
    return QStringLiteral("com.quillbay.ServiceProvider.Error.Failed");
}

// Options of a request.
/// string: the token by which the window that opens may take the focus (XDG activation, startup
/// notification).
inline QString activationTokenOption()
{
    return QStringLiteral("activation-token");
}

} // namespace ServiceInterface
