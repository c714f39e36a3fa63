// SPDX-License-Identifier: MIT
#include "writing_progress/DayTotal.h"

#include <gmock/gmock.h>

namespace {

RecordedCount wordsOn(int dayOfMonth, quint64 words)
{
    return {.time = {}, .day = QDate(2026, 11, dayOfMonth), .stats = {.numberOfWords = words}};
}

} // namespace

TEST(DayTotal, DeletionsCountAgainstTheDayAndNotAgainstWhatWasAdded)
{
    const DayTotal total = totalOfDay(
        QDate(2026, 11, 2), {wordsOn(1, 1000), wordsOn(2, 1300), wordsOn(2, 1100), wordsOn(2, 1250)});
    EXPECT_EQ(total.change(Statistic::Words), 250);
    EXPECT_EQ(total.added.numberOfWords, 450U);
    EXPECT_EQ(total.counts.numberOfWords, 1250U);
}

TEST(DayTotal, ADayOnWhichMoreWasDeletedIsNegative)
{
    EXPECT_EQ(
        totalOfDay(QDate(2026, 11, 2), {wordsOn(1, 100), wordsOn(2, 70)}).change(Statistic::Words), -30);
}

TEST(DayTotal, TotalsOfAllDaysAgreeWithTheTotalOfEachDay)
{
    const std::vector<RecordedCount> counts{
        wordsOn(1, 10), wordsOn(1, 30), wordsOn(2, 20), wordsOn(2, 50), wordsOn(5, 60)};
    const std::vector<DayTotal> totals = dayTotals(counts);
    ASSERT_EQ(totals.size(), 3U);
    EXPECT_EQ(totals[0], totalOfDay(QDate(2026, 11, 1), {counts[0], counts[1]}));
    EXPECT_EQ(totals[1], totalOfDay(QDate(2026, 11, 2), {counts[1], counts[2], counts[3]}));
    EXPECT_EQ(totals[2], totalOfDay(QDate(2026, 11, 5), {counts[3], counts[4]}));
}

TEST(DayTotal, ADocumentBeginsWithItsFirstCount)
{
    EXPECT_EQ(dayTotals({wordsOn(1, 5000)}).front().change(Statistic::Words), 0);
}

TEST(DayTotal, SeveralDocumentsAddUp)
{
    DayTotal sum = totalOfDay(QDate(2026, 11, 2), {wordsOn(1, 100), wordsOn(2, 150)});
    sum += totalOfDay(QDate(2026, 11, 2), {wordsOn(1, 10), wordsOn(2, 5)});
    EXPECT_EQ(sum.change(Statistic::Words), 45);
    EXPECT_EQ(sum.counts.numberOfWords, 155U);
    EXPECT_EQ(sum.added.numberOfWords, 50U);
}
