// SPDX-License-Identifier: MIT
// SystemCallFilter makes the kernel answer "not implemented" (ENOSYS) to every system call that is not on a
// list, and to calls of other architectures: libraries then do without. The caller chooses the list.
// Thread: main.
#pragma once

#include "platform/sandbox/AllowedCalls.h"

/// Applies to all threads from now on, for good. False if the kernel has no such filters, or refuses this
/// one. Needs PR_SET_NO_NEW_PRIVS.
[[nodiscard]] bool restrictSystemCalls(const std::vector<AllowedCall> &allowed);
