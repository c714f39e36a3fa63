// SPDX-License-Identifier: MIT
// The items of styled text: lines as laid out, and indents of styles.
#include "tests/harness/QuillbayTest.h"
#include "tests/text_statistics/TextsOfAllClasses.h"
#include "text_statistics/ColumnCounter.h"

namespace {

class CountedLinesTest : public QuillbayTest {
protected:
    static constexpr double columnWidth = 120; // points

    std::vector<CountedItem> itemsOf(const AttributedString &text, Statistic statistic)
    {
        std::vector<CountedItem> items;
        quint64 sum = 0;
        const quint64 count = m_counter.forEachItem(text, statistic, [&](const CountedItem &item) {
            items.push_back(item);
            sum += item.count();
        });
        const StatisticRow &row = statisticTable.at(static_cast<std::size_t>(statistic));
        EXPECT_EQ(count, m_counter.count(text).*row.count) << row.name;
        EXPECT_EQ(count, sum) << row.name;
        return items;
    }

    /// The reference, which shapes all text.
    static std::vector<std::pair<qsizetype, qsizetype>> fragmentsOf(
        LayoutEngine &engine, const AttributedString &text)
    {
        std::vector<std::pair<qsizetype, qsizetype>> fragments;
        forEachParagraph(text.string(), [&](const Paragraph &paragraph) {
            engine.layOutParagraph(text, paragraph, columnWidth,
                [&](const LineFragment &line) { fragments.emplace_back(line.start, line.length); });
        });
        return fragments;
    }

    ColumnCounter m_counter{rulesOf(0), columnWidth};
};

} // namespace

TEST_F(CountedLinesTest, AreTheFragmentsOfTheLayout)
{
    std::mt19937 random(7);
    LayoutEngine reference;
    std::vector<QString> pieces = representatives();
    for (const char *word : {"word ", "another ", "fi", "\tindented ", "end.\n", "a\u2028", "x-y "})
        pieces.insert(pieces.end(), 20, QString::fromUtf8(word));
    for (int round = 0; round < 150 && !HasFailure(); ++round) {
        const AttributedString text(randomOf(pieces, random, round * 4));
        std::vector<std::pair<qsizetype, qsizetype>> lines;
        for (const CountedItem &item : itemsOf(text, Statistic::Lines))
            lines.emplace_back(item.start, item.length);
        SCOPED_TRACE(text.string().toUtf8().toHex().toStdString());
        EXPECT_EQ(lines, fragmentsOf(reference, text));
    }
}

TEST_F(CountedLinesTest, SayWhatEndsThem)
{
    const AttributedString text(QStringLiteral("one\f\n\nThe column is too narrow for this text"));
    std::vector<CountingReason> reasons;
    for (const CountedItem &item : itemsOf(text, Statistic::Lines))
        reasons.push_back(item.reason);
    ASSERT_GE(reasons.size(), 5U);
    using enum CountingReason;
    EXPECT_THAT(std::vector(reasons.begin(), reasons.begin() + 4),
        ::testing::ElementsAre(LineEnd, LineEnd, LineEnd, ColumnFull));
    EXPECT_EQ(reasons.back(), TextEnd);
}

TEST_F(CountedLinesTest, AnIndentOfTheStyleIsNamed)
{
    TextAttributes indented;
    indented.paragraphStyle.firstLineHeadIndent = 18;
    const std::vector<CountedItem> items =
        itemsOf(AttributedString(QStringLiteral("One.\n\tTwo."), indented), Statistic::IndentedParagraphs);
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].reason, CountingReason::IndentOfStyle);
    EXPECT_EQ(items[1].reason, CountingReason::Tab);
}

TEST_F(CountedLinesTest, EveryStatisticAddsUp)
{
    const AttributedString text(QStringLiteral("\tI saw b. No end\n\n- Why? 5"));
    for (const StatisticRow &row : statisticTable)
        EXPECT_FALSE(itemsOf(text, row.statistic).empty()) << row.name;
}
