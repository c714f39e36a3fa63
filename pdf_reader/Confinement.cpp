// SPDX-License-Identifier: MIT
#include "pdf_reader/Confinement.h"

#include "platform/sandbox/Sandbox.h"

#include <QFile>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isMemoryLimited = false; // sanitizers reserve terabytes of addresses
#else
constexpr bool isMemoryLimited = true;
#endif

/// The writable memory of this process in bytes.
qint64 memoryInUse()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr qsizetype dataColumn = 5;
    return file.readAll().split(' ').value(dataColumn).toLongLong() * ::sysconf(_SC_PAGESIZE);
}

void limit(__rlimit_resource resource, qint64 value)
{
    const rlimit wanted{static_cast<rlim_t>(value), static_cast<rlim_t>(value)};
    ::setrlimit(resource, &wanted);
}

} // namespace

SandboxReport confine(const PdfReaderRequest &request)
{
    constexpr qint64 maxAlarm = std::numeric_limits<int>::max();
    ::alarm(static_cast<unsigned>(std::min<qint64>(request.realTime.count(), maxAlarm)));
    limit(RLIMIT_CPU, request.processorTime.count());
    if (isMemoryLimited)
        limit(RLIMIT_DATA, memoryInUse() + request.memory);
    limit(RLIMIT_NPROC, 0);
    return enterDocumentSandbox();
}
