// SPDX-License-Identifier: MIT
// QBYLogger owns the log channel of the code that watches files.
// Thread: any.
#pragma once

#include "platform/logging/LogChannel.h"

class QBYLogger {
public:
    QBYLogger() = delete;

    /// Subsystem "com.QBY.watchFileLog", category "WatchFileModelLog"; the same object at every call.
    static LogChannel &watchFileModelLog()
    {
        static LogChannel channel(
            QStringLiteral("com.QBY.watchFileLog"), QStringLiteral("WatchFileModelLog"));
        return channel;
    }
};
