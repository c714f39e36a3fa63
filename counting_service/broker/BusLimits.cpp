// SPDX-License-Identifier: MIT
#include "counting_service/broker/BusLimits.h"

#include <QLibrary>

#include <algorithm>

namespace {

/// In the message, in Qt's arguments of the message, and in our sealed memory.
constexpr rlim_t descriptorsPerRequest = 3;
/// For everything else: the bus, the workers, the print server, the libraries, messages that are not
/// requests.
constexpr rlim_t minOthers = 40;
constexpr rlim_t maxOthers = 256;
constexpr rlim_t maxDescriptors = 1'000'000;
constexpr long maxMessageBytes = 1L << 30;

rlim_t raiseDescriptorLimit()
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 0;
    const rlimit wanted{limit.rlim_max, limit.rlim_max};
    return ::setrlimit(RLIMIT_NOFILE, &wanted) == 0 ? wanted.rlim_cur : limit.rlim_cur;
}

} // namespace

std::size_t maxRequestsFor(rlim_t descriptorLimit)
{
    const rlim_t descriptors = std::min(descriptorLimit, maxDescriptors);
    const rlim_t others = std::clamp(descriptors / 2, minOthers, maxOthers);
    const rlim_t requests = descriptors > others ? (descriptors - others) / descriptorsPerRequest : 0;
    return std::max<rlim_t>(requests, 1);
}

// Qt exposes its libdbus connection, but not the functions of libdbus.
bool limitRequestsToDescriptors(const QDBusConnection &bus)
{
    using SetLimit = void (*)(void *connection, long limit);
    QLibrary library(QStringLiteral("dbus-1"), 3);
    const auto setDescriptors =
        reinterpret_cast<SetLimit>(library.resolve("dbus_connection_set_max_received_unix_fds"));
    const auto setBytes =
        reinterpret_cast<SetLimit>(library.resolve("dbus_connection_set_max_received_size"));
    void *connection = bus.internalPointer();
    if (!setDescriptors || !setBytes || !connection)
        return false;
    setDescriptors(connection, static_cast<long>(maxRequestsFor(raiseDescriptorLimit())));
    setBytes(connection, maxMessageBytes);
    return true;
}
