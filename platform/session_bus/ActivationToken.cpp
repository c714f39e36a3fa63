// SPDX-License-Identifier: MIT
#include "platform/session_bus/ActivationToken.h"

QByteArray takeActivationToken()
{
    QByteArray token;
    for (const char *const name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        if (const QByteArray value = qgetenv(name); !value.isEmpty())
            token = value;
        qunsetenv(name);
    }
    return token;
}
