// SPDX-License-Identifier: MIT
// Room for many requests at a time: each of them waits with its message and its descriptors.
// Thread: main.
#pragma once

#include <QDBusConnection>

#include <cstddef>

/// Raises what limits the requests that can be held, as far as the system lets it, and returns how many may
/// be open at a time.
///
/// The bus's library stops reading while it has handed out 4096 descriptors or 63 MiB of messages; under Qt
/// it never starts again, since Qt hears only on its own thread that there is room again. So these limits of
/// the library are lifted out of reach; where they cannot be, few enough requests are held to stay below
/// them.
std::size_t roomForRequests(const QDBusConnection &bus);
