// SPDX-License-Identifier: MIT
// The counts beside the eight statistics.
#include "text_statistics/FurtherStats.h"

#include "platform/segmentation/BreakIterator.h"
#include "platform/segmentation/GraphemeClusters.h"
#include "tests/harness/QuillbayTest.h"
#include "text_statistics/ColumnCounter.h"
#include "text_statistics/PageCounter.h"

namespace {

constexpr double columnWidth = 451; // points

class FurtherStatsTest : public QuillbayTest {
protected:
    quint64 pages(const AttributedString &text, double columnHeight)
    {
        return numberOfPages(m_engine, text, columnWidth, columnHeight);
    }
    quint64 pages(const QString &text, double columnHeight)
    {
        return pages(AttributedString(text), columnHeight);
    }
    double lineHeight()
    {
        double height = 0;
        const QString text = QStringLiteral("A line");
        m_engine.layOutParagraph(AttributedString(text), paragraphAt(text, 0), columnWidth,
            [&](const LineFragment &line) { height = line.height; });
        return height;
    }

    LayoutEngine m_engine;
};

const QString fiftyLines = QStringLiteral("A line\n").repeated(50);

} // namespace

TEST_F(FurtherStatsTest, APageHoldsTheLinesThatFitBetweenTheMargins)
{
    const double tenLines = 10 * lineHeight();
    EXPECT_EQ(pages(fiftyLines, tenLines), 5);
    EXPECT_EQ(pages(fiftyLines, tenLines - 1), 6); // 9 lines a page
    EXPECT_EQ(pages(fiftyLines + QStringLiteral("One more"), tenLines), 6);
    EXPECT_EQ(pages(QString(), tenLines), 0);
    EXPECT_EQ(pages(QStringLiteral("\n"), tenLines), 1);
}

TEST_F(FurtherStatsTest, AFormFeedEndsAPage)
{
    EXPECT_EQ(pages(QStringLiteral("One\fTwo\fThree"), 1000), 3);
    EXPECT_EQ(pages(QStringLiteral("One\n\f"), 1000), 1);
    EXPECT_EQ(pages(QStringLiteral("\f\f\f"), 1000), 3);
}

TEST_F(FurtherStatsTest, LargerFontsAndSpaceBetweenParagraphsTakeMorePages)
{
    const double tenLines = 10 * lineHeight();
    TextAttributes large;
    large.font = FontAttributes{.family = QStringLiteral("Helvetica"), .pointSize = 24};
    EXPECT_EQ(pages(AttributedString(fiftyLines, large), tenLines), 10);
    TextAttributes spaced;
    spaced.paragraphStyle.paragraphSpacing = lineHeight();
    EXPECT_EQ(pages(AttributedString(fiftyLines, spaced), tenLines), 10);
}

TEST_F(FurtherStatsTest, HeightsThatADocumentInventsAreBounded)
{
    TextAttributes hostile;
    hostile.paragraphStyle.paragraphSpacing = 1e300;
    hostile.paragraphStyle.paragraphSpacingBefore = -1e300;
    EXPECT_EQ(pages(AttributedString(fiftyLines, hostile), 1000), 50);
    EXPECT_EQ(pages(fiftyLines, 0), 50); // margins that leave no height
    EXPECT_EQ(columnHeightOf({.paperName = {}, .paperSize = {612, 100}}), 0);
}

TEST_F(FurtherStatsTest, SpaceAtTheTopOfAPageIsLeftOut)
{
    PageCounter counter(100);
    counter.addSpace(90);
    counter.addLine(50);
    counter.addLine(50);
    EXPECT_EQ(counter.pages(), 1);
    counter.addSpace(500);
    EXPECT_EQ(counter.pages(), 1);
    counter.addLine(300);
    counter.addLine(1);
    EXPECT_EQ(counter.pages(), 3);
}

TEST(GraphemeCount, IsThatOfTheBreakIterator)
{
    const QString text = QStringLiteral("e\u0301\r\n\t\u0915\u094D\u0937 ")
        + QString::fromUtf8("👩‍👩‍👧🇩🇪🇫🇷 각한") + QChar(0xD800)
        + QString(1000, QChar(0x301)) + u'a';
    quint64 clusters = 0;
    BreakIterator iterator(BreakKind::GraphemeCluster);
    iterator.setText(text);
    while (iterator.next() >= 0)
        ++clusters;
    EXPECT_EQ(numberOfGraphemeClusters(text), clusters);
    EXPECT_EQ(numberOfGraphemeClusters({}), 0);
}

TEST(FurtherCounts, StandardPagesFollowFromCharactersOrWords)
{
    const QBYWordCounterStats stats{.numberOfWords = 600, .numberOfCharactersIncludingWhitespace = 2700};
    EXPECT_DOUBLE_EQ(numberOfStandardPages(stats, {1800, StandardPage::Unit::Characters}), 1.5);
    EXPECT_DOUBLE_EQ(numberOfStandardPages(stats, {250, StandardPage::Unit::Words}), 2.4);
}

TEST(FurtherCounts, TimesAreRoundedUpToSeconds)
{
    EXPECT_EQ(secondsFor(0, 238), 0);
    EXPECT_EQ(secondsFor(238, 238), 60);
    EXPECT_EQ(secondsFor(1, 238), 1);
    EXPECT_EQ(secondsFor(239, 238), 61);
    EXPECT_EQ(secondsFor(4'000'000'000'000'000'000, 2000), 120'000'000'000'000'000); // no overflow
}

TEST_F(FurtherStatsTest, OnlyWhatIsShownIsCounted)
{
    ColumnCounter counter({}, columnWidth);
    const AttributedString text(fiftyLines);
    EXPECT_EQ(counter.countFurther(text, {}, 700), FurtherStats());
    const FurtherRules graphemes{.shown = {FurtherStatistic::Graphemes}, .standardPage = {}};
    EXPECT_EQ(counter.countFurther(text, graphemes, 700), (FurtherStats{0, 350}));
    const FurtherRules both{
        .shown = {FurtherStatistic::Graphemes, FurtherStatistic::Pages}, .standardPage = {}};
    EXPECT_EQ(counter.countFurther(text, both, 1), (FurtherStats{50, 350}));
}
