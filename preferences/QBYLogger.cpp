// SPDX-License-Identifier: MIT
#include "preferences/QBYLogger.h"

LogChannel &QBYLogger::watchFileModelLog()
{
    static LogChannel channel(QStringLiteral("com.QBY.watchFileLog"), QStringLiteral("WatchFileModelLog"));
    return channel;
}
