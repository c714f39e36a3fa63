// SPDX-License-Identifier: MIT
#include "counting_service/broker/BusLimits.h"

#include <QLibrary>

#include <algorithm>

namespace {

/// Of an open request: in its message, in the arguments that Qt makes of that, and of our own.
constexpr rlim_t descriptorsPerRequest = 3;
/// For all else - the bus, the workers, the print server, the libraries - where there are few, and where
/// there are many: then also for what a message brings that is no request.
constexpr rlim_t minOthers = 40;
constexpr rlim_t maxOthers = 256;
constexpr rlim_t maxDescriptors = 1'000'000;
constexpr long maxBytesOfMessages = 1L << 30;

rlim_t raisedDescriptorLimit()
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 0;
    const rlimit wanted{limit.rlim_max, limit.rlim_max};
    return ::setrlimit(RLIMIT_NOFILE, &wanted) == 0 ? wanted.rlim_cur : limit.rlim_cur;
}

} // namespace

std::size_t roomForRequests(rlim_t descriptorLimit)
{
    const rlim_t descriptors = std::min(descriptorLimit, maxDescriptors);
    const rlim_t others = std::clamp(descriptors / 2, minOthers, maxOthers);
    const rlim_t room = descriptors > others ? (descriptors - others) / descriptorsPerRequest : 0;
    return std::max<rlim_t>(room, 1);
}

// Qt lends its connection, but not the library's functions.
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
    setDescriptors(connection, static_cast<long>(roomForRequests(raisedDescriptorLimit())));
    setBytes(connection, maxBytesOfMessages);
    return true;
}
