// SPDX-License-Identifier: MIT
#include "documents/loading/DocumentLoader.h"

#include "documents/rtfd/RtfdWriter.h"
#include "platform/system/Sanitizers.h"
#include "tests/documents/SampleTexts.h"
#include "tests/documents/docx/PackageWriter.h"
#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using Cause = DocumentError::Cause;

constexpr qint64 mebibyte = 1'048'576;

class DocumentLoader : public QuillbayTest {
protected:
    static QByteArray writeDocument(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromLatin1(name), contents));
    }
};

} // namespace

TEST_F(DocumentLoader, APlainTextBecomesOneRunWithoutAttributes)
{
    const QByteArray path = writeDocument("text.txt", SampleTexts::german.toUtf8());
    EXPECT_EQ(loadDocument(path).value(), AttributedString(SampleTexts::german));
}

TEST_F(DocumentLoader, AnEmptyFileIsAnEmptyText)
{
    EXPECT_TRUE(loadDocument(writeDocument("empty.txt", {})).value().isEmpty());
}

TEST_F(DocumentLoader, AnyEncodingIsRead)
{
    const QByteArray path =
        writeDocument("text.txt", SampleTexts::encodeText(SampleTexts::japanese, "Shift_JIS"));
    EXPECT_EQ(loadDocument(path).value().string(), SampleTexts::japanese);
}

TEST_F(DocumentLoader, AnOpenDescriptorIsReadFromItsPosition)
{
    const int descriptor =
        ::open(writeDocument("text.txt", "first\nsecond\n").constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::lseek(descriptor, 6, SEEK_SET), 6);
    EXPECT_EQ(loadDocument(descriptor).value().string(), QStringLiteral("second\n"));
    ::close(descriptor);
}

TEST_F(DocumentLoader, BytesInMemoryAreADocumentToo)
{
    EXPECT_EQ(readBytes("one two").value(), AttributedString(QStringLiteral("one two")));
    EXPECT_TRUE(readBytes({}).value().isEmpty());
}

TEST_F(DocumentLoader, AFileThatCannotBeReadSaysWhy)
{
    EXPECT_EQ(causeText(loadDocument(QByteArray("/missing")).error()), QStringLiteral("no such file"));
    const auto error = loadDocument(QByteArray("/")).error();
    EXPECT_EQ(error.file, FileError{FileError::Cause::Folder});
}

TEST_F(DocumentLoader, RtfIsReadWithItsStyles)
{
    const AttributedString text = loadDocument(writeDocument("text.rtf", R"({\rtf1 one {\b two}})")).value();
    EXPECT_EQ(text.string(), QStringLiteral("one two"));
    EXPECT_EQ(text.attributesAt(5).font->weight, 700);
    EXPECT_EQ(readBytes(R"({\rtf1 one})").value().string(), QStringLiteral("one"));
}

TEST_F(DocumentLoader, AnRtfdFolderIsReadWithItsAttachments)
{
    writeDocument("text.rtfd/sun.png", "bytes of a picture");
    const QByteArray rtf =
        writeDocument("text.rtfd/TXT.rtf", R"({\rtf1 a{{\NeXTGraphic sun.png \width0\height0}\'ac}b})");
    const AttributedString text = loadDocument(rtf.chopped(QByteArrayView("/TXT.rtf").size())).value();
    EXPECT_EQ(text.string(), QStringLiteral("a\uFFFCb"));
    ASSERT_NE(text.attributesAt(1).attachment, nullptr);
    EXPECT_EQ(text.attributesAt(1).attachment->contents, "bytes of a picture");
}

TEST_F(DocumentLoader, AFileOfFlatRtfdIsRead)
{
    const AttributedString text(QStringLiteral("one two"));
    const QByteArray path = writeDocument("text.rtfd", RTFDFromRange(text, 0, text.length()).value());
    EXPECT_EQ(loadDocument(path).value(), text);
}

TEST_F(DocumentLoader, AWebPageIsRead)
{
    const QByteArray page = "<!DOCTYPE html><p>one<p>two";
    EXPECT_EQ(loadDocument(writeDocument("page.html", page)).value().string(), QStringLiteral("one\n\ntwo"));
    EXPECT_EQ(readBytes(page).value().string(), QStringLiteral("one\n\ntwo"));
}

TEST_F(DocumentLoader, AWordDocumentIsRead)
{
    const QByteArray document = WordPackage{.body = "<w:p><w:r><w:t>one two</w:t></w:r></w:p>"}.bytes();
    EXPECT_EQ(
        loadDocument(writeDocument("report.docx", document)).value().string(), QStringLiteral("one two\n"));
    EXPECT_EQ(readBytes(document).value().string(), QStringLiteral("one two\n"));
}

TEST_F(DocumentLoader, WhatIsNoTextIsRefusedUnlessItIsToBeReadAsText)
{
    const QByteArray zeros(5000, '\0');
    const QByteArray path = writeDocument("minutes.txt", zeros);
    EXPECT_EQ(loadDocument(path).error().cause, Cause::NotText);
    EXPECT_EQ(readBytes(zeros).error().cause, Cause::NotText);
    EXPECT_EQ(loadDocument(path, {.asText = true}).value().length(), 5000);
    const QByteArray rtf = writeDocument("text.rtf", R"({\rtf1 one})");
    EXPECT_EQ(loadDocument(rtf, {.asText = true}).value().string(), QStringLiteral(R"({\rtf1 one})"));
    const QByteArray package = writeDocument("text.rtfd/TXT.rtf", R"({\rtf1 one})").chopped(8);
    EXPECT_EQ(loadDocument(package, {.asText = true}).error().file, FileError{FileError::Cause::Folder});
}

TEST_F(DocumentLoader, ANameOfAWordDocumentWithOtherBytesFailsWithTheCause)
{
    const auto error = loadDocument(writeDocument("report.docx", "Some words.")).error();
    EXPECT_EQ(error, DocumentError(Cause::WrongKind, DocumentKind::WordDocument));
    EXPECT_EQ(causeText(error), QStringLiteral("is not a Word document"));
}

TEST_F(DocumentLoader, AFailureOfAReaderComesWithItsCause)
{
    const QByteArray damaged = QByteArray("rtfd\0\0\0\0\3\0\0\0\xff\xff\xff\xff", 16);
    const auto error = readBytes(damaged).error();
    EXPECT_EQ(error, DocumentError(Cause::Damaged, DocumentKind::Rtfd));
    EXPECT_EQ(causeText(error), QStringLiteral("is a damaged RTFD; save it again"));
}

TEST_F(DocumentLoader, AProcessThatHasMemoryForTheBytesOnlySaysSo)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitized program cannot run under a limit of its address space";
    const QByteArray path = writeDocument("sparse", {});
    ASSERT_EQ(::truncate(path.constData(), 150 * mebibyte), 0);
    const auto loadUnder = [&](qint64 mebibytes) {
        ChildProcess loader(testProgram(QStringLiteral("load_document")));
        loader.afterFork([mebibytes] {
            const auto bytes = static_cast<rlim_t>(mebibytes * mebibyte);
            const rlimit limit{bytes, bytes};
            ::setrlimit(RLIMIT_AS, &limit);
        });
        return loader.run({path, "text"}).output;
    };
    EXPECT_EQ(loadUnder(350), "not enough memory");
    EXPECT_EQ(loadUnder(1000), "157286400 code units");
}
