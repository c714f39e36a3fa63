// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/RtfDocuments.h"

using namespace RtfDocuments;

namespace {

ParagraphStyle plainStyle()
{
    ParagraphStyle style;
    style.defaultTabInterval = 36;
    return style;
}

} // namespace

TEST(RtfReader, StartsInAPlainParagraphAndReturnsToItByPard)
{
    EXPECT_EQ(styleAt("x"), plainStyle());
    EXPECT_EQ(styleAt(R"(\qc\rtlpar\li1\fi1\ri1\tx1\pardeftab1\slleading1\sb1\sa1\pard x)"), plainStyle());
    EXPECT_EQ(styleAt(R"({\qc y}x)"), plainStyle());
}

TEST(RtfReader, KeepsAParagraphsStyleBeyondItsEndAndBeyondPlain)
{
    EXPECT_EQ(styleAt(R"(\qc y\par\plain x)").alignment, TextAlignment::Center);
}

TEST(RtfReader, ReadsAlignments)
{
    EXPECT_EQ(styleAt(R"(\ql x)").alignment, TextAlignment::Left);
    EXPECT_EQ(styleAt(R"(\qr x)").alignment, TextAlignment::Right);
    EXPECT_EQ(styleAt(R"(\qc x)").alignment, TextAlignment::Center);
    EXPECT_EQ(styleAt(R"(\qj x)").alignment, TextAlignment::Justified);
    EXPECT_EQ(styleAt(R"(\qd x)").alignment, TextAlignment::Justified);
    EXPECT_EQ(styleAt(R"(\qc\qnatural x)").alignment, TextAlignment::Natural);
}

TEST(RtfReader, ReadsDirections)
{
    EXPECT_EQ(styleAt(R"(\ltrpar x)").direction, WritingDirection::LeftToRight);
    EXPECT_EQ(styleAt(R"(\rtlpar x)").direction, WritingDirection::RightToLeft);
    EXPECT_EQ(styleAt(R"(\rtlpar\pardirnatural x)").direction, WritingDirection::Natural);
}

TEST(RtfReader, CountsTheFirstLinesIndentFromTheHeadIndent)
{
    for (const char *words : {"\\li720\\fi-360", "\\fi-360\\li720", "\\fi-360\\li5\\lin720"}) {
        const ParagraphStyle style = styleAt(QByteArray(words) + " x");
        EXPECT_EQ(style.headIndent, 36) << words;
        EXPECT_EQ(style.firstLineHeadIndent, 18) << words;
    }
    EXPECT_EQ(styleAt(R"(\li7\fi-4 x)").firstLineHeadIndent, 3 / 20.0);
}

TEST(RtfReader, ReadsTailIndentsAndSpacing)
{
    const ParagraphStyle style = styleAt(R"(\ri21\sb40\sa60\slleading5 x)");
    EXPECT_EQ(style.tailIndent, 21 / 20.0);
    EXPECT_EQ(style.paragraphSpacingBefore, 2);
    EXPECT_EQ(style.paragraphSpacing, 3);
    EXPECT_EQ(style.lineSpacing, 0.25);
    EXPECT_EQ(styleAt(R"(\ri5\rin20 x)").tailIndent, 1);
}

TEST(RtfReader, IgnoresLineSpacingThatDependsOnFonts)
{
    EXPECT_EQ(styleAt(R"(\sl480\slmult1 x)"), plainStyle());
}

TEST(RtfReader, ReadsTabStopsInTheirOrder)
{
    const std::vector<TabStop> stops = {{1, TabAlignment::Right}, {2, TabAlignment::Left},
        {3, TabAlignment::Decimal}, {4, TabAlignment::Center}, {5, TabAlignment::Left}};
    EXPECT_EQ(styleAt(R"(\tqc\tx80\tqdec\tx60\tqr\tx20\tx40\tqr\tb70\tldot\tx100 x)").tabStops, stops);
}

TEST(RtfReader, IgnoresTabStopsBeyondTheMaximum)
{
    QByteArray stops;
    for (int i = 1; i <= 1000; ++i)
        stops += "\\tx" + QByteArray::number(i);
    EXPECT_EQ(styleAt(stops + " x").tabStops.size(), 256U);
}

TEST(RtfReader, ReadsTabIntervals)
{
    EXPECT_EQ(styleAt(R"(\deftab720\pard x)").defaultTabInterval, 36);
    EXPECT_EQ(styleAt(R"(\deftab560 x)").defaultTabInterval, 28);
    EXPECT_EQ(styleAt(R"(\deftab560\pard\pardeftab0 x)").defaultTabInterval, 0);
    EXPECT_EQ(styleAt(R"(\deftab560\pardeftab20\pard x)").defaultTabInterval, 28);
}

TEST(RtfReader, IgnoresTheStyleSheet)
{
    EXPECT_EQ(styleAt(R"({\stylesheet{\s1\qc\li720 Heading;}}\pard\s1 x)"), plainStyle());
}
