// SPDX-License-Identifier: MIT
// PacketSocket sends short packets over a socket between two processes, each with at most one file
// descriptor. What is in them is left to its users.
// Thread: any, one at a time for each socket.
#pragma once

#include "platform/system/OwnedDescriptor.h"
#include "platform/system/Result.h"

#include <QByteArray>

#include <optional>
#include <utility>

/// Bytes; longer packets are garbage.
inline constexpr qsizetype maxPacketLength = 512;

struct Packet {
    QByteArray message;
    OwnedDescriptor descriptor; ///< invalid if the packet had none
};

enum class PacketError {
    WouldBlock, ///< no packet yet; only from tryReceivePacket()
    Closed, ///< by the other side
    Garbage, ///< longer than a packet may be, or with several descriptors
    SystemError, ///< see errno
};

/// The two ends of a connection, closed at exec; absent if the system has no descriptors left.
std::optional<std::pair<OwnedDescriptor, OwnedDescriptor>> makeSocketPair();

/// False if the packet could not be sent. descriptor: sent with the packet; -1 for none.
[[nodiscard]] bool sendPacket(int socket, const QByteArray &message, int descriptor = -1);

/// Blocks until the next packet.
Result<Packet, PacketError> receivePacket(int socket);
/// Never blocks.
Result<Packet, PacketError> tryReceivePacket(int socket);
