// SPDX-License-Identifier: MIT
// ProcessLimits limits the resources of a child process from outside, so that the child cannot raise them.
// Thread: any.
#pragma once

#include <QtGlobal>

#include <sys/resource.h>
#include <sys/types.h>

#include <chrono>

/// Lowers the limit to this value for good; a limit that is lower already stays.
void limitResource(pid_t process, __rlimit_resource resource, quint64 value);

/// The same for the soft limit only, which this process can raise again.
void limitResourceForNow(pid_t process, __rlimit_resource resource, quint64 value);

/// How much time of the processor the process has used, in whole seconds; 0 if it has ended.
quint64 usedProcessorSeconds(pid_t process);

/// The system kills the process, with SIGXCPU, once it has used this much time of the processor from now on,
/// rounded up to whole seconds of its whole life.
void limitProcessorTime(pid_t process, std::chrono::seconds time);
