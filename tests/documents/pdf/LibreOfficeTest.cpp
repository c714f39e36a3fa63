// SPDX-License-Identifier: MIT
// PDF files of LibreOffice, compared with its own text export.
#include "tests/documents/LibreOffice.h"
#include "tests/documents/pdf/ReadPdf.h"
#include "tests/harness/QuillbayTest.h"

class PdfFromLibreOffice : public QuillbayTest { };

TEST_F(PdfFromLibreOffice, HasTheWordsOfItsTextExport)
{
    SKIP_WITHOUT_PACKAGE(LibreOffice::isInstalled(), "libreoffice-writer or libreoffice-writer-nogui");
    const LibreOffice::Document document{
        .body = "<text:p>One paragraph of some words, \xC3\xA4\xC3\xB6\xC3\xBC and "
                "\xE2\x80\x9Cquotes\xE2\x80\x9D, long "
                "enough to be set in more than a single line of a page of paper as they are sold in "
                "shops.</text:p>"
                "<text:p>A field of 25 m<text:span text:style-name='S'>2</text:span>, 10"
                "<text:span text:style-name='S'>6</text:span> grains.</text:p>"
                "<text:p>Between<text:tab/>tabs<text:tab/>1</text:p>"
                "<text:p>Another one.</text:p><text:p text:style-name='B'>And one more page.</text:p>",
        .styles = "<style:style style:name='B' style:family='paragraph'>"
                  "<style:paragraph-properties fo:break-before='page'/></style:style>"
                  "<style:style style:name='S' style:family='text'>"
                  "<style:text-properties style:text-position='super 58%'/></style:style>"};
    const QString expected = LibreOffice::textExport(document, world().root()).simplified();
    ASSERT_TRUE(expected.startsWith(QStringLiteral("One paragraph"))) << qPrintable(expected);
    const auto text = readPdf(LibreOffice::convert(document, QStringLiteral("pdf"), world().root()));
    ASSERT_TRUE(text.hasValue()) << qPrintable(causeText(text.error()));
    EXPECT_EQ(text.value().string().simplified(), expected);
}
