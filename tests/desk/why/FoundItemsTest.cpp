// SPDX-License-Identifier: MIT
#include "desk/why/FoundItems.h"

#include "tests/harness/QuillbayTest.h"
#include "text_statistics/ColumnCounter.h"

namespace {

class FoundItemsTest : public QuillbayTest {
protected:
    static ExplainedText explained(const QString &text)
    {
        return {.text = AttributedString(text),
            .rules = {.localeIdentifier = [] { return QStringLiteral("en_US"); }},
            .columnWidth = 200};
    }

    static FoundItems find(const ExplainedText &text, Statistic statistic, const std::stop_token &stop = {})
    {
        return findItems(text, text.text.length(), statistic, stop);
    }
};

} // namespace

TEST_F(FoundItemsTest, AreTheItemsOfTheCount)
{
    const ExplainedText text =
        explained(QStringLiteral("\tI saw b & c. It was late.\n\n").repeated(30'000)); // in several steps
    ColumnCounter counter(text.rules, text.columnWidth);
    const QBYWordCounterStats stats = counter.count(text.text);
    for (const StatisticRow &row : statisticTable) {
        const FoundItems items = find(text, row.statistic);
        quint64 sum = 0;
        for (std::size_t i = 0; i < items.size(); ++i)
            sum += items.at(i).count();
        EXPECT_EQ(sum, stats.*row.count) << row.name;
        EXPECT_TRUE(items.isComplete());
    }
}

TEST_F(FoundItemsTest, AreFoundByTheirPlace)
{
    const FoundItems items = find(explained(QStringLiteral("one two")), Statistic::Words);
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items.itemAt(0), 0U);
    EXPECT_EQ(items.itemAt(2), 0U);
    EXPECT_EQ(items.itemAt(3), std::nullopt);
    EXPECT_EQ(items.itemAt(4), 1U);
    EXPECT_EQ(items.itemAt(7), std::nullopt);
    EXPECT_EQ(items.firstFrom(3), 1U);
    EXPECT_EQ(items.firstFrom(7), 2U);
}

TEST_F(FoundItemsTest, AreNotMoreThanMemoryIsMeantFor)
{
    FoundItems items(Statistic::Words);
    for (std::size_t i = 0; i < FoundItems::maxCount; ++i)
        ASSERT_TRUE(items.append({.start = static_cast<qsizetype>(i), .length = 1}));
    EXPECT_TRUE(items.isComplete());
    EXPECT_FALSE(items.append({}));
    EXPECT_EQ(items.size(), FoundItems::maxCount);
    EXPECT_FALSE(items.isComplete());
}

TEST_F(FoundItemsTest, AreNoLongerSearchedForAfterAStop)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_TRUE(find(explained(QStringLiteral("one")), Statistic::Words, stop.get_token()).isEmpty());
}
