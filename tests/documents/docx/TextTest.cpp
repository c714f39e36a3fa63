// SPDX-License-Identifier: MIT
#include "tests/documents/docx/DocxTest.h"

namespace {

QByteArray mathRun(const QByteArray &text)
{
    return "<m:r><m:t>" + text + "</m:t></m:r>";
}

QByteArray fraction(const QByteArray &numerator, const QByteArray &denominator)
{
    return "<m:f><m:fPr><m:type m:val='bar'/></m:fPr><m:num>" + numerator + "</m:num><m:den>" + denominator
        + "</m:den></m:f>";
}

QByteArray formula(const QByteArray &content)
{
    return "<m:oMath>" + content + "</m:oMath>";
}

} // namespace

TEST(DocxText, EndsEveryParagraphWithALineFeed)
{
    EXPECT_EQ(textOfBody(textParagraph("one") + textParagraph("two")), QStringLiteral("one\ntwo\n"));
    EXPECT_EQ(textOfBody(textParagraph("one") + "<w:p/>"), QStringLiteral("one\n\n"));
    EXPECT_EQ(textOfBody({}), QString());
}

TEST(DocxText, JoinsTheRunsOfAParagraph)
{
    EXPECT_EQ(textOfBody(paragraph(run("quill", "<w:b/>") + run("bay ") + run("&#x1F41F;&lt;&amp;"))),
        QStringLiteral("quillbay \U0001F41F<&\n"));
}

TEST(DocxText, KeepsWhiteSpaceAtTheEdgesOfARunOnlyWhereItIsPreserved)
{
    EXPECT_EQ(
        textOfBody(paragraph("<w:r><w:t>\n  a  b </w:t></w:r>" + run(" c "))), QStringLiteral("a  b c \n"));
    EXPECT_EQ(textOfBody(paragraph("\n  " + run("d\ne") + "\n  ")), QStringLiteral("d e\n"));
}

TEST(DocxText, KeepsWhiteSpaceWhereAnElementAroundTheRunPreservesIt)
{
    const QByteArray spaced = "<w:r><w:t> a </w:t><w:t xml:space='default'> b </w:t></w:r>";
    EXPECT_EQ(textOfBody("<w:p xml:space='preserve'>" + spaced + "</w:p><w:p>" + spaced + "</w:p>"),
        QStringLiteral(" a b\nab\n"));
}

TEST(DocxText, HasACharacterForTabsBreaksAndHyphens)
{
    EXPECT_EQ(textOfBody(paragraph("<w:r><w:t>a</w:t><w:tab/><w:t>b</w:t><w:br/><w:t>c</w:t><w:cr/>"
                                   "<w:br w:type='page'/><w:br w:type='column'/><w:br w:type='textWrapping'/>"
                                   "<w:noBreakHyphen/><w:softHyphen/><w:ptab w:alignment='right'/></w:r>")),
        QStringLiteral("a\tb\u2028c\u2028\f\f\u2028\u2011\u00AD\t\n"));
}

TEST(DocxText, IgnoresTabStopsInProperties)
{
    EXPECT_EQ(textOfBody(paragraph(run("a"), "<w:tabs><w:tab w:val='left' w:pos='720'/></w:tabs>")),
        QStringLiteral("a\n"));
}

TEST(DocxText, ReadsSymbolsAsTheCharactersThatTheyShow)
{
    EXPECT_EQ(textOfBody(paragraph("<w:r><w:sym w:font='Symbol' w:char='F061'/></w:r>"
                                   "<w:r><w:sym w:font='Wingdings' w:char='F0FC'/></w:r>"
                                   "<w:r><w:sym w:font='Arial' w:char='2022'/></w:r>")),
        QStringLiteral("\u03B1\uF0FC\u2022\n"));
    EXPECT_EQ(textOfBody(paragraph(run("\xEF\x82\xB7\xEF\x82\xA3", "<w:rFonts w:ascii='Symbol'/>"))),
        QStringLiteral("\u2022\u2264\n"));
}

TEST(DocxText, ReadsCodesOfSymbolFontsWithAndWithoutThePrivateUseOffset)
{
    EXPECT_EQ(textOfBody(paragraph("<w:r><w:sym w:font='Symbol' w:char='61'/></w:r>"
                                   "<w:r><w:sym w:font='Symbol' w:char='00A3'/></w:r>"
                                   "<w:r><w:sym w:font='Wingdings' w:char='FC'/></w:r>"
                                   "<w:r><w:sym w:font='wingdings 2' w:char='0050'/></w:r>"
                                   "<w:r><w:sym w:font='Webdings' w:char='0061'/></w:r>")),
        QStringLiteral("\u03B1\u2264\uF0FC\uF050\uF061\n"));
}

TEST(DocxText, ReadsCodesOfOtherFontsAndOtherCodesOfSymbolFontsAsCharacters)
{
    EXPECT_EQ(textOfBody(paragraph("<w:r><w:sym w:font='Arial' w:char='00E9'/></w:r>"
                                   "<w:r><w:sym w:char='0041'/></w:r>"
                                   "<w:r><w:sym w:font='Wingdings' w:char='2713'/></w:r>")),
        QStringLiteral("\u00E9A\u2713\n"));
}

TEST(DocxText, IgnoresInvalidSymbols)
{
    EXPECT_EQ(textOfBody(paragraph("<w:r><w:sym w:char='D800'/><w:sym w:char='0'/><w:sym w:char='12345'/>"
                                   "<w:sym w:char='x'/><w:sym/></w:r>")),
        QStringLiteral("\n"));
}

TEST(DocxText, MakesParagraphsOfCellsAndOfTablesInThem)
{
    const QByteArray inner = "<w:tbl><w:tr>" + cell(textParagraph("in")) + "</w:tr></w:tbl>";
    EXPECT_EQ(
        textOfBody(textParagraph("before") + "<w:tbl><w:tblPr/><w:tblGrid><w:gridCol/></w:tblGrid><w:tr>"
            + cell(textParagraph("a") + textParagraph("b")) + cell(inner + "<w:p/>") + "</w:tr></w:tbl>"
            + textParagraph("after")),
        QStringLiteral("before\na\nb\nin\n\nafter\n"));
}

TEST(DocxText, ReadsContentControlsLinksTagsAndCustomXml)
{
    EXPECT_EQ(
        textOfBody("<w:sdt><w:sdtPr><w:alias w:val='x'/><w:placeholder><w:docPart w:val='y'/>"
                   "</w:placeholder></w:sdtPr><w:sdtContent>"
            + paragraph("<w:sdt><w:sdtContent>" + run("a") + "</w:sdtContent></w:sdt><w:hyperlink>" + run("b")
                + "</w:hyperlink><w:smartTag><w:smartTagPr><w:attr w:name='n' w:val='v'/></w:smartTagPr>"
                + run("c") + "</w:smartTag><w:customXml>" + run("d") + "</w:customXml><w:bdo>" + run("e")
                + "</w:bdo>")
            + "</w:sdtContent></w:sdt><w:customXml>" + textParagraph("f") + "</w:customXml>"),
        QStringLiteral("abcde\nf\n"));
}

TEST(DocxText, ReadsOnlyTheBaseTextOfRuby)
{
    EXPECT_EQ(textOfBody(paragraph("<w:r><w:ruby><w:rubyPr/><w:rt>" + run("ruby") + "</w:rt><w:rubyBase>"
                  + run("base") + "</w:rubyBase></w:ruby></w:r>")),
        QStringLiteral("base\n"));
}

TEST(DocxText, JoinsADropCapWithTheParagraphThatFollows)
{
    const QByteArray dropCap = "<w:framePr w:dropCap='drop' w:lines='3' w:wrap='around'/>";
    EXPECT_EQ(textOfBody(paragraph(run("D"), dropCap) + textParagraph("rop caps.") + textParagraph("Next")),
        QStringLiteral("Drop caps.\nNext\n"));
    EXPECT_EQ(textOfBody(paragraph(run("M"), "<w:framePr w:dropCap='margin'/>") + textParagraph("argin")),
        QStringLiteral("Margin\n"));
    EXPECT_EQ(textOfBody(paragraph(run("F"), "<w:framePr w:dropCap='none'/>") + textParagraph("rame")),
        QStringLiteral("F\nrame\n"));
    EXPECT_EQ(textOfBody(paragraph(run("F"), "<w:framePr w:w='200'/>") + textParagraph("rame")),
        QStringLiteral("F\nrame\n"));
}

TEST(DocxText, JoinsADropCapFromAStyle)
{
    const QByteArray style = "<w:style w:type='paragraph' w:styleId='C'><w:pPr><w:framePr w:dropCap='drop'/>"
                             "</w:pPr></w:style>";
    const QByteArray styled = "<w:pStyle w:val='C'/>";
    EXPECT_EQ(textOf({.body = paragraph(run("D"), styled) + textParagraph("rop"), .styles = style}),
        QStringLiteral("Drop\n"));
    EXPECT_EQ(
        textOf({.body = paragraph(run("D"), styled + "<w:framePr w:dropCap='none'/>") + textParagraph("rop"),
            .styles = style}),
        QStringLiteral("D\nrop\n"));
}

TEST(DocxText, KeepsADropCapThatNothingFollows)
{
    const QByteArray dropCap = paragraph(run("D"), "<w:framePr w:dropCap='drop'/>");
    EXPECT_EQ(textOfBody(dropCap), QStringLiteral("D\n"));
    EXPECT_EQ(textOfBody("<w:tbl><w:tr>" + cell(dropCap) + cell(textParagraph("x")) + "</w:tr></w:tbl>"),
        QStringLiteral("D\nx\n"));
    EXPECT_EQ(textOfBody(dropCap + "<w:tbl><w:tr>" + cell(textParagraph("x")) + "</w:tr></w:tbl>"),
        QStringLiteral("D\nx\n"));
}

TEST(DocxText, ReadsTheCharactersOfFormulas)
{
    EXPECT_EQ(
        textOfBody(paragraph("<m:oMathPara><m:oMath><m:sSup><m:e><m:r><m:rPr><m:sty/></m:rPr><m:t>r</m:t>"
                             "</m:r></m:e><m:sup><m:r><w:rPr><w:i/></w:rPr><m:t>2</m:t></m:r></m:sup>"
                             "</m:sSup></m:oMath></m:oMathPara>")),
        QStringLiteral("r2\n"));
}

TEST(DocxText, KeepsThePartsOfAFractionApart)
{
    EXPECT_EQ(textOfBody(paragraph(formula(fraction(mathRun("3"), mathRun("4"))))), QStringLiteral("3 4\n"));
    EXPECT_EQ(textOfBody(paragraph(
                  run("so ") + formula(mathRun("2") + fraction(mathRun("3"), mathRun("4"))) + run("on. "))),
        QStringLiteral("so 2 3 4 on. \n"));
    EXPECT_EQ(textOfBody(paragraph(
                  formula(fraction(fraction(mathRun("1"), mathRun("2")), mathRun("x") + mathRun("y"))))),
        QStringLiteral("1 2 xy\n"));
    EXPECT_EQ(textOfBody(paragraph(formula(fraction({}, {}))) + textParagraph("a")), QStringLiteral("\na\n"));
}

TEST(DocxText, KeepsTheCellsOfAMatrixAndTheLinesOfAnEquationArrayApart)
{
    const QByteArray matrix = "<m:m><m:mPr/><m:mr><m:e>" + mathRun("a") + "</m:e><m:e>" + mathRun("b")
        + "</m:e></m:mr><m:mr><m:e>" + mathRun("c") + "</m:e><m:e>" + mathRun("d") + "</m:e></m:mr></m:m>";
    EXPECT_EQ(textOfBody(paragraph(formula(mathRun("A") + "<m:d><m:e>" + matrix + "</m:e></m:d>"))),
        QStringLiteral("A a b c d\n"));
    EXPECT_EQ(textOfBody(paragraph(formula("<m:eqArr><m:e>" + mathRun("x") + "</m:e><m:e><m:sSup><m:e>"
                  + mathRun("y") + "</m:e><m:sup>" + mathRun("2") + "</m:sup></m:sSup></m:e></m:eqArr>"))),
        QStringLiteral("x y2\n"));
}

TEST(DocxText, HasNoNumbersOfListsNorCommentsNorPictures)
{
    EXPECT_EQ(
        textOf({.body = paragraph("<w:commentRangeStart w:id='0'/>" + run("a")
                        + "<w:r><w:commentReference w:id='0'/></w:r><w:r><w:drawing><wp:inline>"
                          "<wp:docPr id='1' descr='a picture'/></wp:inline></w:drawing></w:r>",
                    "<w:numPr><w:ilvl w:val='0'/><w:numId w:val='1'/></w:numPr>"),
            .numbering = "<w:abstractNum w:abstractNumId='0'><w:lvl w:ilvl='0'><w:lvlText w:val='%1.'/>"
                         "</w:lvl></w:abstractNum><w:num w:numId='1'><w:abstractNumId w:val='0'/></w:num>"}),
        QStringLiteral("a\n"));
}

TEST(DocxText, HasNoHeadersFootersCommentsNorPagesOfTheProgramThatSavedIt)
{
    const QByteArray word = "application/vnd.openxmlformats-officedocument.wordprocessingml.";
    const auto part = [&word](const char *kind) {
        QByteArray root = kind;
        root.replace("header", "hdr").replace("footer", "ftr");
        return WordPackage::Part{QByteArray("rIdOf") + kind, kind, QByteArray(kind) + ".xml",
            word + kind + "+xml",
            "<w:" + root + " xmlns:w='" + WordPackage{}.wordNamespace + "'>" + textParagraph(kind)
                + "</w:" + root + ">"};
    };
    EXPECT_EQ(
        textOf({.body = paragraph(run("one") + "<w:r><w:lastRenderedPageBreak/></w:r>" + run(" two"),
                            "<w:sectPr><w:headerReference w:type='default' r:id='rIdOfheader'/></w:sectPr>")
                + "<w:sectPr><w:footerReference w:type='default' r:id='rIdOffooter'/></w:sectPr>",
            .others = {part("header"), part("footer"), part("comments")}}),
        QStringLiteral("one two\n"));
}

TEST(DocxText, IgnoresTheStoredStatistics)
{
    const WordPackage document{
        .body = textParagraph("one"), .figures = "<Words>1000</Words><Lines>9</Lines>"};
    EXPECT_EQ(textOf(document), QStringLiteral("one\n"));
    ZipWriter damaged = WordPackage{.body = textParagraph("one")}.writer();
    damaged.add({.name = "docProps/app.xml", .contents = "<Properties><Words>"});
    EXPECT_EQ(readWordDocument(damaged.archive()).value().string(), QStringLiteral("one\n"));
}

TEST(DocxText, ReadsAMisplacedParagraph)
{
    EXPECT_EQ(textOfBody(paragraph(run("outer ") + textParagraph("inner") + run("on"))),
        QStringLiteral("outer on\ninner\n"));
}

TEST(DocxText, IgnoresBlocksWithinTextAndProperties)
{
    EXPECT_EQ(
        textOfBody("<w:p><w:pPr><w:p/><w:rPr><w:p/></w:rPr></w:pPr><w:r><w:rPr><w:p/></w:rPr><w:t>a<w:p>"
            + run("b") + "</w:p>c</w:t></w:r>" + run("d") + "</w:p><w:tbl><w:tblPr><w:tbl/></w:tblPr><w:tr>"
            + "<w:trPr><w:tr/></w:trPr>" + cell(textParagraph("e"), "<w:tc/><w:p/>") + "</w:tr></w:tbl>"),
        QStringLiteral("abcd\ne\n"));
}

TEST(DocxText, SurvivesMisplacedTablesAndBodies)
{
    EXPECT_EQ(textOfBody("<w:p><w:tc/><w:tr/><w:tbl/><w:body/>" + run("a") + "</w:p><w:tc>" + run("b")
                  + textParagraph("c") + "</w:tc><w:tr><w:r/></w:tr>" + run("d") + "<w:body>"
                  + textParagraph("e") + "</w:body>"),
        QStringLiteral("a\nc\ne\n"));
}
