// SPDX-License-Identifier: MIT
// The log channel of the counting service.
// Thread: any.
#pragma once

#include "platform/logging/LogChannel.h"

/// Subsystem "com.quillbay", category "counting-service"; the same object at every call.
inline LogChannel &countingServiceLog()
{
    static LogChannel channel(QStringLiteral("com.quillbay"), QStringLiteral("counting-service"));
    return channel;
}
