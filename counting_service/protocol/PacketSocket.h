// SPDX-License-Identifier: MIT
// Packets with a descriptor on a socket between two processes; what they say is WorkerMessages' business.
// Thread: any, one at a time for each socket.
#pragma once

#include "platform/system/OwnedDescriptor.h"
#include "platform/system/Result.h"

#include <QByteArray>

#include <optional>
#include <utility>

struct Packet {
    QByteArray message;
    OwnedDescriptor descriptor; ///< none where none came with it
};

enum class PacketError {
    NothingYet, ///< on a socket that does not wait
    Closed, ///< the other side is gone
    Garbage, ///< longer than a message, or with more than a descriptor
    SystemError, ///< errno tells it
};

/// Two ends of one connection, closed at exec; absent where the system has none left.
std::optional<std::pair<OwnedDescriptor, OwnedDescriptor>> connectedSockets();

/// Whether the packet was taken over. descriptor: sent along; -1 for none.
[[nodiscard]] bool sendPacket(int socket, const QByteArray &message, int descriptor = -1);

/// The next packet; waits for it where the socket does.
Result<Packet, PacketError> receivePacket(int socket);
Result<Packet, PacketError> receivePacketWithoutWaiting(int socket);
