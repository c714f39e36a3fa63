// SPDX-License-Identifier: MIT
#include "tests/documents/docx/DocxTest.h"

namespace {

const QByteArray deletedMark = "<w:rPr><w:del w:id='1'/></w:rPr>";

QByteArray deleted(const QByteArray &text)
{
    return "<w:del w:id='1'><w:r><w:delText>" + text + "</w:delText></w:r></w:del>";
}

QByteArray row(const QByteArray &cells, const QByteArray &properties = {})
{
    return "<w:tr><w:trPr>" + properties + "</w:trPr>" + cells + "</w:tr>";
}

} // namespace

TEST(DocxRevisions, KeepWhatIsInsertedAndDropWhatIsDeleted)
{
    EXPECT_EQ(textOfBody(paragraph(run("a") + deleted("b") + "<w:ins w:id='2'>" + run("c") + "</w:ins>"
                  + "<w:moveFrom w:id='3'>" + run("d") + "</w:moveFrom><w:moveTo w:id='4'>" + run("e")
                  + "</w:moveTo>")),
        QStringLiteral("ace\n"));
}

TEST(DocxRevisions, DropDeletedFieldsTabsAndNotes)
{
    EXPECT_EQ(textOf({.body = paragraph("<w:del w:id='1'><w:r><w:fldChar w:fldCharType='begin'/></w:r><w:r>"
                                        "<w:delInstrText>PAGE</w:delInstrText></w:r><w:r><w:tab/>"
                                        "<w:footnoteReference w:id='1'/></w:r></w:del>"
                          + run("a")),
                  .footnotes = "<w:footnote w:id='1'>" + textParagraph("note") + "</w:footnote>"}),
        QStringLiteral("a\n"));
}

TEST(DocxRevisions, JoinAParagraphWhoseMarkIsDeletedWithTheNext)
{
    EXPECT_EQ(
        textOfBody(paragraph(run("one "), deletedMark) + paragraph(run("two"))), QStringLiteral("one two\n"));
    EXPECT_EQ(
        textOfBody(paragraph(run("one "), "<w:rPr><w:moveFrom w:id='1'/></w:rPr>") + paragraph(run("two"))),
        QStringLiteral("one two\n"));
    EXPECT_EQ(textOfBody(paragraph(run("one"), "<w:rPr><w:ins w:id='1'/></w:rPr>") + paragraph(run("two"))),
        QStringLiteral("one\ntwo\n"));
}

TEST(DocxRevisions, DropAParagraphThatIsDeletedWithItsMark)
{
    EXPECT_EQ(
        textOfBody(textParagraph("one") + paragraph(deleted("two"), deletedMark) + textParagraph("three")),
        QStringLiteral("one\nthree\n"));
    EXPECT_EQ(
        textOfBody(textParagraph("one") + paragraph(deleted("two"), deletedMark)), QStringLiteral("one\n"));
}

TEST(DocxRevisions, EndAParagraphWithoutMarkWhereATableOrTheTextEnds)
{
    const QByteArray table = "<w:tbl>" + row(cell(paragraph(run("in"), deletedMark))) + "</w:tbl>";
    EXPECT_EQ(
        textOfBody(paragraph(run("before"), deletedMark) + table + paragraph(run("after"), deletedMark)),
        QStringLiteral("before\nin\nafter\n"));
}

TEST(DocxRevisions, KeepOneParagraphInACellWhoseParagraphsAreAllDeleted)
{
    EXPECT_EQ(textOfBody("<w:tbl>"
                  + row(cell(paragraph(deleted("a"), deletedMark)) + cell(textParagraph("b"))) + "</w:tbl>"),
        QStringLiteral("\nb\n"));
}

TEST(DocxRevisions, DropDeletedRowsAndCells)
{
    EXPECT_EQ(textOfBody("<w:tbl>" + row(cell(textParagraph("a")), "<w:del w:id='1'/>")
                  + row(cell(textParagraph("b"), "<w:cellDel w:id='2'/>") + cell(textParagraph("c")),
                      "<w:ins w:id='3'/>")
                  + row(cell(textParagraph("d"), "<w:cellIns w:id='4'/>")) + "</w:tbl>"),
        QStringLiteral("c\nd\n"));
}

TEST(DocxRevisions, GiveAJoinedParagraphTheStyleOfTheMarkThatIsLeft)
{
    const Result<AttributedString, DocumentError> text =
        readWordDocument(WordPackage{.body = paragraph(run("one "), "<w:jc w:val='center'/>" + deletedMark)
                + paragraph(run("two"), "<w:jc w:val='right'/>")}
                             .bytes());
    ASSERT_EQ(text.value().string(), QStringLiteral("one two\n"));
    EXPECT_EQ(text.value().attributesAt(0).paragraphStyle.alignment, TextAlignment::Right);
}

TEST(DocxRevisions, IgnoreTheFormerPropertiesOfChanges)
{
    const Result<AttributedString, DocumentError> text = readWordDocument(
        WordPackage{.body = paragraph("<w:r><w:rPr><w:sz w:val='40'/><w:rPrChange w:id='1'><w:rPr><w:vanish/>"
                                      "<w:sz w:val='20'/></w:rPr></w:rPrChange></w:rPr><w:t>a</w:t></w:r>",
                        "<w:jc w:val='center'/><w:pPrChange w:id='2'><w:pPr><w:jc w:val='right'/></w:pPr>"
                        "</w:pPrChange>")}
            .bytes());
    ASSERT_EQ(text.value().string(), QStringLiteral("a\n"));
    EXPECT_EQ(text.value().attributesAt(0).font->pointSize, 20);
    EXPECT_EQ(text.value().attributesAt(0).paragraphStyle.alignment, TextAlignment::Center);
}
