// SPDX-License-Identifier: MIT
// Documents of other projects; their names, or a second document, tell the expected text.
#include "tests/documents/docx/DocxTest.h"

#include <QDirIterator>
#include <QFile>

namespace {

class DocxCorpora : public QuillbayTest {
protected:
    void SetUp() override
    {
        if (corporaFolder().isEmpty())
            GTEST_SKIP() << "QUILLBAY_CORPORA names no folder";
    }

    static QStringList documentsBelow(const QString &folder)
    {
        QStringList paths;
        QDirIterator files(corporaFolder() + u'/' + folder, {QStringLiteral("*.docx")}, QDir::Files,
            QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next());
        return paths;
    }

    static QString textOfFile(const QString &path)
    {
        const Result<AttributedString, DocumentError> text = readWordDocument(readFile(path));
        EXPECT_TRUE(text.hasValue()) << qPrintable(path);
        return text ? text.value().string() : QStringLiteral("(unreadable)");
    }
};

} // namespace

TEST_F(DocxCorpora, DocumentsWithRevisionsReadLikeAcceptedOnes)
{
    const QString accepted = QStringLiteral("-Accepted.docx");
    int pairs = 0;
    for (const QString &path : documentsBelow(QStringLiteral("revision-processing"))) {
        if (!path.endsWith(accepted))
            continue;
        const QString revised = path.chopped(accepted.size()) + QStringLiteral(".docx");
        EXPECT_EQ(textOfFile(revised), textOfFile(path)) << qPrintable(revised);
        ++pairs;
    }
    EXPECT_EQ(pairs, 27);
}

TEST_F(DocxCorpora, EveryDocumentOpens)
{
    const QStringList paths =
        documentsBelow(QStringLiteral("python-docx")) + documentsBelow(QStringLiteral("mammoth"));
    EXPECT_GT(paths.size(), 50);
    for (const QString &path : paths)
        textOfFile(path);
}

TEST_F(DocxCorpora, OfMammothContainWhatTheirNamesSay)
{
    const auto mammoth = [](const char *name) {
        return textOfFile(corporaFolder() + QStringLiteral("/mammoth/test/test-data/")
            + QString::fromLatin1(name) + QStringLiteral(".docx"));
    };
    EXPECT_EQ(mammoth("comments"), QStringLiteral("Ouch.\n"));
    EXPECT_EQ(mammoth("embedded-style-map"), QStringLiteral("Walking on imported air\n"));
    EXPECT_EQ(mammoth("empty"), QStringLiteral("\n"));
    EXPECT_EQ(mammoth("endnotes").count(u'\n'), 3);
    EXPECT_EQ(mammoth("external-picture"), QStringLiteral("\n"));
    EXPECT_EQ(mammoth("footnote-hyperlink"), QStringLiteral("\n Example\n"));
    EXPECT_EQ(mammoth("footnotes"), QStringLiteral("Ouch.\n A tachyon walks into a bar.\n Fin.\n"));
    EXPECT_EQ(mammoth("simple-list"), QStringLiteral("Apple\nBanana\n"));
    EXPECT_EQ(mammoth("single-paragraph"), QStringLiteral("Walking on imported air\n"));
    EXPECT_EQ(mammoth("strict-format"), QStringLiteral("Test\n"));
    EXPECT_EQ(mammoth("strikethrough"), QStringLiteral("Today's Special: Salmon Sold out\n"));
    EXPECT_EQ(
        mammoth("tables"), QStringLiteral("Above\nTop left\nTop right\nBottom left\nBottom right\nBelow\n"));
    EXPECT_EQ(mammoth("text-box"), QStringLiteral("\nDatum plane\n"));
    EXPECT_EQ(mammoth("tiny-picture"), QStringLiteral("\n"));
    EXPECT_EQ(mammoth("tiny-picture-target-base-relative"), QStringLiteral("\n"));
    EXPECT_EQ(mammoth("underline"), QStringLiteral("The Sunset Tree\n"));
    EXPECT_EQ(mammoth("utf8-bom"), QStringLiteral("This XML has a byte order mark.\n"));
}

TEST_F(DocxCorpora, OfPythonDocxContainWhatTheirNamesSay)
{
    const auto feature = [](const char *name) {
        return textOfFile(corporaFolder() + QStringLiteral("/python-docx/features/steps/test_files/")
            + QString::fromLatin1(name) + QStringLiteral(".docx"));
    };
    EXPECT_EQ(feature("doc-default"), QStringLiteral("\n"));
    EXPECT_EQ(feature("doc-word-default-blank"), QStringLiteral("\n"));
    EXPECT_EQ(feature("hdr-header-footer").count(QStringLiteral("eader")), 2) << "a header counts";
    EXPECT_FALSE(feature("comments-rich-para").contains(QStringLiteral("comment")));
    EXPECT_EQ(feature("num-having-numbering-part"), QStringLiteral("Paragraph having List Number style.\n"));
    EXPECT_EQ(feature("par-hyperlinks"),
        QStringLiteral("No hyperlinks\nOne awesome hyperlink.\n"
                       "Three hyperlinks: the first one here, the second one, and the third.\n"));
    EXPECT_EQ(feature("par-known-paragraphs"), QStringLiteral("Heading Paragraph\nNormal paragraph\n"));
    EXPECT_FALSE(feature("par-rendered-page-breaks").contains(u'\f'));
    EXPECT_EQ(feature("doc-add-section"), QStringLiteral("First page\n\f\nSecond page\n\f\nThird page\n"));
    EXPECT_EQ(feature("tab-stops"),
        QStringLiteral("Default\t\ttab\tstops\nAssigned\tLeft\tcenter\tright\n\t-0.5\t\t0.5\n"));
    EXPECT_EQ(feature("tbl-2x2-table"), QStringLiteral("\n").repeated(5)); // including the paragraph after it
    EXPECT_EQ(feature("sct-inner-content"), QStringLiteral("P1\nT2\n\n\n\nP3\nT4\nP5\nP6\nP7\nP8\nP9\n"));
}
