// SPDX-License-Identifier: MIT
// Word documents and PDF files on the command line.
#include "platform/system/Sanitizers.h"
#include "tests/command/CommandTest.h"
#include "tests/documents/docx/PackageWriter.h"
#include "tests/documents/pdf/PdfWriter.h"

#include <QJsonDocument>
#include <QJsonObject>

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

class CountDocumentsTest : public CommandTest {
protected:
    static void expectFailure(const QByteArray &path, const char *cause)
    {
        const ChildProcess::Outcome outcome = count({path});
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_EQ(outcome.output, QByteArray());
        EXPECT_EQ(outcome.errors, "quillbay: " + path + ": " + cause + "\n");
    }
};

QByteArray wordDocument()
{
    return WordPackage{
        .body = "<w:p><w:r><w:t>Two words.</w:t></w:r></w:p><w:p><w:r><w:tab/><w:t>Three.</w:t></w:r></w:p>",
        .figures = "<Words>1000</Words>"}
        .bytes();
}

} // namespace

TEST_F(CountDocumentsTest, AWordDocumentIsCountedByItsText)
{
    const QByteArray name = file("report.docx", wordDocument());
    EXPECT_THAT(tableRows(count({name}).output),
        ElementsAre(QByteArrayList{"3", "15", "19", "2", "2", "2", "2", "1", name}));
    EXPECT_THAT(tableRows(count({}, wordDocument()).output),
        ElementsAre(QByteArrayList{"3", "15", "19", "2", "2", "2", "2", "1", "-"}));
}

TEST_F(CountDocumentsTest, AWordDocumentIsLaidOutInTheSizesOfItsStyles)
{
    const auto linesIn = [](const QByteArray &defaults, const QByteArray &style) {
        const QByteArray text = QByteArray("Eels swim far. ").repeated(40);
        const WordPackage document{
            .body = "<w:p><w:pPr><w:pStyle w:val='S'/></w:pPr><w:r><w:t>" + text + "</w:t></w:r></w:p>",
            .styles = "<w:docDefaults><w:rPrDefault><w:rPr>" + defaults
                + "</w:rPr></w:rPrDefault></w:docDefaults><w:style w:type='paragraph' w:styleId='S'>" + style
                + "</w:style>"};
        const QByteArray json = count({"--json", file("styled.docx", document.bytes())}).output;
        return QJsonDocument::fromJson(json).object().value(QStringLiteral("lines")).toInt();
    };
    const int small = linesIn("<w:sz w:val='20'/>", {});
    EXPECT_GT(small, 3);
    EXPECT_GT(linesIn("<w:sz w:val='40'/>", {}), small);
    EXPECT_GT(linesIn("<w:sz w:val='20'/>", "<w:rPr><w:sz w:val='40'/></w:rPr>"), small);
    EXPECT_GT(linesIn("<w:sz w:val='20'/>", "<w:pPr><w:ind w:left='4000'/></w:pPr>"), small);
    EXPECT_EQ(linesIn("<w:sz w:val='40'/>", "<w:rPr><w:sz w:val='20'/></w:rPr>"), small);
}

TEST_F(CountDocumentsTest, APdfFileIsCountedByItsTextPageByPage)
{
    const QByteArray pdf = PdfWriter{{"Two words.\nThree", " more. End."}}.bytes();
    const QByteArray name = file("paper.pdf", pdf);
    EXPECT_THAT(tableRows(count({name}).output),
        ElementsAre(QByteArrayList{"5", "23", "32", "3", "3", "3", "3", "0", name}));
    EXPECT_THAT(tableRows(count({}, pdf).output),
        ElementsAre(QByteArrayList{"5", "23", "32", "3", "3", "3", "3", "0", "-"}));
}

TEST_F(CountDocumentsTest, APdfFileThatCannotBeCountedIsReportedWithCauseAndRemedy)
{
    expectFailure(file("locked.pdf",
                      PdfWriter{.pages = {"a"}, .encryption = PdfWriter::Encryption::WithPassword}.bytes()),
        "is encrypted; save it without a password");
    expectFailure(file("cut.pdf", PdfWriter{{"a"}}.bytes().first(100)),
        "is a damaged PDF file; create it again with the program that wrote it");
    expectFailure(file("scan.pdf", PdfWriter{{"", ""}}.bytes()),
        "has no text on its pages; run text recognition on it first");
    expectFailure(file("words.pdf", "Some words."), "is not a PDF file");
}

TEST_F(CountDocumentsTest, AWordDocumentThatCannotBeCountedIsReportedWithCauseAndRemedy)
{
    QByteArray old("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    old.resize(1024, '\0');
    expectFailure(file("old.docx", old), "is in a Word format older than 2007; save it as .docx or RTF");
    expectFailure(file("old.doc", old), "is in a Word format older than 2007; save it as .docx or RTF");
    expectFailure(file("cut.docx", wordDocument().chopped(30)),
        "is a damaged Word document; open it in a word processor and save it again");
    expectFailure(file("words.docx", "Some words."), "is not a Word document");
}

TEST_F(CountDocumentsTest, WhatIsNoTextIsReportedAndTheOthersAreCounted)
{
    const QByteArray picture = file("minutes.png", QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1", 20));
    const QByteArray archive = file("notes.txt", QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\3words", 15));
    const QByteArray sound = file("sound.txt", "Two words.");
    const QByteArray disguised = file("report.txt", wordDocument());
    const ChildProcess::Outcome outcome = count({picture, sound, archive, disguised});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors,
        "quillbay: " + picture + ": is a PNG image, not a text\nquillbay: " + archive
            + ": is a Gzip archive, not a text\n");
    const QList<QByteArrayList> rows = tableRows(outcome.output);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0][0] + ' ' + rows[1][0] + ' ' + rows[2][0], "2 3 5");
    EXPECT_EQ(count({}, "\x1F\x8B\x08" + QByteArray(20, '\0')).errors,
        "quillbay: -: is a Gzip archive, not a text\n");
}

TEST_F(CountDocumentsTest, AnyFileCanBeCountedAsText)
{
    const QByteArray page = file("page.html", "<p>one</p>");
    const QByteArray zeros = file("zeros", QByteArray(9, '\0'));
    const ChildProcess::Outcome outcome = count({"--as-text", page, zeros});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_THAT(tableRows(outcome.output)[0][2], "10");
    EXPECT_THAT(tableRows(outcome.output)[1][2], "9");
}

TEST_F(CountDocumentsTest, ReadersAddNoLibrariesToTheCommand)
{
    // The dynamic linker's list, which includes indirect dependencies.
    const auto librariesOf = [](const char *name) {
        ChildProcess program(productProgram(QString::fromLatin1(name)));
        return program.withVariable("LD_TRACE_LOADED_OBJECTS", "1").run({}).output;
    };
    const QByteArray ofTheCommand = librariesOf("quillbay");
    EXPECT_TRUE(ofTheCommand.contains("libQt6Core"));
    for (const char *library : {"libQt6Pdf", "libQt6Gui", "libQt6Network", "libQt6Widgets"})
        EXPECT_FALSE(ofTheCommand.contains(library)) << library;
    EXPECT_TRUE(librariesOf("quillbay-document-reader").contains("libQt6Pdf"));
}

TEST_F(CountDocumentsTest, AHostileFileLeavesTheOthersCounted)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitized program cannot run under a limit of its memory";
    const PdfWriter bomb{.pages = {QByteArray("a\n").repeated(10'000'000)}, .isCompressed = true};
    const QByteArray hostile = file("bomb.pdf", bomb.bytes());
    const QByteArray sound = file("sound.txt", "Two words.");
    const ChildProcess::Outcome outcome = count({"--tsv", hostile, sound});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors,
        "quillbay: " + hostile
            + ": takes too much time or memory to read; print it to a new PDF file first\n");
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("2\t9\t10\t"));
}
