// SPDX-License-Identifier: MIT
#include "writing_progress/DayTotal.h"

namespace {

void addWhatWasWritten(
    QBYWordCounterStats &added, const QBYWordCounterStats &before, const QBYWordCounterStats &after)
{
    for (const StatisticRow &row : statisticTable) {
        if (after.*row.count > before.*row.count)
            added.*row.count += after.*row.count - before.*row.count;
    }
}

} // namespace

quint64 countOf(const QBYWordCounterStats &stats, Statistic statistic)
{
    return stats.*statisticTable.at(static_cast<std::size_t>(statistic)).count;
}

qint64 DayTotal::change(Statistic statistic) const
{
    return static_cast<qint64>(countOf(counts, statistic) - countOf(before, statistic));
}

quint64 DayTotal::count(Statistic statistic) const
{
    return countOf(counts, statistic);
}

DayTotal &DayTotal::operator+=(const DayTotal &other)
{
    before += other.before;
    counts += other.counts;
    added += other.added;
    return *this;
}

DayTotal totalOfDay(QDate day, const std::vector<RecordedCount> &counts)
{
    DayTotal total{.day = day, .before = {}, .counts = {}, .added = {}};
    if (counts.empty())
        return total;
    total.before = counts.front().stats;
    total.counts = total.before;
    for (const RecordedCount &count : counts) {
        addWhatWasWritten(total.added, total.counts, count.stats);
        total.counts = count.stats;
    }
    return total;
}

std::vector<DayTotal> dayTotals(const std::vector<RecordedCount> &counts)
{
    std::vector<DayTotal> totals;
    for (const RecordedCount &count : counts) {
        const QBYWordCounterStats before = totals.empty() ? count.stats : totals.back().counts;
        if (totals.empty() || totals.back().day != count.day)
            totals.push_back({.day = count.day, .before = before, .counts = before, .added = {}});
        addWhatWasWritten(totals.back().added, before, count.stats);
        totals.back().counts = count.stats;
    }
    return totals;
}
