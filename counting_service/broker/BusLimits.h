// SPDX-License-Identifier: MIT
// The descriptors that requests may take: each of them waits with its message and its document.
// Thread: main.
#pragma once

#include <QDBusConnection>

#include <sys/resource.h>

#include <cstddef>

/// How many requests fit at a time where a process may have so many descriptors; 1 or more.
std::size_t roomForRequests(rlim_t descriptorLimit);

/// Raises the descriptor limit of the process as far as the system lets it, and keeps the connection from
/// reading more requests than fit: the others wait in the bus. A process that runs out of descriptors loses
/// what it reads and, with it, its connection. False where the connection does not take the limit.
///
/// The bus's library goes on reading when a message is let go, and tells Qt so on the thread that does this.
/// Qt takes note only on its own thread for the bus, so ServiceObject lets every message go there.
[[nodiscard]] bool limitRequestsToDescriptors(const QDBusConnection &bus);
