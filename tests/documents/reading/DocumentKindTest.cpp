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
const QByteArray picture("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1", 24);

/// Absent for a document that is refused.
std::optional<DocumentKind> kindOf(const QByteArray &name, const QByteArray &bytes)
{
    const Result<DocumentKind, DocumentError> kind = kindOfDocument(name, bytes);
    return kind ? std::optional(kind.value()) : std::nullopt;
}

QByteArray wordDocument()
{
    return WordPackage{.body = "<w:p><w:r><w:t>one two</w:t></w:r></w:p>"}.bytes();
}

/// A compound file without a directory, as one that was cut off.
QByteArray compoundFile()
{
    return QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1") + QByteArray(504, '\0');
}

QByteArray flatRtfd()
{
    return QByteArray("rtfd\0\0\0\0\3\0\0\0", 12) + QByteArray(64, '\0');
}

} // namespace

TEST(DocumentKind, BytesThatBeginAsRichTextAreThatUnderAnyName)
{
    for (const char *name : {"", "notes.rtf", "notes.txt", "notes.html", "notes.doc", "notes.docx"}) {
        EXPECT_EQ(kindOf(name, rtf), DocumentKind::Rtf) << name;
        EXPECT_EQ(kindOf(name, flatRtfd()), DocumentKind::Rtfd) << name;
    }
}

TEST(DocumentKind, BytesWithHeaderAndObjectsOfPdfAreThatUnderAnyName)
{
    const QByteArray pdf = PdfWriter{{"text"}}.bytes();
    for (const char *name : {"", "paper.pdf", "paper.txt", "paper.docx", "paper"})
        EXPECT_EQ(kindOf(name, pdf), DocumentKind::Pdf) << name;
    EXPECT_EQ(kindOf("paper.pdf", words), DocumentKind::Pdf);
    EXPECT_EQ(kindOf("about.txt", "%PDF-1.7 is how such files begin."), DocumentKind::PlainText);
    EXPECT_EQ(kindOf("", "%PDF-"), DocumentKind::PlainText);
}

TEST(DocumentKind, APackageWithThePartsOfAWordDocumentIsThatUnderAnyName)
{
    for (const char *name :
        {"", "report.docx", "report.txt", "report.html", "report.zip", "report.png", "report"})
        EXPECT_EQ(kindOf(name, wordDocument()), DocumentKind::WordDocument) << name;
}

TEST(DocumentKind, AWordDocumentInOneXmlFileIsNoPlainText)
{
    const QByteArray flat("<?xml version=\"1.0\"?><?mso-application progid=\"Word.Document\"?><pkg:package>");
    for (const char *name : {"", "letter.xml", "letter.doc", "letter"})
        EXPECT_EQ(kindOf(name, flat), DocumentKind::WordDocument) << name;
}

TEST(DocumentKind, AnElectronicBookIsOneUnderAnyName)
{
    const QByteArray book = BookWriter{.pages = {{"a.xhtml", "<p>text"}}}.bytes();
    for (const char *name : {"", "book.epub", "book.zip", "book.txt", "book"})
        EXPECT_EQ(kindOf(name, book), DocumentKind::Epub) << name;
    EXPECT_EQ(kindOf("book.epub", "PK\x03\x04"), DocumentKind::Epub);
}

TEST(DocumentKind, ADamagedDocumentIsOfTheKindThatItsNameSays)
{
    EXPECT_EQ(kindOf("letter.doc", compoundFile()), DocumentKind::WordDocument);
    EXPECT_EQ(kindOf("letter.docx", compoundFile()), DocumentKind::WordDocument);
    EXPECT_EQ(kindOf("letter.docx", wordDocument().first(60)), DocumentKind::WordDocument);
    EXPECT_EQ(kindOf("letter.docx", QByteArray(2000, '\0')), DocumentKind::WordDocument);
    EXPECT_EQ(kindOf("paper.pdf", QByteArray(2000, '\0')), DocumentKind::Pdf);
}

TEST(DocumentKind, OfATextTheMimeTypeOfTheNameDecides)
{
    for (const char *name : {"page.html", "page.htm", "PAGE.HTML", "/home/me/page.xhtml"})
        EXPECT_EQ(kindOf(name, words), DocumentKind::Html) << name;
    EXPECT_EQ(kindOf("report.docx", words), DocumentKind::WordDocument);
    for (const char *name : {"picture.png", "program.exe", "film.ts", "notes.rtf"})
        EXPECT_EQ(kindOf(name, words), DocumentKind::PlainText) << name;
}

TEST(DocumentKind, ANameOfAnotherTypeIsBelievedOverAWebPagesTags)
{
    for (const char *name : {"page.txt", "page.cpp", "page.md", "page.xml"})
        EXPECT_EQ(kindOf(name, webPage), DocumentKind::PlainText) << name;
}

TEST(DocumentKind, WithoutAMimeTypeOfTheNameATextIsPlainOrAWebPage)
{
    for (const char *name : {"", "page", "LICENSE", "/home/me/page.unheard-of"}) {
        EXPECT_EQ(kindOf(name, webPage), DocumentKind::Html) << name;
        EXPECT_EQ(kindOf(name, words), DocumentKind::PlainText) << name;
        EXPECT_EQ(kindOf(name, {}), DocumentKind::PlainText) << name;
    }
}

TEST(DocumentKind, MarkupForWritersIsPlainText)
{
    for (const char *name : {"a.md", "a.markdown", "a.tex", "a.rst", "a.adoc", "a.asciidoc", "a.org",
             "a.fountain", "a.srt", "a.vtt", "a.ass", "a.ssa", "a.sub", "a.text", "a.bib", "a.po", "a.csv",
             "a.svg", "a.json", "a.xml", "a.yaml", "a.m", "a.mts", "a.ts", "a.pl", "a.sh", "a.ps", "a.log"})
        EXPECT_EQ(kindOf(name, words), DocumentKind::PlainText) << name;
}

TEST(DocumentKind, ANameInNoEncodingIsAName)
{
    EXPECT_EQ(kindOf("\xff\xfe.html", words), DocumentKind::Html);
    EXPECT_EQ(kindOf("\xff\xfe.html", picture), std::nullopt);
}

TEST(DocumentKind, ANameEndsAtItsFirstNulByte)
{
    EXPECT_EQ(kindOf(QByteArray("a.html\0.txt", 11), words), DocumentKind::Html);
    EXPECT_EQ(kindOf(QByteArray("paga\x1A\0\0\0.m", 10), compoundFile()), std::nullopt);
    EXPECT_EQ(kindOf(QByteArray("\0Pa\0\0.ps", 8), "PK\x03\x04\x14"), std::nullopt);
}
