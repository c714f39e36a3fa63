// SPDX-License-Identifier: MIT
// DayTotal is what one day brought to a document, or to several together. It is worked out from the counts of
// the document; how they are stored is left to ProgressStore.
// Thread: any; a value.
#pragma once

#include "text_statistics/QBYWordCounterStats.h"

#include <QDate>
#include <QDateTime>

#include <vector>

/// The counts of a document after a save.
struct RecordedCount {
    QDateTime time; ///< UTC
    QDate day; ///< in the time zone in which it was counted
    QBYWordCounterStats stats;
};

struct DayTotal {
    QDate day;
    QBYWordCounterStats before; ///< when the day began
    QBYWordCounterStats counts; ///< when it ended, or now
    QBYWordCounterStats added; ///< without what was deleted between two saves

    /// Net: negative if more was deleted than added.
    [[nodiscard]] qint64 change(Statistic statistic) const;
    [[nodiscard]] quint64 count(Statistic statistic) const;

    /// For the total of several documents.
    DayTotal &operator+=(const DayTotal &other);
    bool operator==(const DayTotal &) const = default;
};

/// The count of a statistic in a record.
quint64 countOf(const QBYWordCounterStats &stats, Statistic statistic);

/// The total of one day. counts: of one document, in the order in which they were recorded, which holds when
/// clocks do not: the first is what the day began with, the others belong to it.
DayTotal totalOfDay(QDate day, const std::vector<RecordedCount> &counts);

/// The totals of all days that have a count, in the order in which they were recorded. A document begins with
/// its first count, so that this count adds nothing to its day.
std::vector<DayTotal> dayTotals(const std::vector<RecordedCount> &counts);
