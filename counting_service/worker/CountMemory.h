// SPDX-License-Identifier: MIT
// CountMemory remembers the counts of documents, so that an unchanged document, such as that of a polling
// watcher, is not counted again. It identifies documents by a hash of their bytes and of the counting rules,
// never by a name or a time, and does not store their content.
// Thread: one at a time.  Owner: CountingWorker, whose fonts do not change during its life.
#pragma once

#include "counting_service/protocol/WorkerMessages.h"

#include <QByteArrayView>
#include <QCache>

#include <optional>

class CountMemory {
public:
    /// Documents. Beyond that, the least recently used are forgotten.
    static constexpr qsizetype capacity = 256;

    /// Whether a document of this length has been remembered: if not, its name need not be made, which takes
    /// seconds for a gigabyte.
    [[nodiscard]] bool mayRemember(const WorkerRequest &request) const;

    /// A name for a document under the rules of its request: different bytes or rules have different names
    /// (BLAKE2b, RFC 7693).
    static QByteArray nameOf(const WorkerRequest &request, QByteArrayView document);

    [[nodiscard]] std::optional<QBYWordCounterStats> countsOf(const QByteArray &name) const;
    void remember(const QByteArray &name, const QBYWordCounterStats &counts);

private:
    mutable QCache<QByteArray, QBYWordCounterStats> m_counts{capacity};
};
