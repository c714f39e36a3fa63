// SPDX-License-Identifier: MIT
#include "platform/styled_text/loading/DocumentLoader.h"

#include "tests/harness/QuillbayTest.h"
#include "tests/platform/styled_text/SampleTexts.h"

#include <QFile>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr qint64 mebibyte = 1'048'576;

class DocumentLoader : public QuillbayTest {
protected:
    static QByteArray written(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromLatin1(name), contents));
    }
};

} // namespace

TEST_F(DocumentLoader, APlainTextBecomesOneRunWithoutAttributes)
{
    const QByteArray path = written("text.txt", SampleTexts::german.toUtf8());
    EXPECT_EQ(loadDocument(path).value(), AttributedString(SampleTexts::german));
}

TEST_F(DocumentLoader, AnEmptyFileIsAnEmptyText)
{
    EXPECT_TRUE(loadDocument(written("empty.txt", {})).value().isEmpty());
}

TEST_F(DocumentLoader, AnyEncodingIsRead)
{
    const QByteArray path = written("text.txt", SampleTexts::encoded(SampleTexts::japanese, "Shift_JIS"));
    EXPECT_EQ(loadDocument(path).value().string(), SampleTexts::japanese);
}

TEST_F(DocumentLoader, AnOpenDescriptorIsReadFromItsPosition)
{
    const int descriptor = ::open(written("text.txt", "first\nsecond\n").constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::lseek(descriptor, 6, SEEK_SET), 6);
    EXPECT_EQ(loadDocument(descriptor).value().string(), QStringLiteral("second\n"));
    ::close(descriptor);
}

TEST_F(DocumentLoader, BytesInMemoryAreADocumentToo)
{
    EXPECT_EQ(documentFromBytes("one two").value(), AttributedString(QStringLiteral("one two")));
    EXPECT_TRUE(documentFromBytes({}).value().isEmpty());
}

TEST_F(DocumentLoader, AFileThatCannotBeReadSaysWhy)
{
    EXPECT_EQ(causeText(loadDocument(QByteArray("/missing")).error()), QStringLiteral("no such file"));
    const auto error = loadDocument(QByteArray("/")).error();
    EXPECT_EQ(std::get<FileError>(error), FileError{FileError::Cause::Folder});
}

TEST_F(DocumentLoader, AProcessThatHasMemoryForTheBytesOnlySaysSo)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "a sanitized program cannot run under a limit of its address space";
#endif
    const QByteArray path = written("sparse", {});
    ASSERT_EQ(::truncate(path.constData(), 150 * mebibyte), 0);
    const auto loadUnder = [&](qint64 mebibytes) {
        ChildProcess loader(testProgram(QStringLiteral("load_document")));
        loader.afterFork([mebibytes] {
            const auto bytes = static_cast<rlim_t>(mebibytes * mebibyte);
            const rlimit limit{bytes, bytes};
            ::setrlimit(RLIMIT_AS, &limit);
        });
        return loader.run({path}).output;
    };
    EXPECT_EQ(loadUnder(350), "not enough memory");
    EXPECT_EQ(loadUnder(1000), "157286400 code units");
}
