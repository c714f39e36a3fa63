// SPDX-License-Identifier: MIT
// Attempts are what a document could make a process do that it has taken over, each by a name and an
// argument.
// Thread: main.
#pragma once

#include <string>

/// Makes the attempt of that name. Negative where it fails; errno says why. argument: what the attempt needs,
/// such as a path.
long attempt(const std::string &name, const char *argument);

/// The numbers of the system calls that are not on the list of a worker and yet are not refused, separated by
/// spaces. Only for a process in a sandbox: makes all the others.
std::string unlistedCalls();
