// SPDX-License-Identifier: MIT
// Documents of others: what they hold is known from their names, or from a second document.
#include "tests/platform/styled_text/docx/DocxTest.h"

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
        const Result<AttributedString, DocxError> text = readDocx(readFile(path));
        EXPECT_TRUE(text.hasValue()) << qPrintable(path);
        return text ? text.value().string() : QStringLiteral("(unreadable)");
    }

    static QString mammoth(const char *name)
    {
        return textOfFile(corporaFolder() + QStringLiteral("/mammoth/test/test-data/")
            + QString::fromLatin1(name) + QStringLiteral(".docx"));
    }
};

} // namespace

TEST_F(DocxCorpora, DocumentsWithRevisionsReadAsIfTheyWereAccepted)
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

TEST_F(DocxCorpora, HoldWhatTheirNamesSay)
{
    EXPECT_EQ(mammoth("empty"), QStringLiteral("\n"));
    EXPECT_EQ(mammoth("single-paragraph"), QStringLiteral("Walking on imported air\n"));
    EXPECT_EQ(mammoth("simple-list"), QStringLiteral("Apple\nBanana\n"));
    EXPECT_EQ(
        mammoth("tables"), QStringLiteral("Above\nTop left\nTop right\nBottom left\nBottom right\nBelow\n"));
    EXPECT_EQ(mammoth("footnotes"), QStringLiteral("Ouch.\n A tachyon walks into a bar.\n Fin.\n"));
    EXPECT_EQ(mammoth("endnotes").count(u'\n'), 3);
    EXPECT_EQ(mammoth("comments"), QStringLiteral("Ouch.\n"));
    EXPECT_EQ(mammoth("text-box"), QStringLiteral("\nDatum plane\n"));
    EXPECT_EQ(mammoth("utf8-bom"), QStringLiteral("This XML has a byte order mark.\n"));
    EXPECT_EQ(mammoth("strict-format"), QStringLiteral("Test\n"));
}
