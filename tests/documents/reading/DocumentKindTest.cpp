// SPDX-License-Identifier: MIT
#include "documents/reading/KindDetection.h"

#include "tests/documents/docx/PackageWriter.h"
#include "tests/documents/epub/BookWriter.h"
#include "tests/documents/pdf/PdfWriter.h"

#include <gtest/gtest.h>

namespace {

const QByteArray rtf = "{\\rtf1\\ansi Hello}";
const QByteArray webPage = "<!DOCTYPE html><title>A page</title>";
const QByteArray words = "Some words.";

QByteArray wordDocument()
{
    return WordPackage{.body = "<w:p><w:r><w:t>one two</w:t></w:r></w:p>"}.bytes();
}

QByteArray archiveOfPictures()
{
    ZipWriter archive;
    archive.add({.name = "pictures/sun.png", .contents = "bytes of a picture"});
    return archive.archive();
}

QByteArray flatRtfd()
{
    return QByteArray("rtfd\0\0\0\0\3\0\0\0", 12) + QByteArray(64, '\0');
}

} // namespace

TEST(DocumentKind, BytesThatBeginAsRichTextAreThatUnderAnyName)
{
    for (const char *name : {"", "notes.rtf", "notes.txt", "notes.html", "notes.doc", "notes.docx"}) {
        EXPECT_EQ(kindOfDocument(name, rtf), DocumentKind::Rtf) << name;
        EXPECT_EQ(kindOfDocument(name, flatRtfd()), DocumentKind::Rtfd) << name;
    }
}

TEST(DocumentKind, BytesWithHeaderAndObjectsOfPdfAreThatUnderAnyName)
{
    const QByteArray pdf = PdfWriter{{"text"}}.bytes();
    for (const char *name : {"", "paper.pdf", "paper.txt", "paper.docx", "paper"})
        EXPECT_EQ(kindOfDocument(name, pdf), DocumentKind::Pdf) << name;
    EXPECT_EQ(kindOfDocument("paper.pdf", words), DocumentKind::Pdf);
    EXPECT_EQ(kindOfDocument("about.txt", "%PDF-1.7 is how such files begin."), DocumentKind::PlainText);
    EXPECT_EQ(kindOfDocument("", "%PDF-"), DocumentKind::PlainText);
}

TEST(DocumentKind, AWordDocumentOfBefore2007IsNoPlainText)
{
    const QByteArray old = QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1") + QByteArray(504, '\0');
    for (const char *name : {"", "letter.doc", "letter.txt", "letter"})
        EXPECT_EQ(kindOfDocument(name, old), DocumentKind::WordDocument) << name;
}

TEST(DocumentKind, AWordDocumentInOneXmlFileIsNoPlainText)
{
    const QByteArray flat("<?xml version=\"1.0\"?><?mso-application progid=\"Word.Document\"?><pkg:package>");
    for (const char *name : {"", "letter.xml", "letter.doc", "letter"})
        EXPECT_EQ(kindOfDocument(name, flat), DocumentKind::WordDocument) << name;
}

TEST(DocumentKind, AnElectronicBookIsOneUnderAnyName)
{
    const QByteArray book = BookWriter{.pages = {{"a.xhtml", "<p>text"}}}.bytes();
    for (const char *name : {"", "book.epub", "book.zip", "book.txt", "book"})
        EXPECT_EQ(kindOfDocument(name, book), DocumentKind::Epub) << name;
    EXPECT_EQ(kindOfDocument("book.epub", "PK\x03\x04"), DocumentKind::Epub);
}

TEST(DocumentKind, TheMimeTypeOfTheNameTellsWebPagesAndWordDocuments)
{
    for (const char *name : {"page.html", "page.htm", "PAGE.HTML", "/home/me/page.xhtml"})
        EXPECT_EQ(kindOfDocument(name, words), DocumentKind::Html) << name;
    for (const char *name : {"report.docx", "report.docm", "form.dotx", "FORM.DOTM"})
        EXPECT_EQ(kindOfDocument(name, words), DocumentKind::WordDocument) << name;
}

TEST(DocumentKind, ANameOfAnotherTypeIsBelievedOverAWebPagesTags)
{
    for (const char *name : {"page.txt", "page.cpp", "page.md", "page.xml"})
        EXPECT_EQ(kindOfDocument(name, webPage), DocumentKind::PlainText) << name;
}

TEST(DocumentKind, WithoutAMimeTypeTheBytesTell)
{
    for (const char *name : {"", "page", "/home/me/page.unheard-of"}) {
        EXPECT_EQ(kindOfDocument(name, webPage), DocumentKind::Html) << name;
        EXPECT_EQ(kindOfDocument(name, wordDocument()), DocumentKind::WordDocument) << name;
        EXPECT_EQ(kindOfDocument(name, archiveOfPictures()), DocumentKind::PlainText) << name;
        EXPECT_EQ(kindOfDocument(name, words), DocumentKind::PlainText) << name;
        EXPECT_EQ(kindOfDocument(name, {}), DocumentKind::PlainText) << name;
    }
}

TEST(DocumentKind, ARichTextsNameWithoutItsBytesIsPlainText)
{
    EXPECT_EQ(kindOfDocument("notes.rtf", words), DocumentKind::PlainText);
}

TEST(DocumentKind, ANameInNoEncodingIsAName)
{
    EXPECT_EQ(kindOfDocument("\xff\xfe.html", words), DocumentKind::Html);
}
