// SPDX-License-Identifier: MIT
// Compares books that other programs write with the text that they were given.
#include "documents/epub/EpubReader.h"
#include "tests/documents/KindOf.h"
#include "tests/documents/LibreOffice.h"
#include "tests/harness/QuillbayTest.h"

#include <QProcess>
#include <QStandardPaths>

using ::testing::ElementsAre;

namespace {

class EpubFromPrograms : public QuillbayTest {
protected:
    /// The lines of a book that contain text; paragraphs of a web page have empty lines between them.
    static QStringList linesOf(const QByteArray &book)
    {
        EXPECT_TRUE(isOfKind(DocumentKind::Epub, book));
        const Result<AttributedString, DocumentError> text = readEpub(book);
        return text ? text.value().string().split(u'\n', Qt::SkipEmptyParts)
                    : QStringList(causeText(text.error()));
    }
};

} // namespace

TEST_F(EpubFromPrograms, ABookByLibreOfficeHasTheLinesOfItsTextExport)
{
    SKIP_WITHOUT_PACKAGE(LibreOffice::isInstalled(), "libreoffice-writer or libreoffice-writer-nogui");
    const LibreOffice::Document document{
        "<text:h text:outline-level='1'>A heading</text:h>"
        "<text:p>Plain <text:span>text</text:span> with <text:a xlink:href='http://x.y/'>a "
        "link</text:a>.</text:p>"
        "<text:p>Zeichen: \xC3\xA4\xC3\xB6\xC3\xBC \xE9\x9B\xA8 \xF0\x9F\x90\x9F &amp; "
        "nb\xC2\xA0space</text:p>"
        "<text:h text:outline-level='1'>Another</text:h>"
        "<text:p>\xD7\xA2\xD7\x91\xD7\xA8\xD7\x99\xD7\xAA and \xD8\xB9\xD8\xB1\xD8\xA8\xD9\x8A</text:p>"
        "<table:table table:name='T'><table:table-column table:number-columns-repeated='2'/>"
        "<table:table-row><table:table-cell><text:p>a1</text:p></table:table-cell><table:table-cell>"
        "<text:p>b1</text:p></table:table-cell></table:table-row></table:table><text:p>The end.</text:p>"};
    const QString folder = world().root();
    const QByteArray book = LibreOffice::convert(document, QStringLiteral("epub"), folder);
    const QStringList exported = LibreOffice::textExport(document, folder).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(exported.size(), 8);
    EXPECT_EQ(linesOf(book), exported);
}

TEST_F(EpubFromPrograms, ABookByPandocHasTheTextOfItsSource)
{
    const QString pandoc = QStandardPaths::findExecutable(QStringLiteral("pandoc"));
    if (pandoc.isEmpty())
        GTEST_SKIP() << "the package pandoc is large, and not needed";
    const QString source = writeFile(QStringLiteral("book.md"),
        "---\ntitle: The book\nlang: en\n---\n# One\n\nFirst *words* & a note.[^1]\n\n- an item\n- "
        "another\n\n"
        "[^1]: Its text.\n\n# Two\n\n| a | b |\n|---|---|\n| c1 | d1 |\n\nA formula $a$.\n");
    for (const char *format : {"epub2", "epub3"}) {
        const QString book = world().root() + u'/' + QString::fromLatin1(format);
        ASSERT_EQ(
            QProcess::execute(pandoc,
                {source, QStringLiteral("-t"), QString::fromLatin1(format), QStringLiteral("-o"), book}),
            0);
        QStringList lines = linesOf(readFile(book));
        // The mark of a note is text of the page, and so is the arrow that leads back from it.
        lines.replaceInStrings(QStringLiteral("\u21A9\uFE0E"), QString());
        EXPECT_THAT(lines,
            ElementsAre(QStringLiteral("The book"), QStringLiteral("One"),
                QStringLiteral("First words & a note.1"), QStringLiteral("an item"),
                QStringLiteral("another"), QStringLiteral("Its text."), QStringLiteral("Two"),
                QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c1"), QStringLiteral("d1"),
                QStringLiteral("A formula a.")))
            << format;
    }
}
