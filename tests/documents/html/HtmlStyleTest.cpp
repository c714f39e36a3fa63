// SPDX-License-Identifier: MIT
// The attributes of the text of a page: fonts, paragraph styles, languages.
#include "documents/html/HtmlReader.h"
#include "documents/html/HtmlStyleAttribute.h"

#include "tests/harness/QuillbayTest.h"

namespace {

AttributedString read(const QByteArray &page)
{
    return readHtml(page, {.charset = "utf-8"}).value();
}

/// The attributes of the first "x" in a page.
TextAttributes attributesOf(const QByteArray &page)
{
    const AttributedString text = read(page);
    const qsizetype at = text.string().indexOf(u'x');
    return at < 0 ? TextAttributes() : text.attributesAt(at);
}

FontAttributes fontOf(const QByteArray &page)
{
    return attributesOf(page).font.value();
}

ParagraphStyle styleOf(const QByteArray &page)
{
    return attributesOf(page).paragraphStyle;
}

} // namespace

TEST(HtmlStyle, TextIsInTimesOfTwelvePoints)
{
    const TextAttributes expected{
        FontAttributes{.family = QStringLiteral("Times"), .pointSize = 12}, {}, {}, nullptr};
    EXPECT_EQ(attributesOf("<p>x"), expected);
}

TEST(HtmlStyle, HeadingsAreBoldWithTheSizesAndMarginsOfTheStandard)
{
    struct Heading {
        const char *tag;
        double size;
        double margin;
    };
    for (const Heading &heading : {Heading{"<h1>x", 24, 0.67}, {"<h2>x", 18, 0.83}, {"<h3>x", 14.04, 1},
             {"<h4>x", 12, 1.33}, {"<h5>x", 9.96, 1.67}, {"<h6>x", 8.04, 2.33}}) {
        EXPECT_NEAR(fontOf(heading.tag).pointSize, heading.size, 1e-9) << heading.tag;
        EXPECT_EQ(fontOf(heading.tag).weight, 700) << heading.tag;
        const ParagraphStyle style = styleOf(heading.tag);
        EXPECT_NEAR(style.paragraphSpacing, heading.size * heading.margin, 1e-9) << heading.tag;
        EXPECT_NEAR(style.paragraphSpacingBefore, heading.size * heading.margin, 1e-9) << heading.tag;
    }
    EXPECT_EQ(styleOf("<h1>a</h1><p>x").paragraphSpacing, 0);
}

TEST(HtmlStyle, BoldElementsAreBold)
{
    for (const char *page : {"<b>x", "<strong>x", "<table><th>x", "<h1><b>x"})
        EXPECT_EQ(fontOf(page).weight, 700) << page;
}

TEST(HtmlStyle, EmphasisIsItalic)
{
    for (const char *page : {"<i>x", "<em>x", "<cite>x", "<var>x", "<dfn>x", "<address>x"})
        EXPECT_EQ(fontOf(page).slant, FontSlant::Italic) << page;
}

TEST(HtmlStyle, NestedCodeIsInCourierOfThirteenPixels)
{
    for (const char *page : {"<code>x", "<kbd>x", "<samp>x", "<tt>x", "<pre>x", "<pre><code><tt>x"}) {
        EXPECT_EQ(fontOf(page).family, QStringLiteral("Courier")) << page;
        EXPECT_EQ(fontOf(page).pointSize, 9.75) << page;
    }
}

TEST(HtmlStyle, SubscriptsAndSuperscriptsAreSmallerAndOffTheBaseline)
{
    EXPECT_NEAR(fontOf("<sub>x").pointSize, 10, 1e-9);
    EXPECT_LT(fontOf("<sub>x").baselineOffset, 0);
    EXPECT_NEAR(fontOf("<sup>x").pointSize, 10, 1e-9);
    EXPECT_GT(fontOf("<sup>x").baselineOffset, 0);
    EXPECT_GT(fontOf("<sup><sup>x").baselineOffset, fontOf("<sup>x").baselineOffset);
}

TEST(HtmlStyle, FontElementsHaveTheSizesOfTheStandard)
{
    EXPECT_NEAR(fontOf("<small>x").pointSize, 10, 1e-9);
    EXPECT_NEAR(fontOf("<big>x").pointSize, 14.4, 1e-9);
    const double sizes[] = {7.5, 9.75, 12, 13.5, 18, 24, 36};
    for (int number = 1; number <= 7; ++number)
        EXPECT_EQ(fontOf("<font size=" + QByteArray::number(number) + ">x").pointSize, sizes[number - 1]);
    EXPECT_EQ(fontOf("<font size=+1>x").pointSize, 13.5);
    EXPECT_EQ(fontOf("<font size=-9>x").pointSize, 7.5);
    EXPECT_EQ(fontOf("<font size=99999999999999999999>x").pointSize, 36);
    EXPECT_EQ(fontOf("<font size=big>x").pointSize, 12);
}

TEST(HtmlStyle, AFaceNamesItsFirstFamily)
{
    EXPECT_EQ(fontOf("<font face='Arial, sans-serif'>x").family, QStringLiteral("Arial"));
    EXPECT_EQ(fontOf("<font face='sans-serif'>x").family, QStringLiteral("Helvetica"));
    EXPECT_EQ(fontOf("<font face=''>x").family, QStringLiteral("Times"));
}

TEST(HtmlStyle, ListsAndQuotationsAreIndentedByThirtyPoints)
{
    for (const char *page : {"<ul><li>x", "<ol><li>x", "<dl><dd>x", "<blockquote>x", "<menu><li>x"}) {
        EXPECT_EQ(styleOf(page).headIndent, 30) << page;
        EXPECT_EQ(styleOf(page).firstLineHeadIndent, 30) << page;
    }
    EXPECT_EQ(styleOf("<ul><li><ol><li>x").headIndent, 60);
    EXPECT_EQ(styleOf("<blockquote>x").tailIndent, 30);
    EXPECT_EQ(styleOf("<ul><li>a</ul>x").headIndent, 0);
}

TEST(HtmlStyle, AlignmentIsInherited)
{
    EXPECT_EQ(styleOf("<center>x").alignment, TextAlignment::Center);
    EXPECT_EQ(styleOf("<div align=right><p>x").alignment, TextAlignment::Right);
    EXPECT_EQ(styleOf("<p align=JUSTIFY>x").alignment, TextAlignment::Justified);
    EXPECT_EQ(styleOf("<div align=right><p align=left>x").alignment, TextAlignment::Left);
    EXPECT_EQ(styleOf("<table><th>x").alignment, TextAlignment::Center);
    EXPECT_EQ(styleOf("<table align=center><td>x").alignment, TextAlignment::Natural);
    EXPECT_EQ(styleOf("<p style='text-align:center'>x").alignment, TextAlignment::Center);
    EXPECT_EQ(styleOf("<p><span style='text-align:center'>x").alignment, TextAlignment::Natural);
}

TEST(HtmlStyle, DirectionIsThatOfTheBlock)
{
    EXPECT_EQ(styleOf("<p>x").direction, WritingDirection::Natural);
    EXPECT_EQ(styleOf("<html dir=rtl><p>x").direction, WritingDirection::RightToLeft);
    EXPECT_EQ(styleOf("<div dir=rtl><p dir=LTR>x").direction, WritingDirection::LeftToRight);
    EXPECT_EQ(styleOf("<div dir=rtl><p dir=auto>x").direction, WritingDirection::Natural);
    EXPECT_EQ(styleOf("<p><b dir=rtl>x").direction, WritingDirection::Natural);
}

TEST(HtmlStyle, LanguageIsInherited)
{
    EXPECT_EQ(attributesOf("<html lang=de-CH><p>x").language, QStringLiteral("de-CH"));
    EXPECT_EQ(attributesOf("<html lang=de><p lang=fr>x").language, QStringLiteral("fr"));
    EXPECT_EQ(attributesOf("<html lang=de><p lang=''>x").language, QString());
    EXPECT_EQ(attributesOf("<html xml:lang=nl>x").language, QStringLiteral("nl"));
    EXPECT_EQ(attributesOf("<html lang='no language'>x").language, QString());
    EXPECT_EQ(attributesOf("<html lang=" + QByteArray(1000, 'a') + "><p>x").language, QString());
}

TEST(HtmlStyle, AStyleAttributeSetsFonts)
{
    EXPECT_EQ(fontOf("<b style='font-size:9pt'>x").pointSize, 9);
    EXPECT_EQ(fontOf("<b style='font-size:20px'>x").pointSize, 15);
    EXPECT_EQ(fontOf("<div style='font-size:2em'><b style='font-size:50%'>x").pointSize, 12);
    EXPECT_EQ(fontOf("<h1 style='font-size:1em'>x").pointSize, 12);
    EXPECT_EQ(fontOf("<b style='font-size:x-large'>x").pointSize, 18);
    EXPECT_EQ(fontOf("<b style='font-weight:normal'>x").weight, 400);
    EXPECT_EQ(fontOf("<i style='font-weight:550;font-style:normal'>x").weight, 550);
    EXPECT_EQ(fontOf("<i style='font-style:oblique'>x").slant, FontSlant::Oblique);
    EXPECT_EQ(fontOf("<p style='font-family: \"Open; Sans\", serif'>x").family, QStringLiteral("Open; Sans"));
    EXPECT_EQ(fontOf("<p style='font-family: monospace'>x").family, QStringLiteral("Courier"));
}

TEST(HtmlStyle, AStyleAttributeSetsIndents)
{
    EXPECT_EQ(styleOf("<p style='margin-left:40px'>x").headIndent, 30);
    EXPECT_EQ(styleOf("<p style='margin-left:2em; font-size:10pt'>x").headIndent, 20);
    EXPECT_EQ(styleOf("<blockquote style='margin-left:0'>x").headIndent, 0);
    EXPECT_EQ(styleOf("<p style='text-indent:1em'>x").firstLineHeadIndent, 12);
    EXPECT_EQ(styleOf("<p style='text-indent:1em'>x").headIndent, 0);
    EXPECT_EQ(styleOf("<p style='margin-left:20pt;text-indent:-8pt'>x").firstLineHeadIndent, 12);
    EXPECT_EQ(styleOf("<p style='text-indent:-8pt'>x").firstLineHeadIndent, 0);
}

TEST(HtmlStyle, ExtremeSizesAreClamped)
{
    EXPECT_EQ(fontOf("<p style='font-size:999999px'>x").pointSize, 1000);
    EXPECT_EQ(fontOf("<p style='font-size:0'>x").pointSize, 1);
    EXPECT_EQ(fontOf("<p style='font-size:1e400px'>x").pointSize, 12);
    EXPECT_EQ(fontOf("<p style='font-size:nanpx'>x").pointSize, 12);
    EXPECT_EQ(fontOf(QByteArray("<big>").repeated(900) + "x").pointSize, 1000);
    EXPECT_EQ(fontOf(QByteArray("<small>").repeated(900) + "x").pointSize, 1);
    EXPECT_EQ(styleOf(QByteArray("<blockquote>").repeated(900) + "x").headIndent, 10'000);
    EXPECT_EQ(styleOf("<p style='margin-left:-999999px'>x").headIndent, 0);
    EXPECT_EQ(fontOf("<font face='" + QByteArray(1000, 'f') + "'>x").family, QStringLiteral("Times"));
}

TEST(HtmlStyle, ALineEndBelongsToTheParagraphThatItEnds)
{
    const AttributedString text = read("<h1>a</h1><p>b");
    ASSERT_EQ(text.string(), QStringLiteral("a\n\nb"));
    ASSERT_EQ(text.runCount(), 2);
    EXPECT_EQ(text.run(1).start, 2);
}

TEST(HtmlStyle, EqualNeighboursAreOneRun)
{
    EXPECT_EQ(read("<p>a<span>b</span><p>c<p>d").runCount(), 1);
    EXPECT_EQ(read("<p>a <b>b </b><i> c</i>").runCount(), 3);
}

TEST(HtmlStyleAttribute, ReadsSupportedDeclarations)
{
    const HtmlStyleAttribute style = parseStyleAttribute(
        "display: inline-block; VISIBILITY:hidden;white-space:pre ; color:red; float:left;font-weight:bold");
    EXPECT_EQ(style.display, Display::InlineBlock);
    EXPECT_EQ(style.isVisible, false);
    EXPECT_EQ(style.whiteSpace, WhiteSpace::Preserve);
    EXPECT_EQ(style.isOutOfFlow, true);
    EXPECT_EQ(style.fontWeight, 700);
    EXPECT_EQ(style.fontSize, std::nullopt);
}

TEST(HtmlStyleAttribute, TheLastValidDeclarationCounts)
{
    EXPECT_EQ(parseStyleAttribute("display:block;display:none;display:nonsense").display, Display::None);
    EXPECT_EQ(parseStyleAttribute("display:none !important").display, Display::None);
}

TEST(HtmlStyleAttribute, SemicolonsInQuotesParenthesesAndCommentsEndNoDeclaration)
{
    EXPECT_EQ(parseStyleAttribute("a:'; display:none;'; b:url(;display:none;)").display, std::nullopt);
    EXPECT_EQ(parseStyleAttribute("/* ; */display/**/:none").display, Display::None);
    EXPECT_EQ(parseStyleAttribute("a:'\\';display:none").display, std::nullopt);
    EXPECT_EQ(parseStyleAttribute("/* display:none").display, std::nullopt);
}

TEST(HtmlStyleAttribute, LengthsHaveUnits)
{
    const auto points = [](const char *length) {
        const auto margin = parseStyleAttribute(QByteArray("margin-left:") + length).marginLeft;
        return margin && margin->unit == CssLength::Unit::Points ? margin->value : -1;
    };
    EXPECT_EQ(points("1pt"), 1);
    EXPECT_EQ(points("4px"), 3);
    EXPECT_EQ(points("1in"), 72);
    EXPECT_EQ(points("2pc"), 24);
    EXPECT_EQ(points("2rem"), 24);
    EXPECT_NEAR(points("25.4mm"), 72, 1e-9);
    EXPECT_NEAR(points("2.54cm"), 72, 1e-9);
    EXPECT_EQ(points("0"), 0);
    for (const char *none : {"12", "", "px", "1 px", "1e9px", "infpx", "auto", "calc(1px)"})
        EXPECT_EQ(points(none), -1) << none;
}

TEST(HtmlStyleAttribute, NoMoreThanAFewKilobytesAreRead)
{
    EXPECT_EQ(parseStyleAttribute(QByteArray(4000, ';') + "display:none").display, Display::None);
    EXPECT_EQ(parseStyleAttribute(QByteArray(5000, ';') + "display:none").display, std::nullopt);
}
