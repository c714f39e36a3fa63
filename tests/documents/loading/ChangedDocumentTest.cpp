// SPDX-License-Identifier: MIT
#include "documents/loading/ChangedDocument.h"

#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

const QByteArray rtfWithPicture = "{\\rtf1 seen {{\\NeXTGraphic a.png \\width10 \\height10}\xac}}";

} // namespace

class ChangedDocumentTest : public QuillbayTest {
protected:
    static QByteArray writeDocument(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromLatin1(name), contents));
    }
    /// Absent if the document is as it was at the last call; the text is that of DocumentLoader.
    std::optional<AttributedString> changeOf(const QByteArray &path)
    {
        const ChangedDocument document = loadIfChanged(path, m_known).value();
        m_known = document.hash;
        if (document.text) {
            EXPECT_EQ(*document.text, loadDocument(path).value());
        }
        return document.text;
    }

    std::optional<ContentHash> m_known;
};

TEST_F(ChangedDocumentTest, UnchangedBytesAreReadOnce)
{
    const QByteArray path = writeDocument("f.txt", "one");
    EXPECT_EQ(changeOf(path)->string(), QStringLiteral("one"));
    writeDocument("f.txt", "one");
    EXPECT_FALSE(changeOf(path));
}

TEST_F(ChangedDocumentTest, OtherBytesAreAChangeThoughTheirSizeAndTimesAreTheSame)
{
    const QByteArray path = writeDocument("f.txt", "one");
    struct stat status;
    ASSERT_EQ(::stat(path.constData(), &status), 0);
    changeOf(path);
    writeDocument("f.txt", "two");
    const timespec times[] = {status.st_atim, status.st_mtim};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.constData(), times, 0), 0);
    EXPECT_EQ(changeOf(path)->string(), QStringLiteral("two"));
}

TEST_F(ChangedDocumentTest, TheSameBytesUnderAnotherNameMayBeAnotherKind)
{
    const QByteArray contents = "<p>one";
    EXPECT_EQ(changeOf(writeDocument("f.txt", contents))->string(), QStringLiteral("<p>one"));
    EXPECT_NE(changeOf(writeDocument("f.html", contents))->string(), QStringLiteral("<p>one"));
}

TEST_F(ChangedDocumentTest, AFailureIsNoText)
{
    const QByteArray path = writeDocument("f.txt", "one");
    changeOf(path);
    ASSERT_TRUE(QFile::remove(QFile::decodeName(path)));
    EXPECT_EQ(causeText(loadIfChanged(path, m_known).error()), QStringLiteral("no such file"));
    writeDocument("f.txt", "two");
    EXPECT_EQ(changeOf(path)->string(), QStringLiteral("two"));
}

TEST_F(ChangedDocumentTest, APackageIsUnchangedAsLongAsAllItsFilesAre)
{
    writeDocument("f.rtfd/TXT.rtf", rtfWithPicture);
    const QByteArray picture = writeDocument("f.rtfd/a.png", "one");
    const QByteArray path = picture.first(picture.lastIndexOf('/'));
    EXPECT_TRUE(changeOf(path));
    EXPECT_FALSE(changeOf(path));
    writeDocument("f.rtfd/a.png", "two");
    EXPECT_TRUE(changeOf(path));
    ASSERT_TRUE(QFile::remove(QFile::decodeName(picture)));
    EXPECT_TRUE(changeOf(path));
    EXPECT_FALSE(changeOf(path));
}

TEST_F(ChangedDocumentTest, ThePictureBehindASymbolicLinkCountsByWhereItLies)
{
    writeDocument("f.rtfd/TXT.rtf", rtfWithPicture);
    const QByteArray inside = writeDocument("f.rtfd/b.png", "one");
    const QByteArray outside = writeDocument("b.png", "one");
    const QByteArray path = inside.first(inside.lastIndexOf('/'));
    const QString link = QFile::decodeName(path) + QStringLiteral("/a.png");
    ASSERT_TRUE(QFile::link(QFile::decodeName(inside), link));
    EXPECT_TRUE(changeOf(path));
    ASSERT_TRUE(QFile::remove(link));
    ASSERT_TRUE(QFile::link(QFile::decodeName(outside), link));
    EXPECT_TRUE(changeOf(path));
}
