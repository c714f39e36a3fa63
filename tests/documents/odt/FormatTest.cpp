// SPDX-License-Identifier: MIT
#include "tests/documents/odt/OdtTest.h"

namespace {

constexpr double tolerance = 0.01; // points

/// The attributes of the first character of a document.
TextAttributes firstOf(const OpenDocumentText &document)
{
    const AttributedString text = styledTextOf(document);
    return text.isEmpty() ? TextAttributes() : text.attributesAt(0);
}

QByteArray style(const QByteArray &name, const QByteArray &family, const QByteArray &content,
    const QByteArray &attributes = {})
{
    return "<style:style style:name='" + name + "' style:family='" + family + "' " + attributes + ">"
        + content + "</style:style>";
}

QByteArray textProperties(const QByteArray &attributes)
{
    return "<style:text-properties " + attributes + "/>";
}

QByteArray paragraphProperties(const QByteArray &attributes, const QByteArray &content = {})
{
    return "<style:paragraph-properties " + attributes + ">" + content + "</style:paragraph-properties>";
}

/// The style of a paragraph whose automatic style has these properties.
ParagraphStyle paragraphStyleOf(const QByteArray &properties)
{
    return firstOf({.body = "<text:p text:style-name='A'>text</text:p>",
                       .automaticStyles = style("A", "paragraph", properties)})
        .paragraphStyle;
}

} // namespace

TEST(OdtFormat, HasDefaultsWhereNoStyleSetsAnything)
{
    const TextAttributes attributes = firstOf({.body = "<text:p>text</text:p>"});
    ASSERT_TRUE(attributes.font);
    EXPECT_EQ(attributes.font->family, u"Liberation Serif");
    EXPECT_EQ(attributes.font->pointSize, 12);
    EXPECT_EQ(attributes.font->weight, regularFontWeight);
    EXPECT_EQ(attributes.paragraphStyle.direction, WritingDirection::LeftToRight);
}

TEST(OdtFormat, CombinesDefaultNamedAndAutomaticStyles)
{
    const OpenDocumentText document{.body = "<text:p text:style-name='Auto'>text<text:span "
                                            "text:style-name='Strong'>strong</text:span></text:p>",
        .automaticStyles = style(
            "Auto", "paragraph", textProperties("fo:font-style='italic'"), "style:parent-style-name='Body'"),
        .styles = "<style:default-style style:family='paragraph'>"
            + textProperties("style:font-name='F1' fo:font-size='11pt' fo:language='en' fo:country='GB'")
            + "</style:default-style>"
            + style("Base", "paragraph", textProperties("fo:letter-spacing='0.5pt'"))
            + style(
                "Body", "paragraph", textProperties("fo:font-size='200%'"), "style:parent-style-name='Base'")
            + style("Strong", "text", textProperties("fo:font-weight='bold' fo:font-size='50%'")),
        .fontFaces = "<style:font-face style:name='F1' svg:font-family=\"'DejaVu Sans', sans\"/>"};
    const AttributedString text = styledTextOf(document);
    const TextAttributes &plain = text.attributesAt(0);
    EXPECT_EQ(plain.font->family, u"DejaVu Sans");
    EXPECT_EQ(plain.font->pointSize, 22);
    EXPECT_EQ(plain.font->slant, FontSlant::Italic);
    EXPECT_NEAR(plain.font->tracking, 0.5, tolerance);
    EXPECT_EQ(plain.language, u"en-GB");
    const TextAttributes &strong = text.attributesAt(4);
    EXPECT_EQ(strong.font->weight, boldFontWeight);
    EXPECT_EQ(strong.font->pointSize, 11);
    EXPECT_EQ(strong.font->slant, FontSlant::Italic);
}

TEST(OdtFormat, GivesEachScriptItsFont)
{
    const AttributedString text = styledTextOf({.body = "<text:p "
                                                        "text:style-name='A'>a\xE9\x9B\xA8\xD8\xB9</text:p>",
        .automaticStyles = style("A", "paragraph",
            textProperties(
                "fo:font-family='Latin' style:font-family-asian='Asian' style:font-family-complex='Complex'"
                " fo:font-size='10pt' style:font-size-asian='11pt' style:font-size-complex='13pt'"
                " style:language-complex='ar' style:country-complex='EG'"))});
    EXPECT_EQ(text.attributesAt(0).font->family, u"Latin");
    EXPECT_EQ(text.attributesAt(1).font->family, u"Asian");
    EXPECT_EQ(text.attributesAt(1).font->pointSize, 11);
    EXPECT_EQ(text.attributesAt(2).font->family, u"Complex");
    EXPECT_EQ(text.attributesAt(2).font->pointSize, 13);
    EXPECT_EQ(text.attributesAt(2).language, u"ar-EG");
}

TEST(OdtFormat, RaisesAndLowersText)
{
    const auto fontAt = [](const QByteArray &position) {
        return *firstOf(
            {.body = "<text:p text:style-name='A'>text</text:p>",
                .automaticStyles = style("A", "paragraph",
                    textProperties("fo:font-size='10pt' style:text-position='" + position + "'"))})
                    .font;
    };
    EXPECT_NEAR(fontAt("super 58%").pointSize, 5.8, tolerance);
    EXPECT_GT(fontAt("super 58%").baselineOffset, 0);
    EXPECT_LT(fontAt("sub").baselineOffset, 0);
    EXPECT_NEAR(fontAt("25% 100%").baselineOffset, 2.5, tolerance);
    EXPECT_NEAR(fontAt("0% 100%").pointSize, 10, tolerance);
}

TEST(OdtFormat, ReadsIndentsSpacingAlignmentAndDirection)
{
    const ParagraphStyle read = paragraphStyleOf(paragraphProperties(
        "fo:margin-left='1in' fo:margin-right='0.5in' fo:text-indent='-0.5in' fo:margin-top='6pt'"
        " fo:margin-bottom='12pt' fo:text-align='justify' style:writing-mode='rl-tb'"));
    EXPECT_NEAR(read.headIndent, 72, tolerance);
    EXPECT_NEAR(read.firstLineHeadIndent, 36, tolerance);
    EXPECT_NEAR(read.tailIndent, 36, tolerance);
    EXPECT_NEAR(read.paragraphSpacingBefore, 6, tolerance);
    EXPECT_NEAR(read.paragraphSpacing, 12, tolerance);
    EXPECT_EQ(read.alignment, TextAlignment::Justified);
    EXPECT_EQ(read.direction, WritingDirection::RightToLeft);
}

TEST(OdtFormat, MeasuresTabStopsFromTheIndentUnlessSettingsSayOtherwise)
{
    const auto stopsWith = [](const QByteArray &settings) {
        return firstOf(
            {.body = "<text:p text:style-name='A'>text</text:p>",
                .automaticStyles = style("A", "paragraph",
                    paragraphProperties("fo:margin-left='10pt'",
                        "<style:tab-stops><style:tab-stop style:position='50pt' style:type='right'/>"
                        "<style:tab-stop style:position='20pt'/></style:tab-stops>")),
                .settings = settings})
            .paragraphStyle.tabStops;
    };
    const std::vector<TabStop> relative = stopsWith({});
    ASSERT_EQ(relative.size(), 2U);
    EXPECT_NEAR(relative[0].position, 30, tolerance);
    EXPECT_NEAR(relative[1].position, 60, tolerance);
    EXPECT_EQ(relative[1].alignment, TabAlignment::Right);
    const std::vector<TabStop> absolute =
        stopsWith("<config:config-item config:name='TabsRelativeToIndent'>false</config:config-item>");
    ASSERT_EQ(absolute.size(), 2U);
    EXPECT_NEAR(absolute[0].position, 20, tolerance);
}

TEST(OdtFormat, ReplacesInheritedTabStops)
{
    const auto stop = [](const QByteArray &position) {
        return paragraphProperties(
            "", "<style:tab-stops><style:tab-stop style:position='" + position + "'/></style:tab-stops>");
    };
    const std::vector<TabStop> stops =
        firstOf({.body = "<text:p text:style-name='A'>text</text:p>",
                    .automaticStyles = style("A", "paragraph", stop("50pt"), "style:parent-style-name='B'"),
                    .styles = style("B", "paragraph", stop("20pt"))})
            .paragraphStyle.tabStops;
    ASSERT_EQ(stops.size(), 1U);
    EXPECT_NEAR(stops[0].position, 50, tolerance);
}

TEST(OdtFormat, IndentsTheParagraphsOfListsByLevel)
{
    const auto level = [](const QByteArray &number, const QByteArray &properties) {
        return "<text:list-level-style-number text:level='" + number + "'>" + properties
            + "</text:list-level-style-number>";
    };
    const QByteArray aligned = "<style:list-level-properties text:list-level-position-and-space-mode="
                               "'label-alignment'><style:list-level-label-alignment fo:margin-left='40pt'"
                               " fo:text-indent='-18pt'/></style:list-level-properties>";
    const QByteArray older =
        "<style:list-level-properties text:space-before='20pt' text:min-label-width='10pt'/>";
    const QByteArray list =
        "<text:list-style style:name='L'>" + level("1", aligned) + level("2", older) + "</text:list-style>";
    const QByteArray indented =
        style("P", "paragraph", paragraphProperties("fo:margin-left='5pt'"), "style:list-style-name='L'");
    const auto readAt = [&](const QByteArray &before, const QByteArray &paragraph, const QByteArray &after) {
        return firstOf({.body = before + paragraph + after, .automaticStyles = list + indented})
            .paragraphStyle;
    };
    const QByteArray open = "<text:list text:style-name='L'><text:list-item>";
    const QByteArray close = "</text:list-item></text:list>";
    const ParagraphStyle first = readAt(open, "<text:p>text</text:p>", close);
    EXPECT_NEAR(first.headIndent, 40, tolerance);
    EXPECT_NEAR(first.firstLineHeadIndent, 22, tolerance);
    const ParagraphStyle second = readAt(
        open + "<text:list><text:list-item>", "<text:p text:style-name='P'>text</text:p>", close + close);
    EXPECT_NEAR(second.headIndent, 35, tolerance);
    EXPECT_NEAR(second.firstLineHeadIndent, 25, tolerance);
    const ParagraphStyle own = readAt(open, "<text:p text:style-name='P'>text</text:p>", close);
    EXPECT_NEAR(own.headIndent, 5, tolerance);
    EXPECT_NEAR(own.firstLineHeadIndent, -13, tolerance);
}

TEST(OdtFormat, IgnoresLengthsThatAreNone)
{
    const ParagraphStyle read = paragraphStyleOf(paragraphProperties(
        "fo:margin-left='nan' fo:text-indent='1e999pt' fo:line-height='-5%' style:tab-stop-distance='0'"));
    EXPECT_EQ(read.headIndent, 0);
    EXPECT_EQ(read.firstLineHeadIndent, 0);
    EXPECT_EQ(read.lineSpacing, 0);
    EXPECT_GT(read.defaultTabInterval, 1);
}
