// SPDX-License-Identifier: MIT
// Starting a worker's program with nothing of the broker's open in it but its end of their connection.
// Thread: main.
#pragma once

#include "counting_service/protocol/PacketSocket.h"
#include "platform/system/Processes.h"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

struct LaunchedWorker {
    LaunchedChild child;
    OwnedDescriptor socket; ///< our end
};

/// Absent where the system cannot start it; errno tells why.
std::optional<LaunchedWorker> launchWorker(const QByteArray &path, const QByteArrayList &arguments);
