// SPDX-License-Identifier: MIT
#include "writing_progress/GoalProgress.h"

#include <algorithm>

namespace {

quint64 doneOn(const DayTotal &today, const Goal &goal)
{
    if (goal.span == Goal::Span::Total)
        return today.count(goal.statistic);
    if (goal.countsAddedOnly)
        return countOf(today.added, goal.statistic);
    return static_cast<quint64>(std::max<qint64>(today.change(goal.statistic), 0));
}

} // namespace

int GoalProgress::percent() const
{
    if (isReached())
        return 100;
    return static_cast<int>(static_cast<double>(done) / static_cast<double>(amount) * 100);
}

GoalProgress progressOf(const Goal &goal, const DayTotal &today)
{
    GoalProgress progress{.done = doneOn(today, goal), .amount = std::max<quint64>(goal.amount, 1)};
    if (goal.span == Goal::Span::Day || !goal.deadline)
        return progress;
    const qint64 days = today.day.daysTo(*goal.deadline) + 1;
    const quint64 before = countOf(today.before, goal.statistic);
    progress.isOverdue = days < 1 && !progress.isReached();
    if (days >= 1 && !progress.isReached() && before < progress.amount) {
        const auto divisor = static_cast<quint64>(days);
        progress.amountPerDay = (progress.amount - before + divisor - 1) / divisor;
    }
    return progress;
}

bool isPassed(const Limit &limit, const QBYWordCounterStats &counts)
{
    return countOf(counts, limit.statistic) > limit.amount;
}
