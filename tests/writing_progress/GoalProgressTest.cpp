// SPDX-License-Identifier: MIT
#include "writing_progress/GoalProgress.h"

#include <gmock/gmock.h>

namespace {

DayTotal dayWith(quint64 before, quint64 now)
{
    return {.day = QDate(2026, 11, 22),
        .before = {.numberOfWords = before},
        .counts = {.numberOfWords = now},
        .added = {.numberOfWords = 700}};
}

Goal total(quint64 amount, std::optional<QDate> deadline = {})
{
    return {.amount = amount, .deadline = deadline};
}

Goal daily(quint64 amount, bool countsAddedOnly)
{
    return {.amount = amount, .span = Goal::Span::Day, .countsAddedOnly = countsAddedOnly};
}

} // namespace

TEST(GoalProgress, TotalIsWhatTheDocumentHas)
{
    const GoalProgress progress = progressOf(total(50'000), dayWith(40'000, 42'500));
    EXPECT_EQ(progress.done, 42'500U);
    EXPECT_EQ(progress.remaining(), 7'500U);
    EXPECT_EQ(progress.percent(), 85);
    EXPECT_FALSE(progress.amountPerDay);
}

TEST(GoalProgress, AmountForEachDayIncludesTodayAndIsTheSameAllDay)
{
    const QDate deadline(2026, 11, 30); // nine days with today
    EXPECT_EQ(progressOf(total(50'000, deadline), dayWith(42'692, 42'692)).amountPerDay, 812U);
    EXPECT_EQ(progressOf(total(50'000, deadline), dayWith(42'692, 43'000)).amountPerDay, 812U);
    EXPECT_EQ(progressOf(total(50'000, deadline), dayWith(42'691, 43'000)).amountPerDay, 813U); // rounded up
}

TEST(GoalProgress, TheDeadlineIsTheLastDay)
{
    const DayTotal today = dayWith(100, 100);
    EXPECT_EQ(progressOf(total(350, today.day), today).amountPerDay, 250U);
    const GoalProgress late = progressOf(total(350, today.day.addDays(-1)), today);
    EXPECT_FALSE(late.amountPerDay);
    EXPECT_TRUE(late.isOverdue);
    EXPECT_FALSE(progressOf(total(100, today.day.addDays(-1)), today).isOverdue);
}

TEST(GoalProgress, ADayCountsNetOrAddedOnly)
{
    EXPECT_EQ(progressOf(daily(500, false), dayWith(1000, 1200)).done, 200U);
    EXPECT_EQ(progressOf(daily(500, true), dayWith(1000, 1200)).done, 700U);
    EXPECT_EQ(progressOf(daily(500, false), dayWith(1000, 900)).done, 0U);
}

TEST(GoalProgress, PercentIsHundredOnlyWhenTheGoalIsReached)
{
    EXPECT_EQ(progressOf(total(1'000'000), dayWith(0, 999'999)).percent(), 99);
    EXPECT_EQ(progressOf(total(1'000'000), dayWith(0, 1'000'001)).percent(), 100);
}

TEST(GoalProgress, ALimitAllowsItsAmount)
{
    const Limit limit{.amount = 5000};
    EXPECT_FALSE(isPassed(limit, {.numberOfWords = 5000}));
    EXPECT_TRUE(isPassed(limit, {.numberOfWords = 5001}));
}
