// SPDX-License-Identifier: MIT
#include "platform/system/ProcessLimits.h"

#include <algorithm>
#include <ctime>

void limitResource(pid_t process, __rlimit_resource resource, quint64 value)
{
    rlimit old = {};
    if (::prlimit(process, resource, nullptr, &old) != 0)
        return;
    const rlim_t lower = std::min<rlim_t>(value, old.rlim_max);
    const rlimit wanted{lower, lower};
    ::prlimit(process, resource, &wanted, nullptr);
}

void limitResourceForNow(pid_t process, __rlimit_resource resource, quint64 value)
{
    rlimit old = {};
    if (::prlimit(process, resource, nullptr, &old) != 0)
        return;
    const rlimit wanted{std::min<rlim_t>(value, old.rlim_max), old.rlim_max};
    ::prlimit(process, resource, &wanted, nullptr);
}

quint64 usedProcessorSeconds(pid_t process)
{
    clockid_t clock = 0;
    timespec used = {};
    if (::clock_getcpuclockid(process, &clock) != 0 || ::clock_gettime(clock, &used) != 0)
        return 0;
    return static_cast<quint64>(used.tv_sec);
}

void limitProcessorTime(pid_t process, std::chrono::seconds time)
{
    const rlim_t seconds = usedProcessorSeconds(process) + static_cast<rlim_t>(time.count()) + 1;
    // The hard limit comes later: its signal is that of someone who kills the process.
    const rlimit wanted{seconds, seconds + 1};
    ::prlimit(process, RLIMIT_CPU, &wanted, nullptr);
}
