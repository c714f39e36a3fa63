// SPDX-License-Identifier: MIT
// The words for fonts, languages and paragraphs agree with docs/rtf.md.
#include "tests/documents/rtf/writer/WrittenRtf.h"
#include "tests/harness/QuillbayTest.h"

using namespace WrittenRtf;

TEST(RtfStyleWords, FontsAreInTheTableOnce)
{
    AttributedStringBuilder builder;
    builder.append(u"a", withFont(serif()));
    FontAttributes sans = serif(14);
    sans.family = QStringLiteral("Sans; {\u00FC}");
    builder.append(u"b", withFont(sans));
    builder.append(u"c", withFont(serif(9.5)));
    EXPECT_EQ(rtfOf(builder.build()),
        start
            + "{\\fonttbl\n{\\f0\\fnil\\fcharset0 Serif;}\n{\\f1\\fnil\\fcharset0 Sans\\u59  \\{\\u252 "
              "\\};}\n}\n"
              "\\pard\\plain\\f0\\fs24 a\\plain\\f1\\fs28 b\\plain\\f0\\fs19 c}");
}

TEST(RtfStyleWords, BoldItalicTrackingAndOffsetAreWords)
{
    FontAttributes font = serif();
    font.weight = 700;
    font.slant = FontSlant::Italic;
    font.tracking = -0.35;
    font.baselineOffset = 3.5;
    EXPECT_EQ(wordsOf(font), serifTable + "\\pard\\plain\\f0\\fs24\\b\\i\\expndtw-7\\up7");
    font = serif();
    font.baselineOffset = -4;
    EXPECT_EQ(wordsOf(font), serifTable + "\\pard\\plain\\f0\\fs24\\dn8");
}

TEST(RtfStyleWords, AFontWithoutExactWordsHasAnExactValueToo)
{
    FontAttributes font = serif(12.3);
    font.weight = 650;
    font.slant = FontSlant::Oblique;
    font.tracking = 0.01;
    font.baselineOffset = -0.1;
    EXPECT_EQ(wordsOf(font),
        serifTable
            + "{\\*\\qbyexact\n{\\qbyfont1 12.3;650;2;0.01;-0.1}}\n\\pard\\plain\\f0\\fs25\\b\\i\\qbyfont1");
}

TEST(RtfStyleWords, EachPartOfAFontWithoutAnExactWordCausesAnExactValue)
{
    const auto exactValueOf = [](const auto &change) {
        FontAttributes font = serif();
        change(font);
        const QByteArray rtf = wordsOf(font);
        const qsizetype from = rtf.indexOf("\\qbyfont1 ");
        return from < 0 ? QByteArray() : rtf.sliced(from, rtf.indexOf('}', from) - from);
    };
    EXPECT_EQ(exactValueOf([](FontAttributes &) {}), "");
    EXPECT_EQ(
        exactValueOf([](FontAttributes &font) { font.pointSize = 12.25; }), "\\qbyfont1 12.25;400;0;0;0");
    EXPECT_EQ(exactValueOf([](FontAttributes &font) { font.pointSize = 0; }), "\\qbyfont1 0;400;0;0;0");
    EXPECT_EQ(
        exactValueOf([](FontAttributes &font) { font.pointSize = 20'000; }), "\\qbyfont1 20000;400;0;0;0");
    EXPECT_EQ(exactValueOf([](FontAttributes &font) { font.weight = 300; }), "\\qbyfont1 12;300;0;0;0");
    EXPECT_EQ(exactValueOf([](FontAttributes &font) { font.slant = FontSlant::Oblique; }),
        "\\qbyfont1 12;400;2;0;0");
    EXPECT_EQ(
        exactValueOf([](FontAttributes &font) { font.tracking = 1e-300; }), "\\qbyfont1 12;400;0;1e-300;0");
    EXPECT_EQ(
        exactValueOf([](FontAttributes &font) { font.baselineOffset = 0.25; }), "\\qbyfont1 12;400;0;0;0.25");
}

TEST(RtfStyleWords, ALanguageIsANumberAndAnExactValueIfTheNumberDiffers)
{
    const auto wordsOfLanguage = [](const char *tag) {
        TextAttributes attributes;
        attributes.language = QString::fromLatin1(tag);
        return wordsOf(attributes);
    };
    const auto exactly = [](const QByteArray &tag, const QByteArray &words) {
        return "{\\*\\qbyexact\n{\\qbylanguage1 " + tag + "}}\n\\pard\\plain" + words + "\\qbylanguage1";
    };
    EXPECT_EQ(wordsOfLanguage("de-AT"), "\\pard\\plain\\lang3079");
    EXPECT_EQ(wordsOfLanguage("de"), "\\pard\\plain\\lang7");
    EXPECT_EQ(wordsOfLanguage("DE-at"), exactly("DE-at", "\\lang3079"));
    EXPECT_EQ(wordsOfLanguage("de-u-co-phonebk"), exactly("de-u-co-phonebk", "\\lang1031"));
    EXPECT_EQ(wordsOfLanguage("tlh"), exactly("tlh", ""));
    EXPECT_EQ(wordsOfLanguage(" no tag "), exactly("\\u32 no tag\\u32 ", ""));
}

TEST(RtfStyleWords, AlignmentsAndDirectionsAreWords)
{
    const std::pair<TextAlignment, const char *> alignments[] = {{TextAlignment::Left, "\\ql"},
        {TextAlignment::Right, "\\qr"}, {TextAlignment::Center, "\\qc"}, {TextAlignment::Justified, "\\qj"}};
    for (const auto &[alignment, word] : alignments) {
        ParagraphStyle style;
        style.alignment = alignment;
        EXPECT_EQ(wordsOf(style), QByteArray("\\pard") + word + "\\plain");
    }
    ParagraphStyle style;
    style.direction = WritingDirection::LeftToRight;
    EXPECT_EQ(wordsOf(style), "\\pard\\ltrpar\\plain");
    style.direction = WritingDirection::RightToLeft;
    EXPECT_EQ(wordsOf(style), "\\pard\\rtlpar\\plain");
}

TEST(RtfStyleWords, LengthsOfParagraphsAreTwentiethsOfAPoint)
{
    ParagraphStyle style;
    style.headIndent = 36;
    style.firstLineHeadIndent = 18;
    style.tailIndent = 0.05;
    style.tabStops = {{72, TabAlignment::Left}, {100, TabAlignment::Center}, {144.5, TabAlignment::Right},
        {200, TabAlignment::Decimal}};
    style.defaultTabInterval = 35.45;
    style.lineSpacing = 1;
    style.paragraphSpacingBefore = 6;
    style.paragraphSpacing = 12;
    EXPECT_EQ(wordsOf(style),
        "\\pard\\li720\\fi-"
        "360\\ri1\\tx1440\\tqc\\tx2000\\tqr\\tx2890\\tqdec\\tx4000\\pardeftab709\\slleading20"
        "\\sb120\\sa240\\plain");
}

TEST(RtfStyleWords, AParagraphWithoutExactWordsHasAnExactValueToo)
{
    ParagraphStyle style;
    style.alignment = TextAlignment::Center;
    style.direction = WritingDirection::RightToLeft;
    style.firstLineHeadIndent = 1e300;
    style.headIndent = -0.01;
    style.tailIndent = 5000;
    style.tabStops = {{10.01, TabAlignment::Center}, {72, TabAlignment::Decimal}};
    style.paragraphSpacing = 0.1;
    EXPECT_EQ(wordsOf(style),
        "{\\*\\qbyexact\n{\\qbyparagraph1 3;2;1e+300;-0.01;5000;28;0;0;0.1;10.01:1,72:3}}\n"
        "\\pard\\qc\\rtlpar\\li0\\fi32767\\ri32767\\tqc\\tx200\\tqdec\\tx1440\\sa2\\qbyparagraph1\\plain");
}

TEST(RtfStyleWords, OfManyTabStopsTheFirst64AreWords)
{
    ParagraphStyle style;
    for (int i = 1; i <= 64; ++i)
        style.tabStops.push_back({static_cast<double>(i), TabAlignment::Left});
    EXPECT_EQ(wordsOf(style).count("\\tx"), 64);
    EXPECT_FALSE(wordsOf(style).contains("qbyexact"));
    style.tabStops.push_back({65, TabAlignment::Left});
    EXPECT_EQ(wordsOf(style).count("\\tx"), 64);
    EXPECT_TRUE(wordsOf(style).contains(",64:0,65:0}"));
}

TEST(RtfStyleWords, EqualExactValuesAreInTheTableOnce)
{
    AttributedStringBuilder builder;
    for (int i = 0; i < 3; ++i) {
        TextAttributes attributes = withFont(serif(10.1));
        attributes.font->family += QString::number(i);
        builder.append(u"a", attributes);
    }
    const QByteArray rtf = rtfOf(builder.build());
    EXPECT_EQ(rtf.count("\\qbyfont1 "), 4); // one of them in the table
    EXPECT_FALSE(rtf.contains("\\qbyfont2"));
}

TEST(RtfStyleWords, NanAndInfinityBecomeNumbersThatOtherProgramsCanRead)
{
    FontAttributes font = serif(std::numeric_limits<double>::quiet_NaN());
    font.tracking = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(wordsOf(font).contains("\\plain\\f0\\fs1\\expndtw32767"));
}
