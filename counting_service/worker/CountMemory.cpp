// SPDX-License-Identifier: MIT
#include "counting_service/worker/CountMemory.h"

#include <QCryptographicHash>

#include <algorithm>

namespace {

QByteArray startOfName(const WorkerRequest &request)
{
    return QByteArray::number(request.length) + ' ';
}

} // namespace

bool CountMemory::mayRemember(const WorkerRequest &request) const
{
    const QList<QByteArray> names = m_counts.keys();
    return std::ranges::any_of(
        names, [start = startOfName(request)](const QByteArray &name) { return name.startsWith(start); });
}

QByteArray CountMemory::nameOf(const WorkerRequest &request, QByteArrayView document)
{
    WorkerRequest rules = request;
    rules.number = 0;
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    hash.addData(encode(rules)); // the same length for every document under rules of the same length
    hash.addData(document);
    return startOfName(request) + hash.result();
}

std::optional<QBYWordCounterStats> CountMemory::countsOf(const QByteArray &name) const
{
    const QBYWordCounterStats *const counts = m_counts.object(name);
    return counts ? std::optional(*counts) : std::nullopt;
}

void CountMemory::remember(const QByteArray &name, const QBYWordCounterStats &counts)
{
    m_counts.insert(name, new QBYWordCounterStats(counts));
}
