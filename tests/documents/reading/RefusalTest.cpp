// SPDX-License-Identifier: MIT
// What is no text is refused by its name in English.
#include "documents/reading/KindDetection.h"
#include "documents/reading/TypeDescription.h"
#include "tests/documents/docx/PackageWriter.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <random>

namespace {

/// Why it is refused; empty for a document of a kind.
std::string refusal(const QByteArray &name, const QByteArray &bytes)
{
    const Result<DocumentKind, DocumentError> kind = kindOfDocument(name, bytes);
    return kind ? std::string() : causeText(kind.error()).toStdString();
}

QByteArray archiveOf(const QByteArrayList &names, const QByteArray &declaredType = {})
{
    ZipWriter archive;
    if (!declaredType.isEmpty())
        archive.add({.name = "mimetype", .contents = declaredType});
    for (const QByteArray &name : names)
        archive.add({.name = name, .contents = "contents"});
    return archive.archive();
}

/// A compound file with one stream.
QByteArray compoundFileWith(const char16_t *stream)
{
    QByteArray bytes = QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1") + QByteArray(2040, '\0');
    const QStringView name(stream);
    for (qsizetype i = 0; i < name.size(); ++i)
        bytes[1024 + 128 + 2 * i] = static_cast<char>(name[i].unicode());
    return bytes;
}

QByteArray randomBytes(size_t length)
{
    std::mt19937 generator(17);
    QByteArray bytes;
    for (size_t i = 0; i < length; ++i)
        bytes.append(static_cast<char>(generator()));
    return bytes;
}

constexpr char oldWord[] = "is in a Word format older than 2007; save it as .docx or RTF";
constexpr char spreadsheet[] = "is a spreadsheet; save it as .csv or PDF";
constexpr char presentation[] = "is a presentation; save it as PDF";

} // namespace

TEST(Refusal, DocumentsInXmlAreNotCountedWithTheirMarkup)
{
    const QByteArray declaration = "<?xml version='1.0' encoding='UTF-8'?>\n<!-- made by hand -->\n";
    for (const char *name : {"", "book.fb2", "book.txt", "book.xml"})
        EXPECT_EQ(refusal(name, declaration + "<FictionBook xmlns='x'><body>"),
            "is an e-book in the format FictionBook; convert it to EPUB")
            << name;
    EXPECT_EQ(refusal("letter.abw", declaration + "<!DOCTYPE abiword>\n<abiword version='3'>"),
        "is an AbiWord document; save it as .odt or RTF");
    EXPECT_EQ(refusal("letter.uot", declaration + "<uof:UOF xmlns:uof='x'>"),
        "is a document in the Uniform Office Format; save it as .odt or .docx");
    EXPECT_EQ(refusal("list.xml", declaration + "<list>"), "");
    EXPECT_EQ(refusal("notes.txt", "<FictionBook is the root of such a book."), "");
}

TEST(Refusal, MagicNumbersHoldWhateverTheName)
{
    const QByteArray png("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1", 24);
    for (const char *name : {"", "minutes.png", "minutes.txt", "minutes.docx", "minutes.html", "minutes"})
        EXPECT_EQ(refusal(name, png), "is a PNG image, not a text") << name;
    EXPECT_EQ(refusal("", png.first(8)), "is a PNG image, not a text");
    EXPECT_EQ(refusal("a", QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\3abc", 13)), "is a Gzip archive, not a text");
    EXPECT_EQ(refusal("a.txt",
                  QByteArray("\x7F"
                             "ELF\2\1\1\0\0\0\0\0\0\0\0\0\2\0\x3E\0",
                      20)
                      + QByteArray(44, '\0')),
        "is an executable, not a text");
    EXPECT_EQ(refusal("",
                  QByteArray("\0\0\0\x20"
                             "ftypisom\0\0\2\0isomiso2",
                      24)),
        "is MPEG-4 video, not a text");
}

TEST(Refusal, TheNameTellsTheSpecialCaseOfAMagicNumber)
{
    EXPECT_EQ(refusal("tool.jar", archiveOf({"Main.class"})), "is a Java archive, not a text");
    EXPECT_EQ(refusal("tool.zip", archiveOf({"Main.class"})), "is a Zip archive, not a text");
    EXPECT_EQ(refusal("", archiveOf({})), "is a Zip archive, not a text");
}

TEST(Refusal, UnknownDataIsABinaryFile)
{
    EXPECT_EQ(refusal("", QByteArray(5000, '\0')), "is a binary file, not a text");
    EXPECT_EQ(refusal("minutes.txt", QByteArray(5000, '\0')), "is a binary file, not a text");
    EXPECT_EQ(refusal("", '\1' + randomBytes(5000)), "is a binary file, not a text");
    EXPECT_EQ(refusal("", "#!/bin/sh\nexit\n" + randomBytes(5000)), "is a binary file, not a text");
    EXPECT_EQ(refusal("", "\xFF\xFE" + randomBytes(5000)), "is a binary file, not a text");
}

TEST(Refusal, DocumentsOfOtherProgramsAreRefusedWithTheRemedy)
{
    const QByteArray openDocument("application/vnd.oasis.opendocument.");
    EXPECT_EQ(refusal("a.ods", archiveOf({"content.xml"}, openDocument + "spreadsheet")), spreadsheet);
    EXPECT_EQ(
        refusal("a.ots", archiveOf({"content.xml"}, openDocument + "spreadsheet-template")), spreadsheet);
    EXPECT_EQ(refusal("a.txt", archiveOf({"content.xml"}, openDocument + "presentation")), presentation);
    EXPECT_EQ(refusal("a.odg", archiveOf({"content.xml"}, openDocument + "graphics")),
        "is a drawing; save it as PDF");
    EXPECT_EQ(refusal("a.sxw", archiveOf({"content.xml"}, "application/vnd.sun.xml.writer")),
        "is a document of an older office program; save it as .docx or RTF");
    EXPECT_EQ(refusal("a.docx", archiveOf({"[Content_Types].xml", "xl/workbook.xml"})), spreadsheet);
    EXPECT_EQ(refusal("a.pptx", archiveOf({"[Content_Types].xml", "ppt/presentation.xml"})), presentation);
    EXPECT_EQ(refusal("a.pages", archiveOf({"Index/Document.iwa", "preview.jpg"})),
        "is a .pages document; export it as .docx or RTF");
    EXPECT_EQ(refusal("a.numbers", archiveOf({"Index/Document.iwa"})), spreadsheet);
    EXPECT_EQ(refusal("a.wpd", QByteArray("\xFFWPC\x10\0\0\0\1\x0A\2\1\0\0\0\0", 16)),
        "is a WordPerfect document; save it as .docx or RTF");
    EXPECT_EQ(refusal("a.xls", compoundFileWith(u"Workbook")), spreadsheet);
    EXPECT_EQ(refusal("a.txt", compoundFileWith(u"PowerPoint Document")), presentation);
    EXPECT_EQ(
        refusal("", compoundFileWith(u"unheard-of")), "is an OLE2 compound document storage, not a text");
    EXPECT_EQ(
        refusal("a.fods",
            "<?xml version=\"1.0\"?>\n<!-- a > b --><office:document xmlns:office=\"urn\" office:mimetype=\""
                + openDocument + "spreadsheet\">"),
        spreadsheet);
}

TEST(Refusal, OldWordDocumentsAreOfTheirKind)
{
    EXPECT_EQ(
        kindOfDocument("letter.txt", compoundFileWith(u"WordDocument")).value(), DocumentKind::WordDocument);
    EXPECT_EQ(kindOfDocument("", compoundFileWith(u"EncryptedPackage")).value(), DocumentKind::WordDocument);
    EXPECT_EQ(
        refusal("letter.doc", QByteArray("\xDB\xA5\x2D\0\0\0\7\4", 8) + QByteArray(500, '\0')), oldWord);
    EXPECT_EQ(refusal("letter", QByteArray("\xFE\x37\0\x23\0\0", 6) + QByteArray(500, '\0')), oldWord);
    EXPECT_EQ(refusal("letter.doc", QByteArray("\x31\xBE\0\0\0\xAB", 6) + QByteArray(500, '\0')), oldWord);
}

TEST(Refusal, AnArchiveThatWasCutOffIsListedAsFarAsItGoes)
{
    const QByteArray sheet = archiveOf({"[Content_Types].xml", "xl/workbook.xml", "xl/sheet1.xml"});
    for (qsizetype length = 4; length < sheet.size(); ++length) {
        const std::string reason = refusal("", sheet.first(length));
        EXPECT_TRUE(reason == spreadsheet || reason == "is a Zip archive, not a text") << length << reason;
    }
}

TEST(Refusal, LengthsInAnArchiveAreNotBelieved)
{
    const QByteArray sheet = archiveOf({"[Content_Types].xml", "xl/workbook.xml"}, "application/zip");
    for (qsizetype at = 4; at < sheet.size(); ++at) {
        QByteArray hostile = sheet;
        hostile[at] = '\xFF';
        if (at + 1 < sheet.size())
            hostile[at + 1] = '\xFF';
        EXPECT_NE(refusal("", hostile), "") << at;
    }
}

TEST(Refusal, DescriptionsAreEnglishInEveryLanguage)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    EXPECT_EQ(refusal("", QByteArray("GIF89a\1\0\1\0\0\0\0", 13)), "is a GIF image, not a text");
    QLocale::setDefault(before);
}

TEST(Refusal, DescriptionsHaveTheirArticle)
{
    for (const char *description : {"a PNG image", "an RPM package", "a RAR archive", "an XZ archive",
             "an MNG animation", "an SVG image", "an EPS image", "an AR archive", "an ISO-9660 CD image",
             "a HEIF image", "a WAD file", "an executable", "an object file", "a Universal binary",
             "a UFRAW ID image", "a Tar archive (gzip-compressed)", "WAV audio", "MPEG-4 video",
             "Python bytecode", "translated messages (machine-readable)"}) {
        const QString text = QString::fromLatin1(description);
        const bool isBare = !text.startsWith(u"a ") && !text.startsWith(u"an ");
        EXPECT_EQ(withArticle(isBare ? text : text.section(u' ', 1)), text);
    }
}
