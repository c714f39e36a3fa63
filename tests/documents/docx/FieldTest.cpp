// SPDX-License-Identifier: MIT
#include "tests/documents/docx/DocxTest.h"

namespace {

QByteArray fieldCharacter(const QByteArray &type)
{
    return "<w:r><w:fldChar w:fldCharType='" + type + "'/></w:r>";
}

QByteArray instruction(const QByteArray &text)
{
    return "<w:r><w:instrText>" + text + "</w:instrText></w:r>";
}

const QByteArray begin = fieldCharacter("begin");
const QByteArray separate = fieldCharacter("separate");
const QByteArray end = fieldCharacter("end");

} // namespace

TEST(DocxFields, GiveTheirResultOnly)
{
    EXPECT_EQ(textOfBody(
                  paragraph(run("on ") + begin + instruction("PAGE") + separate + run("7") + end + run("."))),
        QStringLiteral("on 7.\n"));
    EXPECT_EQ(textOfBody(paragraph("<w:fldSimple w:instr='AUTHOR'><w:fldData>QUJD</w:fldData>" + run("Ann")
                  + "</w:fldSimple>")),
        QStringLiteral("Ann\n"));
}

TEST(DocxFields, WithoutAResultGiveNothing)
{
    EXPECT_EQ(textOfBody(paragraph(run("a") + begin + instruction("XE") + run("hidden") + end + run("b"))),
        QStringLiteral("ab\n"));
}

TEST(DocxFields, InTheInstructionOfAnotherOneGiveNothing)
{
    const QByteArray nested = begin + instruction("PAGE") + separate + run("3") + end;
    EXPECT_EQ(textOfBody(paragraph(
                  begin + instruction("IF ") + nested + instruction(" = 3") + separate + run("yes") + end)),
        QStringLiteral("yes\n"));
}

TEST(DocxFields, InTheResultOfAnotherOneGiveTheirs)
{
    const QByteArray nested = begin + instruction("PAGEREF") + separate + run("12") + end;
    EXPECT_EQ(textOfBody(paragraph(begin + instruction("TOC") + separate + run("One ") + nested)
                  + paragraph(run("Two") + end) + textParagraph("after")),
        QStringLiteral("One 12\nTwo\nafter\n"));
}

TEST(DocxFields, WithAnInstructionOfSeveralParagraphsMakeOneOfThem)
{
    EXPECT_EQ(
        textOfBody(paragraph(run("one ") + begin + instruction("IF a = b \"")) + paragraph(instruction("c"))
            + paragraph(instruction("\"") + separate + run("two")) + paragraph(run("three") + end)),
        QStringLiteral("one two\nthree\n"));
}

TEST(DocxFields, ThatEndBeforeTheyBeginAreIgnored)
{
    EXPECT_EQ(textOfBody(paragraph(end + separate + run("a"))), QStringLiteral("a\n"));
}

TEST(DocxFields, ThatNeverEndLeaveTheNotesAlone)
{
    EXPECT_EQ(
        textOf({.body = paragraph(run("a") + "<w:r><w:footnoteReference w:id='1'/></w:r>" + begin + run("b")),
            .footnotes = "<w:footnote w:id='1'>" + textParagraph("note") + "</w:footnote>"}),
        QStringLiteral("a\nnote\n"));
}
