// SPDX-License-Identifier: MIT
#include "tests/documents/docx/DocxTest.h"

namespace {

using Cause = DocumentError::Cause;

QByteArray shape(const QByteArray &text)
{
    return "<w:drawing><wp:anchor><a:graphic><a:graphicData><wps:wsp><wps:txbx><w:txbxContent>"
        + textParagraph(text)
        + "</w:txbxContent></wps:txbx></wps:wsp></a:graphicData></a:graphic></wp:anchor></w:drawing>";
}

QByteArray oldShape(const QByteArray &text)
{
    return "<w:pict><v:shape><v:textbox><w:txbxContent>" + textParagraph(text)
        + "</w:txbxContent></v:textbox></v:shape></w:pict>";
}

QByteArray alternatives(const QByteArray &needed, const QByteArray &choice, const QByteArray &fallback)
{
    return "<mc:AlternateContent><mc:Choice Requires='" + needed + "'>" + choice + "</mc:Choice><mc:Fallback>"
        + fallback + "</mc:Fallback></mc:AlternateContent>";
}

WordPackage withChunk(const QByteArray &contentType, const QByteArray &contents, bool isExternal = false)
{
    return {.body = textParagraph("before") + "<w:altChunk r:id='rId7'><w:altChunkPr/></w:altChunk>"
            + textParagraph("after"),
        .others = {{"rId7", "aFChunk", isExternal ? "file:///etc/passwd" : "chunk.bin", contentType, contents,
            isExternal}}};
}

QString textWithChunk(const QByteArray &contentType, const QByteArray &contents)
{
    return textOf(withChunk(contentType, contents));
}

} // namespace

TEST(DocxTextBoxes, FollowTheParagraphThatAnchorsThemOnce)
{
    EXPECT_EQ(textOfBody(paragraph(run("a") + "<w:r>" + alternatives("wps", shape("new"), oldShape("old"))
                             + "</w:r>" + run("b"))
                  + textParagraph("c")),
        QStringLiteral("ab\nnew\nc\n"));
    EXPECT_EQ(textOfBody(paragraph("<w:r>" + oldShape("x") + oldShape("y") + "</w:r>" + run("a"))),
        QStringLiteral("a\nx\ny\n"));
}

TEST(DocxTextBoxes, InTextBoxesFollowTheParagraphThere)
{
    const QByteArray inner =
        paragraph(run("box ") + "<w:r>" + oldShape("inner") + "</w:r>") + textParagraph("end");
    EXPECT_EQ(textOfBody(paragraph(run("a") + "<w:r><w:pict><v:textbox><w:txbxContent>" + inner
                  + "</w:txbxContent></v:textbox></w:pict></w:r>")),
        QStringLiteral("a\nbox \ninner\nend\n"));
}

TEST(DocxTextBoxes, StayWithAParagraphThatContinuesInTheNext)
{
    EXPECT_EQ(textOfBody(paragraph(run("a") + "<w:r>" + oldShape("box") + "</w:r>",
                             "<w:rPr><w:del w:id='1'/></w:rPr>")
                  + textParagraph("b")),
        QStringLiteral("ab\nbox\n"));
}

TEST(DocxTextBoxes, KeepTablesAndFieldsOfTheirOwn)
{
    const QByteArray table = "<w:tbl><w:tr>" + cell(textParagraph("cell")) + "</w:tr></w:tbl><w:p/>";
    EXPECT_EQ(textOfBody("<w:tbl><w:tr>"
                  + cell(paragraph(run("a") + "<w:r><w:pict><v:textbox><w:txbxContent>" + table
                      + paragraph("<w:r><w:fldChar w:fldCharType='begin'/></w:r>")
                      + "</w:txbxContent></v:textbox></w:pict></w:r>" + run("b")))
                  + "</w:tr></w:tbl>"),
        QStringLiteral("ab\ncell\n\n\n"));
}

TEST(DocxAlternatives, AreReadFromTheFirstSupportedChoice)
{
    EXPECT_EQ(textOfBody(paragraph(alternatives("w14", run("choice"), run("fallback")))),
        QStringLiteral("choice\n"));
    EXPECT_EQ(textOfBody(paragraph("<mc:AlternateContent xmlns:x='urn:unknown'><mc:Choice Requires='w14 x'>"
                  + run("a") + "</mc:Choice><mc:Choice Requires='w14'>" + run("b")
                  + "</mc:Choice><mc:Choice Requires='wps'>" + run("c") + "</mc:Choice><mc:Fallback>"
                  + run("d") + "</mc:Fallback></mc:AlternateContent>")),
        QStringLiteral("b\n"));
    EXPECT_EQ(textOfBody(paragraph(alternatives("undeclared", run("choice"), run("fallback")))),
        QStringLiteral("fallback\n"));
}

TEST(DocxAlternatives, AreChosenWithinTheChosenOnes)
{
    EXPECT_EQ(textOfBody(paragraph(alternatives(
                  "x", alternatives("w14", run("a"), run("b")), alternatives("x", run("c"), run("d"))))),
        QStringLiteral("d\n"));
}

TEST(DocxAlternatives, SkipIgnorableElementsButKeepContentToBeProcessed)
{
    const QByteArray body = paragraph("<x:skip xmlns:x='urn:x'>" + run("a") + "</x:skip>" + run("b"));
    const auto under = [&body](const QByteArray &attributes) {
        return textOf({.body = body, .rootAttributes = "xmlns:x='urn:x' " + attributes});
    };
    EXPECT_EQ(under("mc:Ignorable='x'"), QStringLiteral("b\n"));
    EXPECT_EQ(under("mc:Ignorable='x' mc:ProcessContent='x:skip'"), QStringLiteral("ab\n"));
    EXPECT_EQ(under("mc:Ignorable='x' mc:ProcessContent='x:*'"), QStringLiteral("ab\n"));
    EXPECT_EQ(under("mc:Ignorable='w14'"), QStringLiteral("ab\n"));
}

TEST(DocxChunks, OfEveryKindAreReadInTheirPlace)
{
    EXPECT_EQ(textWithChunk("text/plain", "plain"), QStringLiteral("before\nplain\nafter\n"));
    EXPECT_EQ(
        textWithChunk("application/rtf", "{\\rtf1 rich\\par}"), QStringLiteral("before\nrich\nafter\n"));
    EXPECT_EQ(textWithChunk("text/html", "<p>page"), QStringLiteral("before\npage\nafter\n"));
    EXPECT_EQ(textWithChunk("application/xhtml+xml", "<html><body>page</body></html>"),
        QStringLiteral("before\npage\nafter\n"));
    EXPECT_EQ(textWithChunk(WordPackage{}.mainType, WordPackage{.body = textParagraph("document")}.bytes()),
        QStringLiteral("before\ndocument\nafter\n"));
}

TEST(DocxChunks, OfArchivesOfWebPagesAreThePage)
{
    const QByteArray page = "<p>caf=E9=20au=\r\n lait<p>=zz";
    const QByteArray quoted = "Content-Type: text/html;\r\n charset=\"iso-8859-1\"\r\n"
                              "Content-Transfer-Encoding: quoted-printable\r\n\r\n"
        + page + "\r\n";
    const QByteArray start = "MIME-Version: 1.0\r\nContent-Type: multipart/related; type=\"text/html\";\r\n\t"
                             "boundary=\"=_b; x\"\r\n\r\nfor old programs\r\n--=_b; x\r\n";
    const QByteArray picture = "Content-Type: image/png\r\n\r\nPNG\r\n--=_b; x\r\n";
    const QString expected = QStringLiteral("before\ncaf\u00E9 au lait\n\n=zz\nafter\n");
    EXPECT_EQ(textWithChunk("message/rfc822", start + picture + quoted + "--=_b; x--\r\n"), expected);
    EXPECT_EQ(textWithChunk("application/x-unknown", start + quoted), expected);
    EXPECT_EQ(textWithChunk("message/rfc822", quoted), expected);
    EXPECT_EQ(textWithChunk("message/rfc822",
                  "Content-Type: text/html\nContent-Transfer-Encoding: base64\n\n"
                      + QByteArray("<p>page").toBase64()),
        QStringLiteral("before\npage\nafter\n"));
    EXPECT_EQ(readWordDocument(withChunk("message/rfc822", start + picture).bytes()).error().cause,
        Cause::UnsupportedPart);
}

TEST(DocxChunks, OfWebArchivesWithinEachOtherAreReadToABoundedDepth)
{
    QByteArray archive = "Content-Type: text/html\n\n<p>core";
    const auto wrap = [&archive](int level) {
        const QByteArray boundary = "b" + QByteArray::number(level);
        archive = "Content-Type: multipart/mixed; boundary=" + boundary + "\n\n--" + boundary + "\n" + archive
            + "\n--" + boundary + "--\n";
    };
    for (int level = 0; level < 4; ++level)
        wrap(level);
    EXPECT_EQ(textWithChunk("message/rfc822", archive), QStringLiteral("before\ncore\nafter\n"));
    wrap(4);
    EXPECT_EQ(
        readWordDocument(withChunk("message/rfc822", archive).bytes()).error().cause, Cause::UnsupportedPart);
}

TEST(DocxChunks, OfAnUnknownKindAreAnError)
{
    EXPECT_EQ(readWordDocument(withChunk("application/x-unknown", "?").bytes()).error().cause,
        Cause::UnsupportedPart);
    EXPECT_EQ(readWordDocument(withChunk("application/rtf", "no RTF").bytes()).error().cause,
        Cause::UnsupportedPart);
}

TEST(DocxChunks, OutsideOfThePackageAreNotFollowed)
{
    EXPECT_EQ(textOf(withChunk("text/plain", {}, true)), QStringLiteral("before\nafter\n"));
}

TEST(DocxChunks, AreReadWithinEachOtherToABoundedDepth)
{
    QByteArray document = WordPackage{.body = textParagraph("core")}.bytes();
    const auto wrapped = [&document] {
        return WordPackage{.body = "<w:altChunk r:id='r'/>",
            .others = {{"r", "aFChunk", "inner.docx", WordPackage{}.mainType, document}}};
    };
    for (int level = 0; level < 2; ++level)
        document = wrapped().bytes();
    EXPECT_EQ(textOf(wrapped()), QStringLiteral("core\n"));
    document = wrapped().bytes();
    EXPECT_EQ(readWordDocument(wrapped().bytes()).error().cause, Cause::TooComplex);
}

TEST(DocxChunks, AreReadUpToABoundedNumber)
{
    WordPackage document = withChunk("text/plain", "x");
    document.body = QByteArray("<w:altChunk r:id='rId7'/>").repeated(5'000);
    EXPECT_EQ(textOf(document).size(), 10'000);
    document.body += "<w:altChunk r:id='rId7'/>";
    EXPECT_EQ(readWordDocument(document.bytes()).error().cause, Cause::TooComplex);
}
