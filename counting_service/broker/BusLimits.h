// SPDX-License-Identifier: MIT
// The number of requests that the service reads at a time: each holds file descriptors until it is answered.
// Thread: main.
#pragma once

#include <QDBusConnection>

#include <sys/resource.h>

#include <cstddef>

/// How many requests a process with this descriptor limit can hold at a time; 1 or more.
std::size_t maxRequestsFor(rlim_t descriptorLimit);

/// Raises the descriptor limit of the process to its hard limit, and keeps the connection from reading more
/// requests than that allows; the others wait in the bus. A process that runs out of descriptors loses the
/// message that it reads, and with it its connection. False if the limit cannot be set.
///
/// libdbus resumes reading when a message is released, and notifies Qt on the releasing thread. Qt handles
/// this only on its own thread for the bus, so ServiceObject releases every message there.
[[nodiscard]] bool limitRequestsToDescriptors(const QDBusConnection &bus);
