// SPDX-License-Identifier: MIT
#include "documents/loading/DocumentLoader.h"

#include "tests/documents/docx/PackageWriter.h"
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace {

using Cause = DocumentError::Cause;

class PdfLoading : public QuillbayTest {
protected:
    static QByteArray writeDocument(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromLatin1(name), contents));
    }

    static Cause causeOf(const Result<AttributedString, DocumentError> &text)
    {
        EXPECT_FALSE(text);
        return text ? Cause::NotEnoughMemory : text.error().cause;
    }
};

const PdfWriter file{{"one two", "three"}};

template <typename Document>
Result<AttributedString, DocumentError> loadDocumentOrPdf(const Document &document)
{
    return loadDocument(document, {.readsPdf = true});
}

} // namespace

TEST_F(PdfLoading, APdfFileIsReadUnderAnyName)
{
    const AttributedString text(QStringLiteral("one two\r\nthree\r\n"));
    EXPECT_EQ(loadDocumentOrPdf(writeDocument("paper.pdf", file.bytes())).value(), text);
    EXPECT_EQ(loadDocumentOrPdf(writeDocument("paper", file.bytes())).value(), text);
}

TEST_F(PdfLoading, AnOpenDescriptorIsReadFromItsPosition)
{
    const int descriptor =
        ::open(writeDocument("paper", "x" + file.bytes()).constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::lseek(descriptor, 1, SEEK_SET), 1);
    EXPECT_EQ(loadDocumentOrPdf(descriptor).value().string(), QStringLiteral("one two\r\nthree\r\n"));
    ::close(descriptor);
}

TEST_F(PdfLoading, OtherDocumentsAreReadWithTheOptionToo)
{
    const QByteArray document = WordPackage{.body = "<w:p><w:r><w:t>word</w:t></w:r></w:p>"}.bytes();
    for (const QByteArray &path : {writeDocument("a.txt", "plain"), writeDocument("b.docx", document),
             writeDocument("c.html", "<p>page"), writeDocument("d.rtf", "{\\rtf1 rich}")})
        EXPECT_EQ(loadDocumentOrPdf(path).value(), loadDocument(path).value()) << path.constData();
    writeDocument("e.rtfd/TXT.rtf", "{\\rtf1 folder}");
    const QByteArray folder = QFile::encodeName(world().root()) + "/files/e.rtfd";
    EXPECT_EQ(loadDocumentOrPdf(folder).value(), loadDocument(folder).value());
    EXPECT_EQ(causeText(loadDocumentOrPdf(QByteArray("/missing")).error()), QStringLiteral("no such file"));
}

TEST_F(PdfLoading, AFileWithoutTextIsAnError)
{
    EXPECT_EQ(
        causeOf(loadDocumentOrPdf(writeDocument("scan.pdf", PdfWriter{{"", ""}}.bytes()))), Cause::NoText);
    EXPECT_EQ(
        causeOf(loadDocumentOrPdf(writeDocument("blank.pdf", PdfWriter{{" "}}.bytes()))), Cause::NoText);
}

TEST_F(PdfLoading, AFileWhoseFontsHaveNoMapToCharactersIsAnError)
{
    const PdfWriter unmapped{
        .pages = {R"(BT /F1 12 Tf 72 720 Td (\001\002\003\004 \005\006\007!"\004 \001#$) Tj ET)"},
        .arePagesDrawn = true};
    const auto error = loadDocumentOrPdf(writeDocument("unmapped.pdf", unmapped.bytes()));
    EXPECT_EQ(causeOf(error), Cause::UnmappedText);
    EXPECT_TRUE(causeText(error.error()).startsWith(QStringLiteral("has unreadable text")));
}

TEST_F(PdfLoading, AFileWithoutPagesIsNotDamaged)
{
    const auto error = loadDocumentOrPdf(writeDocument("empty.pdf", PdfWriter{}.bytes()));
    EXPECT_EQ(causeOf(error), Cause::NoPages);
    EXPECT_FALSE(causeText(error.error()).contains(QStringLiteral("damaged")));
}

TEST_F(PdfLoading, AFileThatCannotBeReadSaysWhy)
{
    EXPECT_EQ(causeOf(loadDocumentOrPdf(writeDocument("words.pdf", "Some words."))), Cause::WrongKind);
    EXPECT_EQ(causeOf(loadDocumentOrPdf(writeDocument("cut.pdf", file.bytes().first(100)))), Cause::Damaged);
    const PdfWriter locked{.pages = {"text"}, .encryption = PdfWriter::Encryption::WithPassword};
    const auto error = loadDocumentOrPdf(writeDocument("locked.pdf", locked.bytes()));
    EXPECT_EQ(causeOf(error), Cause::Encrypted);
    EXPECT_EQ(causeText(error.error()), QStringLiteral("is encrypted; save it without a password"));
}

TEST_F(PdfLoading, APdfFileIsRefusedWithoutTheOption)
{
    EXPECT_EQ(causeOf(loadDocument(writeDocument("paper.pdf", file.bytes()))), Cause::PdfNotSupported);
    EXPECT_EQ(causeOf(loadDocument(writeDocument("notes.txt", file.bytes()))), Cause::PdfNotSupported);
    EXPECT_EQ(causeOf(readBytes(file.bytes())), Cause::PdfNotSupported);
}
