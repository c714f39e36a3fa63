// SPDX-License-Identifier: MIT
#include "tests/documents/docx/DocxTest.h"

namespace {

QByteArray reference(const QByteArray &kind, const QByteArray &identifier)
{
    return "<w:r><w:" + kind + "Reference w:id='" + identifier + "'/></w:r>";
}

QByteArray note(const QByteArray &kind, const QByteArray &identifier, const QByteArray &content)
{
    return "<w:" + kind + " w:id='" + identifier + "'>" + content + "</w:" + kind + ">";
}

const QByteArray separators = "<w:footnote w:type='separator' w:id='-1'><w:p><w:r><w:separator/></w:r></w:p>"
                              "</w:footnote>";

} // namespace

TEST(DocxNotes, FollowTheBodyInTheOrderOfTheirReferences)
{
    EXPECT_EQ(textOf({.body = paragraph(run("a") + reference("endnote", "1") + reference("footnote", "3"))
                      + paragraph(reference("footnote", "2") + run("b")),
                  .footnotes = separators + note("footnote", "2", textParagraph("two"))
                      + note("footnote", "3", textParagraph("three") + textParagraph("more")),
                  .endnotes = note("endnote", "1", textParagraph("end"))}),
        QStringLiteral("a\nb\nthree\nmore\ntwo\nend\n"));
}

TEST(DocxNotes, WithoutAReferenceAreNoText)
{
    EXPECT_EQ(textOf({.body = textParagraph("a"), .footnotes = note("footnote", "1", textParagraph("x"))}),
        QStringLiteral("a\n"));
}

TEST(DocxNotes, ThatAreReferredToTwiceAreReadOnce)
{
    EXPECT_EQ(textOf({.body = paragraph(reference("footnote", "1") + reference("footnote", "1")),
                  .footnotes = note("footnote", "1", textParagraph("x"))}),
        QStringLiteral("\nx\n"));
}

TEST(DocxNotes, ThatAreMissingHaveNoText)
{
    EXPECT_EQ(textOf({.body = paragraph(run("a") + reference("footnote", "9")),
                  .footnotes = note("footnote", "1", textParagraph("x"))}),
        QStringLiteral("a\n"));
    EXPECT_EQ(textOf({.body = paragraph(run("a") + reference("endnote", "9"))}), QStringLiteral("a\n"));
}

TEST(DocxNotes, MayReferToEndnotes)
{
    EXPECT_EQ(textOf({.body = paragraph(reference("footnote", "1")),
                  .footnotes = note("footnote", "1", paragraph(run("foot") + reference("endnote", "1"))),
                  .endnotes = note("endnote", "1", textParagraph("end"))}),
        QStringLiteral("\nfoot\nend\n"));
}

TEST(DocxNotes, HaveNoNumbers)
{
    EXPECT_EQ(textOf({.body = paragraph(run("a") + reference("footnote", "1")),
                  .footnotes = note("footnote", "1", paragraph("<w:r><w:footnoteRef/></w:r>" + run(" x")))}),
        QStringLiteral("a\n x\n"));
}

TEST(DocxNotes, CloseWhatTheyLeftOpen)
{
    EXPECT_EQ(
        textOf({.body = paragraph(reference("footnote", "1") + reference("footnote", "2")),
            .footnotes = note("footnote", "1", paragraph(run("one"), "<w:rPr><w:del w:id='1'/></w:rPr>"))
                + note("footnote", "2", textParagraph("two"))}),
        QStringLiteral("\none\ntwo\n"));
}
