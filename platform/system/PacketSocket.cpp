// SPDX-License-Identifier: MIT
#include "platform/system/PacketSocket.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <vector>

namespace {

// More than one, so that a surplus descriptor is noticed and closed.
constexpr size_t maxDescriptors = 4;

struct ControlSpace {
    alignas(cmsghdr) std::array<char, CMSG_SPACE(maxDescriptors * sizeof(int))> bytes{};
};

std::vector<OwnedDescriptor> descriptorsOf(msghdr &header)
{
    std::vector<OwnedDescriptor> descriptors;
    for (cmsghdr *part = CMSG_FIRSTHDR(&header); part; part = CMSG_NXTHDR(&header, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS)
            continue;
        const size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (size_t i = 0; i < count; ++i) {
            int descriptor = -1;
            std::memcpy(&descriptor, CMSG_DATA(part) + i * sizeof descriptor, sizeof descriptor);
            descriptors.emplace_back(descriptor);
        }
    }
    return descriptors;
}

Result<Packet, PacketError> receive(int socket, int flags)
{
    std::array<char, maxPacketLength> buffer{};
    ControlSpace control;
    iovec vector{buffer.data(), buffer.size()};
    msghdr header = {};
    header.msg_iov = &vector;
    header.msg_iovlen = 1;
    header.msg_control = control.bytes.data();
    header.msg_controllen = control.bytes.size();
    ssize_t length = 0;
    do {
        length = ::recvmsg(socket, &header, flags | MSG_CMSG_CLOEXEC);
    } while (length < 0 && errno == EINTR);
    if (length < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
        return PacketError::WouldBlock;
    if (length < 0)
        return errno == ECONNRESET ? PacketError::Closed : PacketError::SystemError;
    std::vector<OwnedDescriptor> descriptors = descriptorsOf(header);
    if (length == 0)
        return PacketError::Closed; // empty packets are never sent
    if ((header.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) != 0 || descriptors.size() > 1)
        return PacketError::Garbage;
    Packet packet{QByteArray(buffer.data(), length), {}};
    if (!descriptors.empty())
        packet.descriptor = std::move(descriptors.front());
    return packet;
}

} // namespace

std::optional<std::pair<OwnedDescriptor, OwnedDescriptor>> makeSocketPair()
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return std::nullopt;
    return std::make_pair(OwnedDescriptor(ends[0]), OwnedDescriptor(ends[1]));
}

bool sendPacket(int socket, const QByteArray &message, int descriptor)
{
    ControlSpace control;
    iovec vector{const_cast<char *>(message.constData()), static_cast<size_t>(message.size())};
    msghdr header = {};
    header.msg_iov = &vector;
    header.msg_iovlen = 1;
    if (descriptor >= 0) {
        header.msg_control = control.bytes.data();
        header.msg_controllen = CMSG_SPACE(sizeof descriptor);
        cmsghdr *part = CMSG_FIRSTHDR(&header);
        part->cmsg_level = SOL_SOCKET;
        part->cmsg_type = SCM_RIGHTS;
        part->cmsg_len = CMSG_LEN(sizeof descriptor);
        std::memcpy(CMSG_DATA(part), &descriptor, sizeof descriptor);
    }
    ssize_t sent = 0;
    do {
        sent = ::sendmsg(socket, &header, MSG_NOSIGNAL);
    } while (sent < 0 && errno == EINTR);
    return sent == message.size();
}

Result<Packet, PacketError> receivePacket(int socket)
{
    return receive(socket, 0);
}

Result<Packet, PacketError> tryReceivePacket(int socket)
{
    return receive(socket, MSG_DONTWAIT);
}
