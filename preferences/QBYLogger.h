// SPDX-License-Identifier: MIT
// QBYLogger owns the log channel of the rooms that watch files.
// Thread: any.
#pragma once

#include "platform/logging/LogChannel.h"

class QBYLogger {
public:
    QBYLogger() = delete;

    /// Subsystem "com.QBY.watchFileLog", category "WatchFileModelLog"; the same object at every call.
    static LogChannel &watchFileModelLog();
};
