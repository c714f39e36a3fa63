// SPDX-License-Identifier: MIT
#include "tests/documents/docx/DocxTest.h"

namespace {

/// The attributes of a document's text at a position.
TextAttributes attributes(const WordPackage &document, qsizetype position = 0)
{
    const Result<AttributedString, DocumentError> text = readWordDocument(document.bytes());
    EXPECT_TRUE(text.hasValue());
    return text ? text.value().attributesAt(position) : TextAttributes{};
}

FontAttributes font(const WordPackage &document, qsizetype position = 0)
{
    return attributes(document, position).font.value_or(FontAttributes{});
}

ParagraphStyle style(const QByteArray &properties)
{
    return attributes({.body = paragraph(run("a"), properties)}).paragraphStyle;
}

QByteArray fonts(const QByteArray &name)
{
    return "<w:rFonts w:ascii='" + name + "' w:hAnsi='" + name + "'/>";
}

QByteArray paragraphStyle(const QByteArray &name, const QByteArray &content, const QByteArray &more = {})
{
    return "<w:style w:type='paragraph' w:styleId='" + name + "' " + more + ">" + content + "</w:style>";
}

const QByteArray defaults = "<w:docDefaults><w:rPrDefault><w:rPr>" + fonts("Default")
    + "<w:sz w:val='22'/></w:rPr></w:rPrDefault>"
      "<w:pPrDefault><w:pPr><w:spacing w:after='160'/></w:pPr></w:pPrDefault></w:docDefaults>";

} // namespace

TEST(DocxFormat, IsTimesOfTenPointsByDefault)
{
    EXPECT_EQ(font({.body = textParagraph("a")}), (FontAttributes{QStringLiteral("Times New Roman"), 10}));
}

TEST(DocxFormat, ComesFromTheDefaultsThenTheParagraphStyleThenTheCharacterStyleThenTheRun)
{
    WordPackage document{.styles = defaults + paragraphStyle("Normal", {}, "w:default='1'")
            + paragraphStyle("Big", "<w:rPr><w:sz w:val='40'/></w:rPr>")
            + "<w:style w:type='character' w:styleId='Code'><w:rPr>" + fonts("Mono") + "</w:rPr></w:style>"};
    const QByteArray big = "<w:pStyle w:val='Big'/>";
    document.body = textParagraph("a");
    EXPECT_EQ(font(document), (FontAttributes{QStringLiteral("Default"), 11}));
    document.body = paragraph(run("a"), big);
    EXPECT_EQ(font(document), (FontAttributes{QStringLiteral("Default"), 20}));
    document.body = paragraph(run("a", "<w:rStyle w:val='Code'/>"), big);
    EXPECT_EQ(font(document), (FontAttributes{QStringLiteral("Mono"), 20}));
    document.body = paragraph(run("a", "<w:rStyle w:val='Code'/><w:sz w:val='30'/>"), big);
    EXPECT_EQ(font(document), (FontAttributes{QStringLiteral("Mono"), 15}));
    EXPECT_EQ(attributes(document).paragraphStyle.paragraphSpacing, 8);
}

TEST(DocxFormat, IsInheritedFromTheStyleThatAStyleIsBasedOn)
{
    const WordPackage document{.body = paragraph(run("a"), "<w:pStyle w:val='C'/>"),
        .styles = paragraphStyle("C", "<w:basedOn w:val='B'/><w:rPr><w:i/></w:rPr>")
            + paragraphStyle("B", "<w:basedOn w:val='A'/><w:rPr><w:sz w:val='24'/></w:rPr>")
            + paragraphStyle(
                "A", "<w:pPr><w:jc w:val='both'/></w:pPr><w:rPr><w:sz w:val='60'/><w:b/></w:rPr>")};
    EXPECT_EQ(
        font(document), (FontAttributes{QStringLiteral("Times New Roman"), 12, 700, FontSlant::Italic}));
    EXPECT_EQ(attributes(document).paragraphStyle.alignment, TextAlignment::Justified);
}

TEST(DocxFormat, SurvivesStylesThatAreBasedOnThemselves)
{
    EXPECT_EQ(
        font({.body = paragraph(run("a"), "<w:pStyle w:val='A'/>"),
                 .styles = paragraphStyle("A", "<w:basedOn w:val='B'/><w:rPr><w:sz w:val='30'/></w:rPr>")
                     + paragraphStyle("B", "<w:basedOn w:val='A'/>")})
            .pointSize,
        15);
}

TEST(DocxFormat, TogglesBoldBetweenStylesAndSetsItInTheRun)
{
    const QByteArray bold = "<w:rPr><w:b/></w:rPr>";
    WordPackage document{.styles = paragraphStyle("Heading", bold)
            + "<w:style w:type='character' w:styleId='Strong'>" + bold + "</w:style>"};
    const QByteArray heading = "<w:pStyle w:val='Heading'/>";
    document.body = paragraph(run("a", "<w:rStyle w:val='Strong'/>"), heading);
    EXPECT_EQ(font(document).weight, 400);
    document.body = paragraph(run("a", "<w:rStyle w:val='Strong'/><w:b/>"), heading);
    EXPECT_EQ(font(document).weight, 700);
    document.body = paragraph(run("a", "<w:b w:val='false'/>"), heading);
    EXPECT_EQ(font(document).weight, 400);
}

TEST(DocxFormat, TakesFontsFromTheTheme)
{
    EXPECT_EQ(font({.body = paragraph(run("a", "<w:rFonts w:ascii='Named' w:asciiTheme='minorHAnsi'/>")),
                       .fontScheme = "<a:majorFont><a:latin typeface='Head'/></a:majorFont><a:minorFont>"
                                     "<a:latin typeface='Carlito'/><a:ea typeface=''/></a:minorFont>"})
                  .family,
        QStringLiteral("Carlito"));
    EXPECT_EQ(
        font({.body = paragraph(run("a", "<w:rFonts w:ascii='Named' w:asciiTheme='minorHAnsi'/>"))}).family,
        QStringLiteral("Named"));
}

TEST(DocxFormat, GivesEachCharacterTheFontOfItsScript)
{
    const WordPackage document{.body = paragraph(run("a\xC3\xA4\xE9\x9B\xA8\xD7\x90\xE2\x80\xA6",
                                   "<w:rFonts w:ascii='A' w:hAnsi='H' w:eastAsia='E' w:cs='C'/><w:sz "
                                   "w:val='20'/><w:szCs w:val='40'/>"
                                   "<w:lang w:val='de-DE' w:eastAsia='zh-CN' w:bidi='he-IL'/>"))};
    const auto at = [&document](qsizetype position) { return attributes(document, position); };
    EXPECT_EQ(at(0).font->family, QStringLiteral("A"));
    EXPECT_EQ(at(1).font->family, QStringLiteral("H"));
    EXPECT_EQ(at(2).font->family, QStringLiteral("E"));
    EXPECT_EQ(at(2).language, QStringLiteral("zh-CN"));
    EXPECT_EQ(at(3).font, (FontAttributes{QStringLiteral("C"), 20}));
    EXPECT_EQ(at(3).language, QStringLiteral("he-IL"));
    EXPECT_EQ(at(4).font->family, QStringLiteral("H"));
    EXPECT_EQ(font({.body = paragraph(
                        run("\xE2\x80\xA6", "<w:rFonts w:hAnsi='H' w:eastAsia='E' w:hint='eastAsia'/>"))})
                  .family,
        QStringLiteral("E"));
    EXPECT_EQ(font({.body = paragraph(run("1", "<w:rFonts w:ascii='A' w:cs='C'/><w:rtl/>"))}).family,
        QStringLiteral("C"));
}

TEST(DocxFormat, RaisesLowersAndSpreadsCharacters)
{
    const FontAttributes superscript =
        font({.body = paragraph(run("a", "<w:sz w:val='24'/><w:vertAlign w:val='superscript'/>"))});
    EXPECT_EQ(superscript.pointSize, 8);
    EXPECT_EQ(superscript.baselineOffset, 4);
    const FontAttributes moved =
        font({.body = paragraph(run("a", "<w:spacing w:val='30'/><w:position w:val='-6'/>"))});
    EXPECT_EQ(moved.tracking, 1.5);
    EXPECT_EQ(moved.baselineOffset, -3);
}

TEST(DocxFormat, AppliesParagraphProperties)
{
    const ParagraphStyle set =
        style("<w:ind w:left='720' w:right='360' w:hanging='240'/><w:jc w:val='right'/>"
              "<w:spacing w:before='120' w:after='240' w:line='480' w:lineRule='auto'/>"
              "<w:tabs><w:tab w:val='right' w:pos='2880'/><w:tab w:val='bar' w:pos='99'/>"
              "<w:tab w:val='decimal' w:pos='1440'/></w:tabs>");
    EXPECT_EQ(set.headIndent, 36);
    EXPECT_EQ(set.firstLineHeadIndent, 24);
    EXPECT_EQ(set.tailIndent, 18);
    EXPECT_EQ(set.alignment, TextAlignment::Right);
    EXPECT_EQ(set.direction, WritingDirection::LeftToRight);
    EXPECT_EQ(set.paragraphSpacingBefore, 6);
    EXPECT_EQ(set.paragraphSpacing, 12);
    EXPECT_EQ(set.lineSpacing, 12);
    const std::vector<TabStop> stops{
        {36, TabAlignment::Left}, {72, TabAlignment::Decimal}, {144, TabAlignment::Right}};
    EXPECT_EQ(set.tabStops, stops);
    EXPECT_EQ(set.defaultTabInterval, 36);
}

TEST(DocxFormat, MirrorsParagraphsFromRightToLeft)
{
    const ParagraphStyle set = style("<w:bidi/><w:jc w:val='start'/><w:ind w:start='20pt' w:end='1in'/>");
    EXPECT_EQ(set.direction, WritingDirection::RightToLeft);
    EXPECT_EQ(set.alignment, TextAlignment::Right);
    EXPECT_EQ(set.headIndent, 20);
    EXPECT_EQ(set.tailIndent, 72);
}

TEST(DocxFormat, ClearsTabStopsOfTheStyle)
{
    const ParagraphStyle set =
        attributes({.body = paragraph(
                        run("a"), "<w:pStyle w:val='T'/><w:tabs><w:tab w:val='clear' w:pos='400'/></w:tabs>"),
                       .styles = paragraphStyle("T",
                           "<w:pPr><w:tabs><w:tab w:val='left' w:pos='400'/>"
                           "<w:tab w:val='center' w:pos='800'/></w:tabs></w:pPr>")})
            .paragraphStyle;
    EXPECT_EQ(set.tabStops, (std::vector<TabStop>{{40, TabAlignment::Center}}));
}

TEST(DocxFormat, IndentsParagraphsOfLists)
{
    WordPackage document{.styles = paragraphStyle("Item",
                             "<w:pPr><w:numPr><w:numId w:val='2'/></w:numPr><w:ind w:right='200'/></w:pPr>"),
        .numbering =
            "<w:abstractNum w:abstractNumId='0'><w:lvl w:ilvl='0'><w:pPr><w:ind "
            "w:left='720'/></w:pPr></w:lvl>"
            "<w:lvl w:ilvl='1'><w:pPr><w:ind w:left='1440' w:hanging='360'/></w:pPr></w:lvl></w:abstractNum>"
            "<w:num w:numId='2'><w:abstractNumId w:val='0'/></w:num>"};
    document.body = paragraph(run("a"), "<w:numPr><w:ilvl w:val='1'/><w:numId w:val='2'/></w:numPr>");
    EXPECT_EQ(attributes(document).paragraphStyle.headIndent, 72);
    EXPECT_EQ(attributes(document).paragraphStyle.firstLineHeadIndent, 54);
    document.body = paragraph(run("a"), "<w:pStyle w:val='Item'/>");
    EXPECT_EQ(attributes(document).paragraphStyle.headIndent, 36);
    EXPECT_EQ(attributes(document).paragraphStyle.tailIndent, 10);
}

TEST(DocxFormat, AppliesTableStyles)
{
    const QByteArray header = "<w:cnfStyle w:val='100000000000'/>";
    const WordPackage document{.body = "<w:tbl><w:tblPr><w:tblStyle w:val='Grid'/></w:tblPr><w:tr><w:trPr>"
            + header + "</w:trPr>" + cell(textParagraph("a")) + "</w:tr><w:tr>" + cell(textParagraph("b"))
            + "</w:tr></w:tbl>" + textParagraph("c"),
        .styles =
            "<w:style w:type='table' w:styleId='Grid'><w:pPr><w:jc w:val='center'/></w:pPr><w:rPr>"
            "<w:sz w:val='16'/></w:rPr><w:tblStylePr w:type='firstRow'><w:rPr><w:b/></w:rPr></w:tblStylePr>"
            "</w:style>"};
    EXPECT_EQ(font(document, 0), (FontAttributes{QStringLiteral("Times New Roman"), 8, 700}));
    EXPECT_EQ(font(document, 2), (FontAttributes{QStringLiteral("Times New Roman"), 8}));
    EXPECT_EQ(attributes(document, 2).paragraphStyle.alignment, TextAlignment::Center);
    EXPECT_EQ(font(document, 4).pointSize, 10);
}

TEST(DocxFormat, TakesTheDistanceOfTabStopsFromTheSettings)
{
    EXPECT_EQ(attributes({.body = textParagraph("a"), .settings = "<w:defaultTabStop w:val='1134'/>"})
                  .paragraphStyle.defaultTabInterval,
        56.7);
    EXPECT_EQ(attributes({.body = textParagraph("a"), .settings = "<w:defaultTabStop w:val='0'/>"})
                  .paragraphStyle.defaultTabInterval,
        36);
}

TEST(DocxFormat, ClampsExtremeValues)
{
    EXPECT_EQ(font({.body = paragraph(run("a", "<w:sz w:val='999999999'/>"))}).pointSize, 1638);
    EXPECT_EQ(font({.body = paragraph(run("a", "<w:sz w:val='nan'/>"))}).pointSize, 10);
    EXPECT_EQ(style("<w:ind w:left='1e300'/>").headIndent, 2834);
    EXPECT_LE(font({.body = paragraph(run("a", fonts(QByteArray(100'000, 'f'))))}).family.size(), 255);
    QByteArray tabs;
    for (int position = 1; position <= 10'000; ++position)
        tabs += "<w:tab w:val='left' w:pos='" + QByteArray::number(position) + "'/>";
    EXPECT_EQ(style("<w:tabs>" + tabs + "</w:tabs>").tabStops.size(), 64U);
}
