// SPDX-License-Identifier: MIT
#include "counting_service/broker/BusLimits.h"

#include <QLibrary>

#include <sys/resource.h>

#include <algorithm>

namespace {

/// Of an open request: in the message, which its reply keeps, in the arguments that Qt makes of it until it
/// is looked at, and of our own.
constexpr std::size_t descriptorsPerRequest = 3;
/// For all else: the bus, the workers, the libraries.
constexpr std::size_t otherDescriptors = 256;
constexpr std::size_t roomUnderTheLibrarysLimits = 2000;
constexpr long mostBytesOfMessages = 1L << 30;

rlim_t raisedDescriptorLimit()
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 0;
    const rlimit wanted{limit.rlim_max, limit.rlim_max};
    return ::setrlimit(RLIMIT_NOFILE, &wanted) == 0 ? wanted.rlim_cur : limit.rlim_cur;
}

// Qt lends its connection, but not the library's functions.
bool liftLimitsOfLibrary(const QDBusConnection &bus, std::size_t descriptors)
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
    setDescriptors(connection, static_cast<long>(descriptors));
    setBytes(connection, mostBytesOfMessages);
    return true;
}

} // namespace

std::size_t roomForRequests(const QDBusConnection &bus)
{
    constexpr rlim_t mostDescriptors = 1'000'000;
    const auto descriptors = static_cast<std::size_t>(
        std::clamp<rlim_t>(raisedDescriptorLimit(), 2 * otherDescriptors, mostDescriptors));
    const std::size_t room = (descriptors - otherDescriptors) / descriptorsPerRequest;
    return liftLimitsOfLibrary(bus, descriptors) ? room : std::min(room, roomUnderTheLibrarysLimits);
}
