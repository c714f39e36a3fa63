// SPDX-License-Identifier: MIT
// PrivateMemory keeps what a process has in memory, users' texts above all, to the process.
// Thread: any.
#pragma once

/// From now on a crash leaves no core file, and no other process of the user's may attach to this one or read
/// its memory. To be called first in main(): exec resets it, so every program sets its own.
void keepMemoryPrivate();
