// SPDX-License-Identifier: MIT
#include "platform/text_layout/LayoutEngine.h"
#include "platform/text_layout/LineBreaker.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_layout/FontWorld.h"

namespace {

class TabsAndIndents : public QuillbayTest {
protected:
    void SetUp() override
    {
        useOnlyFonts({QStringLiteral("NimbusMonoPS-Regular.otf"), QStringLiteral("DejaVuSans.ttf")});
    }

    // 6 points per character.
    static std::vector<LineFragment> linesOf(const QString &text, const ParagraphStyle &style, double width)
    {
        TextAttributes attributes;
        attributes.font = FontAttributes{.family = QStringLiteral("Courier"), .pointSize = 10};
        attributes.paragraphStyle = style;
        const AttributedString styled(text, attributes);
        LayoutEngine engine;
        std::vector<LineFragment> lines;
        forEachParagraph(styled.string(), [&](const Paragraph &paragraph) {
            engine.layOutParagraph(
                styled, paragraph, width, [&](const LineFragment &line) { lines.push_back(line); });
        });
        return lines;
    }

    static double widthOf(const QString &text, const ParagraphStyle &style = {})
    {
        return linesOf(text, style, 1000).front().width;
    }

    static ParagraphStyle stopAt(double position, TabAlignment alignment)
    {
        ParagraphStyle style;
        style.tabStops = {{position, alignment}};
        return style;
    }
};

TEST_F(TabsAndIndents, TabsLeadToEvery28PointsByDefault)
{
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tb")), 28 + 6);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("aaaaa\tb")), 56 + 6);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("\t\tb")), 56 + 6);
    ParagraphStyle style;
    style.defaultTabInterval = 100;
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tb"), style), 100 + 6);
    style.tabStops = {{36, TabAlignment::Left}, {48, TabAlignment::Left}};
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tb"), style), 36 + 6);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tb\tc"), style), 48 + 6);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tb\tc\td"), style), 100 + 6);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("aaaaaa\tb"), style), 48 + 6)
        << "a stop at the pen is not the next one";
}

TEST_F(TabsAndIndents, TabsAlignTextToTheirStops)
{
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tbbbb"), stopAt(100, TabAlignment::Right)), 100);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tbbbb"), stopAt(100, TabAlignment::Center)), 112);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\t12.345"), stopAt(100, TabAlignment::Decimal)), 100 + 4 * 6);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\t1,234.5"), stopAt(100, TabAlignment::Decimal)), 100 + 2 * 6);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\t12"), stopAt(100, TabAlignment::Decimal)), 100);
}

TEST_F(TabsAndIndents, TextThatDoesNotFitBeforeAnAligningStopGoesPastIt)
{
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tbbbbbb"), stopAt(20, TabAlignment::Right)), 6 + 36);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tbbbbbb"), stopAt(20, TabAlignment::Center)), 6 + 36);
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\t1234567.8"), stopAt(20, TabAlignment::Decimal)), 6 + 54);
}

TEST_F(TabsAndIndents, TheNextTabStartsAfterAlignedText)
{
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("a\tbbbb\tc"), stopAt(100, TabAlignment::Right)), 112 + 6);
}

TEST_F(TabsAndIndents, OneTabHangsAtTheEndOfALineAndTheNextStartsALine)
{
    const std::vector<LineFragment> lines = linesOf(QStringLiteral("aaaa\t\t\tb"), {}, 50);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].length, 6);
    EXPECT_DOUBLE_EQ(lines[0].width, 24) << "hanging blanks take no space";
    EXPECT_DOUBLE_EQ(lines[1].width, 28 + 6);
}

TEST_F(TabsAndIndents, IndentsNarrowTheFirstLineAndTheOthers)
{
    ParagraphStyle style;
    style.firstLineHeadIndent = 18;
    style.headIndent = 6;
    style.tailIndent = 12;
    const std::vector<LineFragment> lines = linesOf(QStringLiteral("aaaa bbbb cccc"), style, 12 + 18 + 4 * 6);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_DOUBLE_EQ(lines[0].left, 18);
    EXPECT_DOUBLE_EQ(lines[1].left, 6);
    EXPECT_EQ(linesOf(QStringLiteral("aaaa bbbb cccc"), style, 12 + 18 + 4 * 6 - 0.1).size(), 4U);
    EXPECT_EQ(linesOf(QStringLiteral("aaaa bbbb cccc"), style, 12 + 6 + 9 * 6).size(), 2U);
}

TEST_F(TabsAndIndents, EachParagraphHasItsOwnFirstLineAndAForcedBreakStartsNone)
{
    ParagraphStyle style;
    style.firstLineHeadIndent = 18;
    const std::vector<LineFragment> lines = linesOf(QStringLiteral("a\u2028b\nc"), style, 100);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_DOUBLE_EQ(lines[0].left, 18);
    EXPECT_DOUBLE_EQ(lines[1].left, 0);
    EXPECT_DOUBLE_EQ(lines[2].left, 18);
}

TEST_F(TabsAndIndents, AlignmentMovesLinesAndRightToLeftParagraphsStartAtTheRight)
{
    ParagraphStyle style;
    style.alignment = TextAlignment::Right;
    EXPECT_DOUBLE_EQ(linesOf(QStringLiteral("aaaa "), style, 100).front().left, 76);
    style.alignment = TextAlignment::Center;
    EXPECT_DOUBLE_EQ(linesOf(QStringLiteral("aaaa "), style, 100).front().left, 38);
    style = {};
    style.direction = WritingDirection::RightToLeft;
    style.firstLineHeadIndent = 10;
    EXPECT_DOUBLE_EQ(linesOf(QStringLiteral("aaaa"), style, 100).front().left, 100 - 10 - 24);
    style.direction = WritingDirection::Natural;
    const LineFragment hebrew = linesOf(QStringLiteral("אבג"), style, 100).front();
    EXPECT_DOUBLE_EQ(hebrew.left + hebrew.width, 90);
}

} // namespace
