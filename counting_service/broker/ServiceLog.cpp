// SPDX-License-Identifier: MIT
#include "counting_service/broker/ServiceLog.h"

LogChannel &countingServiceLog()
{
    static LogChannel channel(QStringLiteral("com.quillbay"), QStringLiteral("counting-service"));
    return channel;
}
