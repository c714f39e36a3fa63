// SPDX-License-Identifier: MIT
// CountMemory remembers what documents were counted to, so that one that comes again as it was, as that of a
// watcher who polls, is not counted again. It knows documents by their bytes and the rules of the count
// alone, never by a name or a time, and keeps nothing of what they say. Thread: one at a time.  Owner:
// CountingWorker, whose fonts stay the same as long as it lives.
#pragma once

#include "counting_service/protocol/WorkerMessages.h"

#include <QByteArrayView>
#include <QCache>

#include <optional>

class CountMemory {
public:
    /// How many documents; of more, those are forgotten that have not come for the longest time.
    static constexpr qsizetype capacity = 256;

    /// Names a document under the rules of its request: bytes that differ have names that differ (BLAKE2b,
    /// RFC 7693).
    static QByteArray nameOf(const WorkerRequest &request, QByteArrayView document);

    [[nodiscard]] std::optional<QBYWordCounterStats> countsOf(const QByteArray &name) const;
    void remember(const QByteArray &name, const QBYWordCounterStats &counts);

private:
    mutable QCache<QByteArray, QBYWordCounterStats> m_counts{capacity};
};
