// SPDX-License-Identifier: MIT
#include "platform/system/Processors.h"

#include <QFile>
#include <QThread>

#include <sched.h>

#include <algorithm>

namespace {

QByteArray contentsOf(const QByteArray &path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The path of the control group of this process, which starts with a slash; empty if there is none.
QByteArray controlGroup()
{
    for (const QByteArray &line : contentsOf("/proc/self/cgroup").split('\n')) {
        if (line.startsWith("0::/"))
            return line.sliced(3);
    }
    return {};
}

int processorsOfAffinity()
{
    cpu_set_t set;
    CPU_ZERO(&set);
    // Fails on machines with more processors than the set holds.
    return ::sched_getaffinity(0, sizeof set, &set) == 0 ? CPU_COUNT(&set) : QThread::idealThreadCount();
}

} // namespace

std::optional<int> processorsOfQuota(QByteArrayView quota)
{
    const QByteArrayList words = quota.toByteArray().simplified().split(' ');
    bool isNumber = false;
    const double time = words.value(0).toDouble(&isNumber); // microseconds in each period; or "max"
    const double period = words.value(1).toDouble();
    if (!isNumber || time <= 0 || period <= 0)
        return std::nullopt;
    return static_cast<int>(std::clamp((time + period - 1) / period, 1.0, 1e6));
}

int availableProcessors()
{
    int processors = processorsOfAffinity();
    // A group is limited by the groups around it, too.
    for (QByteArray group = controlGroup(); group.size() > 1; group.truncate(group.lastIndexOf('/'))) {
        const std::optional<int> quota = processorsOfQuota(contentsOf("/sys/fs/cgroup" + group + "/cpu.max"));
        processors = std::min(processors, quota.value_or(processors));
    }
    const std::optional<int> quota = processorsOfQuota(contentsOf("/sys/fs/cgroup/cpu.max"));
    return std::max(1, std::min(processors, quota.value_or(processors)));
}
