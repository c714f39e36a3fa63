// SPDX-License-Identifier: MIT
// AllowedCalls lists the system calls of a process that reads documents, each with its reason. Enforcing the
// list is left to SystemCallFilter.
// Thread: any; values.
#pragma once

#include <QtGlobal>

#include <vector>

/// A call, or one use of it: the bits of `mask` in an argument must have this value.
struct AllowedCall {
    const char *name; ///< as libseccomp names it; those of other architectures are skipped
    unsigned argument = 0; ///< its position, from 0
    quint64 mask = 0; ///< 0 allows any arguments
    quint64 value = 0;
};

/// What may be opened once the list is in force. Reading is for processes whose paths Landlock restricts: the
/// list cannot.
enum class FileAccess { None, Reading };

std::vector<AllowedCall> allowedCalls(FileAccess files);
