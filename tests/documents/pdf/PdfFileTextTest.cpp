// SPDX-License-Identifier: MIT
#include "documents/loading/PdfFileText.h"

#include "tests/documents/pdf/PdfWriter.h"
#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <sys/stat.h>

namespace {

using QBYExtension::attributedStringFromPDFFileURL;

class PdfFileText : public QuillbayTest {
protected:
    static QUrl writePdf(const QByteArray &bytes)
    {
        return QUrl::fromLocalFile(writeFile(QStringLiteral("file.pdf"), bytes));
    }

    static void expectNoPages(const QUrl &url)
    {
        const RecordingLogSink log;
        EXPECT_FALSE(attributedStringFromPDFFileURL(url).has_value()) << qPrintable(url.toString());
        EXPECT_EQ(log.messages(LogLevel::Error), QStringList{QStringLiteral("No pages in the pdf")});
        EXPECT_EQ(log.messages().size(), 1);
    }
};

} // namespace

TEST_F(PdfFileText, IsThatOfItsPagesWithoutSeparators)
{
    const RecordingLogSink log;
    const auto text =
        attributedStringFromPDFFileURL(writePdf(PdfWriter{{"one\ntwo", "three", "four"}}.bytes()));
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(*text, AttributedString(QStringLiteral("one\r\ntwo\r\nthree\r\nfour\r\n")));
    EXPECT_TRUE(log.messages().isEmpty());
}

TEST_F(PdfFileText, IsEmptyWhereThePagesAreEmpty)
{
    const auto text = attributedStringFromPDFFileURL(writePdf(PdfWriter{{"", ""}}.bytes()));
    ASSERT_TRUE(text.has_value());
    EXPECT_TRUE(text->isEmpty());
}

TEST_F(PdfFileText, HasItsPagesInOrderHoweverManyThereAre)
{
    PdfWriter book;
    QString expected;
    for (int page = 0; page < 10'000; ++page) {
        book.pages.append("page " + QByteArray::number(page) + ".");
        expected += QStringLiteral("page %1.\r\n").arg(page);
    }
    const auto text = attributedStringFromPDFFileURL(writePdf(book.bytes()));
    ASSERT_TRUE(text.has_value());
    EXPECT_TRUE(text->string() == expected);
}

TEST_F(PdfFileText, IsAbsentWithoutPages)
{
    expectNoPages(writePdf(PdfWriter{}.bytes()));
}

TEST_F(PdfFileText, IsAbsentWhereTheFileCannotBeRead)
{
    expectNoPages(QUrl::fromLocalFile(world().root() + QStringLiteral("/missing.pdf")));
    expectNoPages(QUrl::fromLocalFile(world().root()));
    expectNoPages(QUrl(QStringLiteral("http://localhost/file.pdf")));
    expectNoPages(QUrl());
    const QString pipe = world().root() + QStringLiteral("/pipe.pdf");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    expectNoPages(QUrl::fromLocalFile(pipe));
}

TEST_F(PdfFileText, IsAbsentWhereTheFileIsEncrypted)
{
    expectNoPages(
        writePdf(PdfWriter{.pages = {"secret"}, .encryption = PdfWriter::Encryption::WithPassword}.bytes()));
}

TEST_F(PdfFileText, IsAbsentWhereTheFileIsNotPdf)
{
    expectNoPages(writePdf({}));
    expectNoPages(writePdf("{\\rtf1 text}"));
    expectNoPages(writePdf("%PDF-1.4\n"));
}

TEST_F(PdfFileText, OfADamagedFileIsWhatIsLeftOrAbsent)
{
    const RecordingLogSink log;
    const QByteArray whole = PdfWriter{{"some text"}}.bytes();
    for (qsizetype length = 0; length < whole.size(); length += 7) {
        const auto text = attributedStringFromPDFFileURL(writePdf(whole.first(length)));
        EXPECT_TRUE(!text || QStringLiteral("some text\r\n").startsWith(text->string())) << length;
    }
    QByteArray withoutTable = whole;
    withoutTable.replace("xref", "xxxx");
    EXPECT_EQ(
        attributedStringFromPDFFileURL(writePdf(withoutTable))->string(), QStringLiteral("some text\r\n"));
}

TEST_F(PdfFileText, NeedsNoApplicationAndNoScreen)
{
    ChildProcess program(testProgram(QStringLiteral("print_pdf_text")));
    const QString path = writeFile(QStringLiteral("file.pdf"), PdfWriter{{"no screen"}}.bytes());
    const ChildProcess::Outcome outcome = program.run({QFile::encodeName(path)});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "no screen\r\n");
}
