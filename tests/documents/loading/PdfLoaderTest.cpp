// SPDX-License-Identifier: MIT
#include "documents/loading/PdfLoader.h"

#include "tests/documents/docx/PackageWriter.h"
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace {

using Cause = DocumentError::Cause;

class PdfLoader : public QuillbayTest {
protected:
    static QByteArray written(const char *name, const QByteArray &contents)
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

} // namespace

TEST_F(PdfLoader, APdfFileIsReadUnderAnyName)
{
    const AttributedString text(QStringLiteral("one two\r\nthree\r\n"));
    EXPECT_EQ(loadDocumentOrPdf(written("paper.pdf", file.bytes())).value(), text);
    EXPECT_EQ(loadDocumentOrPdf(written("paper", file.bytes())).value(), text);
}

TEST_F(PdfLoader, AnOpenDescriptorIsReadFromItsPosition)
{
    const int descriptor = ::open(written("paper", "x" + file.bytes()).constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::lseek(descriptor, 1, SEEK_SET), 1);
    EXPECT_EQ(loadDocumentOrPdf(descriptor).value().string(), QStringLiteral("one two\r\nthree\r\n"));
    ::close(descriptor);
}

TEST_F(PdfLoader, EveryOtherDocumentIsReadAsEver)
{
    const QByteArray document = WordPackage{.body = "<w:p><w:r><w:t>word</w:t></w:r></w:p>"}.bytes();
    for (const QByteArray &path : {written("a.txt", "plain"), written("b.docx", document),
             written("c.html", "<p>page"), written("d.rtf", "{\\rtf1 rich}")})
        EXPECT_EQ(loadDocumentOrPdf(path).value(), loadDocument(path).value()) << path.constData();
    written("e.rtfd/TXT.rtf", "{\\rtf1 folder}");
    const QByteArray folder = QFile::encodeName(world().root()) + "/files/e.rtfd";
    EXPECT_EQ(loadDocumentOrPdf(folder).value(), loadDocument(folder).value());
    EXPECT_EQ(causeText(loadDocumentOrPdf(QByteArray("/missing")).error()), QStringLiteral("no such file"));
}

TEST_F(PdfLoader, AFileWithoutTextIsNoEmptyDocument)
{
    EXPECT_EQ(causeOf(loadDocumentOrPdf(written("scan.pdf", PdfWriter{{"", ""}}.bytes()))), Cause::NoText);
    EXPECT_EQ(causeOf(loadDocumentOrPdf(written("blank.pdf", PdfWriter{{" "}}.bytes()))), Cause::NoText);
}

TEST_F(PdfLoader, AFileWhoseFontsHaveNoMapToCharactersIsNoDocumentOfTheirGlyphs)
{
    const PdfWriter unmapped{
        .pages = {R"(BT /F1 12 Tf 72 720 Td (\001\002\003\004 \005\006\007!"\004 \001#$) Tj ET)"},
        .arePagesDrawn = true};
    const auto error = loadDocumentOrPdf(written("unmapped.pdf", unmapped.bytes()));
    EXPECT_EQ(causeOf(error), Cause::UnmappedText);
    EXPECT_TRUE(causeText(error.error()).startsWith(QStringLiteral("has unreadable text")));
}

TEST_F(PdfLoader, AFileWithoutPagesIsNotDamaged)
{
    const auto error = loadDocumentOrPdf(written("empty.pdf", PdfWriter{}.bytes()));
    EXPECT_EQ(causeOf(error), Cause::NoPages);
    EXPECT_FALSE(causeText(error.error()).contains(QStringLiteral("damaged")));
}

TEST_F(PdfLoader, AFileThatCannotBeReadSaysWhy)
{
    EXPECT_EQ(causeOf(loadDocumentOrPdf(written("words.pdf", "Some words."))), Cause::WrongKind);
    EXPECT_EQ(causeOf(loadDocumentOrPdf(written("cut.pdf", file.bytes().first(100)))), Cause::Damaged);
    const PdfWriter locked{.pages = {"text"}, .encryption = PdfWriter::Encryption::WithPassword};
    const auto error = loadDocumentOrPdf(written("locked.pdf", locked.bytes()));
    EXPECT_EQ(causeOf(error), Cause::Encrypted);
    EXPECT_EQ(causeText(error.error()), QStringLiteral("is encrypted; save it without a password"));
}

TEST_F(PdfLoader, TheLoaderOfLongLivedProgramsReadsNoPdf)
{
    EXPECT_EQ(causeOf(loadDocument(written("paper.pdf", file.bytes()))), Cause::PdfNotSupported);
    EXPECT_EQ(causeOf(loadDocument(written("notes.txt", file.bytes()))), Cause::PdfNotSupported);
    EXPECT_EQ(causeOf(documentFromBytes(file.bytes())), Cause::PdfNotSupported);
}
