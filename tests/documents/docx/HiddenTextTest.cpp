// SPDX-License-Identifier: MIT
#include "tests/documents/docx/DocxTest.h"

namespace {

const QByteArray styles =
    "<w:style w:type='paragraph' w:styleId='Secret'><w:rPr><w:vanish/></w:rPr></w:style>"
    "<w:style w:type='paragraph' w:styleId='Child'><w:basedOn w:val='Secret'/></w:style>"
    "<w:style w:type='character' w:styleId='Veil'><w:rPr><w:vanish/></w:rPr></w:style>";

QString styled(const QByteArray &body)
{
    return textOf({.body = body, .styles = styles});
}

} // namespace

TEST(DocxHiddenText, IsNoText)
{
    EXPECT_EQ(textOfBody(paragraph(run("a") + run("b", "<w:vanish/>") + run("c", "<w:vanish w:val='0'/>")
                  + run("d", "<w:vanish w:val='true'/>") + run("e", "<w:webHidden/>"))),
        QStringLiteral("ace\n"));
}

TEST(DocxHiddenText, IsHiddenThroughStylesToo)
{
    EXPECT_EQ(styled(paragraph(run("a") + run("b", "<w:rStyle w:val='Veil'/>"))), QStringLiteral("a\n"));
    EXPECT_EQ(styled(paragraph(run("a"), "<w:pStyle w:val='Secret'/>") + textParagraph("b")),
        QStringLiteral("b\n"));
    EXPECT_EQ(
        styled(paragraph(run("a"), "<w:pStyle w:val='Child'/>") + textParagraph("b")), QStringLiteral("b\n"));
}

TEST(DocxHiddenText, IsShownIfTwoStylesHideItOrTheRunShowsIt)
{
    const QByteArray secret = "<w:pStyle w:val='Secret'/><w:rPr><w:vanish w:val='0'/></w:rPr>";
    EXPECT_EQ(styled(paragraph(run("a", "<w:rStyle w:val='Veil'/>"), secret)), QStringLiteral("a\n"));
    EXPECT_EQ(styled(paragraph(run("a", "<w:vanish w:val='0'/>"), secret)), QStringLiteral("a\n"));
    EXPECT_EQ(
        styled(paragraph(run("a", "<w:rStyle w:val='Veil'/><w:vanish/>"), secret)), QStringLiteral("\n"));
}

TEST(DocxHiddenText, StaysHiddenIfBothTheDefaultsAndAStyleHideIt)
{
    EXPECT_EQ(
        textOf({.body = paragraph(
                    run("a") + run("b", "<w:rStyle w:val='Veil'/>") + run("c", "<w:vanish w:val='off'/>"),
                    "<w:rPr><w:vanish w:val='0'/></w:rPr>"),
            .styles = "<w:docDefaults><w:rPrDefault><w:rPr><w:vanish/></w:rPr></w:rPrDefault></w:docDefaults>"
                + styles}),
        QStringLiteral("c\n"));
}

TEST(DocxHiddenText, JoinsParagraphsIfTheMarkIsHidden)
{
    EXPECT_EQ(
        textOfBody(paragraph(run("a"), "<w:rPr><w:vanish/><w:specVanish/></w:rPr>") + textParagraph("b")),
        QStringLiteral("ab\n"));
}

TEST(DocxHiddenText, IncludesTabsSymbolsNotesAndTextBoxes)
{
    EXPECT_EQ(textOf({.body = paragraph("<w:r><w:rPr><w:vanish/></w:rPr><w:tab/><w:br/><w:sym w:char='2022'/>"
                                        "<w:footnoteReference w:id='1'/><w:pict><v:textbox><w:txbxContent>"
                          + textParagraph("box") + "</w:txbxContent></v:textbox></w:pict></w:r>"),
                  .footnotes = "<w:footnote w:id='1'>" + textParagraph("note") + "</w:footnote>"}),
        QStringLiteral("\n"));
}
