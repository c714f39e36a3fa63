// SPDX-License-Identifier: MIT
// TestExit ends a test program.
// Thread: main.
#pragma once

#include "platform/system/DispatchQueue.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

/// As programs with queues end, after a search for leaks in a build with the address sanitizer.
[[noreturn]] inline void exitTest(int status)
{
#ifdef __SANITIZE_ADDRESS__
    __lsan_do_leak_check();
#endif
    exitDespiteQueues(status);
}
