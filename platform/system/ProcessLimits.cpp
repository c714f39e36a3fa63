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

void limitProcessorTime(pid_t process, std::chrono::seconds time)
{
    clockid_t clock = 0;
    timespec used = {};
    if (::clock_getcpuclockid(process, &clock) != 0 || ::clock_gettime(clock, &used) != 0)
        used.tv_sec = 0;
    const auto seconds = static_cast<rlim_t>(used.tv_sec + time.count() + 1);
    // The hard limit comes later: its signal is that of someone who kills the process.
    const rlimit wanted{seconds, seconds + 1};
    ::prlimit(process, RLIMIT_CPU, &wanted, nullptr);
}
