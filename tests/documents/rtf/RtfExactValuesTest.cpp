// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/RtfDocuments.h"

using namespace RtfDocuments;

namespace {

QByteArray withTable(const QByteArray &groups, const QByteArray &body)
{
    return R"({\fonttbl{\f0 Some;}}{\*\qbyexact)" + groups + '}' + body;
}

} // namespace

TEST(RtfReader, ReadsExactFontsFromTheTable)
{
    const FontAttributes exact{
        QStringLiteral("Some"), 12.300000000000001, 450, FontSlant::Oblique, 1e-300, -0.1};
    EXPECT_EQ(fontAt(withTable("\n{\\qbyfont1 12.300000000000001;450;2;1e-300;-0.1}\n",
                  R"(\plain\f0\fs25\b\super\qbyfont1 x)")),
        exact);
}

TEST(RtfReader, ReadsExactParagraphsFromTheTable)
{
    ParagraphStyle exact;
    exact.alignment = TextAlignment::Justified;
    exact.direction = WritingDirection::RightToLeft;
    exact.firstLineHeadIndent = 0.1;
    exact.headIndent = 0.3;
    exact.tailIndent = -1.5;
    exact.defaultTabInterval = 0;
    exact.lineSpacing = 5.5;
    exact.paragraphSpacingBefore = 6.6;
    exact.paragraphSpacing = 7.7;
    EXPECT_EQ(styleAt(withTable(
                  R"({\qbyparagraph1 4;2;0.1;0.3;-1.5;0;5.5;6.6;7.7;})", R"(\pard\qc\tx20\qbyparagraph1 x)")),
        exact);
    exact.tabStops = {{0.1, TabAlignment::Decimal}, {7, TabAlignment::Left}, {7, TabAlignment::Center}};
    EXPECT_EQ(styleAt(withTable(R"({\qbyparagraph1 4;2;0.1;0.3;-1.5;0;5.5;6.6;7.7;0.1:3,7:0,7:1})",
                  R"(\pard\qbyparagraph1 x)")),
        exact);
}

TEST(RtfReader, ReadsExactLanguagesFromTheTable)
{
    EXPECT_EQ(attributesAt(withTable(R"({\qbylanguage3 gsw-u-co-\u228 ?})", R"(\lang1033\qbylanguage3 x)"))
                  .language,
        QStringLiteral(u"gsw-u-co-ä"));
}

TEST(RtfReader, AppliesWordsThatFollowAnExactValue)
{
    const QByteArray groups = R"({\qbyfont1 9.5;450;2;1;1}{\qbyparagraph1 0;0;1;3;0;5;0;0;0;})";
    const FontAttributes font = fontAt(withTable(groups, R"(\f0\qbyfont1\b x)"));
    EXPECT_EQ(font.weight, 700);
    EXPECT_EQ(font.pointSize, 9.5);
    const ParagraphStyle style = styleAt(withTable(groups, R"(\qbyparagraph1\li100 x)"));
    EXPECT_EQ(style.headIndent, 5);
    EXPECT_EQ(style.firstLineHeadIndent, 3);
}

TEST(RtfReader, RestoresWhatAnExactValueChanged)
{
    const QByteArray groups =
        R"({\qbyfont1 9.5;450;2;1;1}{\qbyparagraph1 1;0;1;3;0;5;0;0;0;}{\qbylanguage1 de})";
    const QByteArray chosen = R"(\qbyfont1\qbyparagraph1\qbylanguage1 )";
    const TextAttributes plain = attributesAt(withTable(groups, "x"));
    EXPECT_EQ(attributesAt(withTable(groups, '{' + chosen + "y}x")), plain);
    EXPECT_EQ(attributesAt(withTable(groups, chosen + R"(y\pard\plain x)")), plain);
}

TEST(RtfReader, NumbersExactValuesByTheirKind)
{
    const QByteArray groups = R"({\qbyfont1 1;1;0;0;0}{\qbyfont2 2;1000;0;0;0}{\qbylanguage1 de})";
    EXPECT_EQ(fontAt(withTable(groups, R"(\qbyfont1\qbyfont2 x)")).pointSize, 2);
    EXPECT_FALSE(
        attributesAt(withTable(groups, R"(\qbyfont3\qbyparagraph1\qbylanguage1 x)")).font.has_value());
}

TEST(RtfReader, IgnoresInvalidExactValues)
{
    for (const char *value :
        {"", "12", "12;400;0;0", "12;0;0;0;0", "12;1001;0;0;0", "12;400;3;0;0", "12;400;-1;0;0",
            "nan;400;0;0;0", "12;400;0;inf;0", "12;400;0;1e999;0", "12x;400;0;0;0", "12;400;0;0;0;0"}) {
        const QByteArray group = "{\\qbyfont1 " + QByteArray(value) + '}';
        EXPECT_EQ(fontAt(withTable(group, R"(\f0\fs40\qbyfont1 x)")).pointSize, 20) << value;
    }
    for (const char *value : {"5;0;0;0;0;1;0;0;0;", "0;3;0;0;0;1;0;0;0;", "0;0;nan;0;0;1;0;0;0;",
             "0;0;0;0;0;1;0;0;0;1", "0;0;0;0;0;1;0;0;0;1:4", "0;0;0;0;0;1;0;0;0;2:0,1:0", "0;0;0;0"}) {
        const QByteArray group = "{\\qbyparagraph1 " + QByteArray(value) + '}';
        EXPECT_EQ(styleAt(withTable(group, R"(\qbyparagraph1 x)")).defaultTabInterval, 36) << value;
    }
}

TEST(RtfReader, ShowsNothingOfTheTableOfExactValues)
{
    EXPECT_EQ(textOf(R"(a{\*\qbyexact x{\qbyfont1 1}{\qbyunknown1 1}{\b y}}b)"), QStringLiteral("ab"));
}
