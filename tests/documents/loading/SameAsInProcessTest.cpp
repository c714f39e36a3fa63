// SPDX-License-Identifier: MIT
// A document has the same text, read in the program and in this process.
#include "documents/loading/SandboxedReader.h"
#include "documents/rtfd/RtfdWriter.h"
#include "tests/documents/ForeignDocuments.h"
#include "tests/documents/docx/PackageWriter.h"
#include "tests/documents/rtf/writer/RandomText.h"
#include "tests/documents/rtf/writer/TextDifference.h"
#include "tests/harness/QuillbayTest.h"

namespace {

class SameAsInProcess : public QuillbayTest {
protected:
    static void expectSame(DocumentKind kind, const QByteArray &bytes, const QString &name = {})
    {
        const auto here = readDocument(kind, bytes);
        const auto there = SandboxedReader::shared().read(kind, bytes);
        ASSERT_EQ(here.hasValue(), there.hasValue()) << qPrintable(name);
        if (here)
            EXPECT_EQ(differenceBetween(here.value(), there.value()), QString()) << qPrintable(name);
        else
            EXPECT_EQ(here.error(), there.error()) << qPrintable(name);
    }
};

} // namespace

TEST_F(SameAsInProcess, ADocumentOfEveryKindReadsTheSame)
{
    expectSame(DocumentKind::PlainText, "some text, \xC3\xA9t\xC3\xA9");
    expectSame(
        DocumentKind::Rtf, R"({\rtf1\ansi{\fonttbl\f0 Times;}\f0\fs28\li720\tx360\qj some {\b text}\par})");
    expectSame(
        DocumentKind::Html, "<h1>A title</h1><p lang=de>Ein <b>Absatz</b><table><tr><td>1<td>2</table>");
    expectSame(DocumentKind::WordDocument,
        WordPackage{.body = "<w:p><w:r><w:rPr><w:b/></w:rPr><w:t>word</w:t></w:r></w:p>"}.bytes());
    expectSame(DocumentKind::WordDocument, WordPackage{.body = "<w:p"}.bytes());
    expectSame(DocumentKind::Rtfd, "rtfd");
}

TEST_F(SameAsInProcess, TextsWithAttachmentsReadTheSame)
{
    for (unsigned seed = 1; seed < 30; ++seed) {
        const AttributedString text = RandomText(seed).text(200, 40);
        expectSame(DocumentKind::Rtfd, RTFDFromRange(text, 0, text.length()).value(), QString::number(seed));
    }
}

TEST_F(SameAsInProcess, ForeignDocumentsReadTheSame)
{
    if (corporaFolder().isEmpty())
        GTEST_SKIP() << "QUILLBAY_CORPORA names no folder with documents";
    const int count = forEachForeignDocument([](DocumentKind kind, const QByteArray &bytes,
                                                 const QString &path) { expectSame(kind, bytes, path); });
    EXPECT_GT(count, 10);
}
