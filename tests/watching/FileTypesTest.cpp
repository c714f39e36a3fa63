// SPDX-License-Identifier: MIT
#include "watching/FileTypes.h"

#include "platform/system/FileURL.h"
#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FileTypesTest : public QuillbayTest {
protected:
    static QStringList kindsOf(const QUrl &url)
    {
        QStringList kinds;
        if (QBYExtension::doesConformToDocXFileUTI(url))
            kinds << QStringLiteral("docx");
        if (QBYExtension::doesConformToRTFFileUTI(url))
            kinds << QStringLiteral("rtf");
        if (QBYExtension::doesConformToRTFDFileUTI(url))
            kinds << QStringLiteral("rtfd");
        if (QBYExtension::doesConformToPlainTextFileUTI(url))
            kinds << QStringLiteral("text");
        if (QBYExtension::isDocumentOfAnotherKind(url))
            kinds << QStringLiteral("other");
        return kinds;
    }
    static QStringList kindsOfFile(const QString &name)
    {
        return kindsOf(QUrl::fromLocalFile(writeFile(name, "x")));
    }
    static QStringList kindsOfFolder(const QString &name)
    {
        const QString path = world().root() + u'/' + name;
        QDir().mkpath(path);
        return kindsOf(QUrl::fromLocalFile(path));
    }

    const QString m_docx = QStringLiteral("docx");
    const QString m_rtf = QStringLiteral("rtf");
    const QString m_rtfd = QStringLiteral("rtfd");
    const QString m_text = QStringLiteral("text");
    const QString m_other = QStringLiteral("other");
};

TEST_F(FileTypesTest, RichTextIsRichTextAndText)
{
    EXPECT_THAT(kindsOfFile(QStringLiteral("a.rtf")), ElementsAre(m_rtf, m_text));
    EXPECT_THAT(kindsOfFile(QStringLiteral("A.RTF")), ElementsAre(m_rtf, m_text));
}

TEST_F(FileTypesTest, AcceptsNamesThatAreNotUtf8OrLookLikeUrls)
{
    for (const char *const name :
        {"caf\xE9", "-a", "a#b", "a?b", "a%b", "a%E9", "a\nb", "a\\b", "a b", "\xFF\xFE"}) {
        const QByteArray path = writeFileOfBytes(QByteArray(name) + ".rtf", "x");
        EXPECT_THAT(kindsOf(fileURLOfPath(path)), ElementsAre(m_rtf, m_text)) << name;
        const QByteArray folder = writeFileOfBytes(QByteArray(name) + ".rtfd/TXT.rtf", "x").chopped(8);
        EXPECT_THAT(kindsOf(fileURLOfPath(folder)), ElementsAre(m_rtfd)) << name;
    }
}

TEST_F(FileTypesTest, AWordDocumentIsNothingElse)
{
    EXPECT_THAT(kindsOfFile(QStringLiteral("a.docx")), ElementsAre(m_docx));
}

TEST_F(FileTypesTest, AWordTemplateOrADocumentWithMacrosIsAKindOfWordDocument)
{
    for (const char *name : {"a.docm", "a.dotx", "a.dotm"})
        EXPECT_THAT(kindsOfFile(QString::fromLatin1(name)), ElementsAre(m_docx)) << name;
}

TEST_F(FileTypesTest, EverythingThatConformsToTextIsText)
{
    for (const char *name : {"a.txt", "a.html", "a.md", "a.c", "a.py", "a.js", "a.json", "a.svg", "a.xml",
             "a.tex", "a.sh", "a.csv", "README", "Makefile"})
        EXPECT_THAT(kindsOfFile(QString::fromLatin1(name)), ElementsAre(m_text)) << name;
}

TEST_F(FileTypesTest, ANameOfSeveralTypesCountsForEachOfThem)
{
    EXPECT_THAT(kindsOfFile(QStringLiteral("subtitles.ts")), ElementsAre(m_text)); // also a video
}

TEST_F(FileTypesTest, AnElectronicBookIsADocumentOfAnotherKind)
{
    EXPECT_THAT(kindsOfFile(QStringLiteral("a.epub")), ElementsAre(m_other));
    EXPECT_THAT(kindsOfFolder(QStringLiteral("folder.epub")), IsEmpty());
}

TEST_F(FileTypesTest, AnOpenDocumentTextIsADocumentOfAnotherKind)
{
    for (const char *name : {"a.odt", "A.ODT", "a.ott", "a.odm"})
        EXPECT_THAT(kindsOfFile(QString::fromLatin1(name)), ElementsAre(m_other)) << name;
    EXPECT_THAT(kindsOfFile(QStringLiteral("a.fodt")), ElementsAre(m_text, m_other));
    EXPECT_THAT(kindsOfFolder(QStringLiteral("folder.odt")), IsEmpty());
}

TEST_F(FileTypesTest, OtherFilesHaveNoKind)
{
    for (const char *name : {"a.doc", "a.ods", "a.odp", "a.pdf", "a.png", "a.gz"})
        EXPECT_THAT(kindsOfFile(QString::fromLatin1(name)), IsEmpty()) << name;
}

TEST_F(FileTypesTest, OnlyTheNameDecides)
{
    EXPECT_THAT(
        kindsOf(QUrl::fromLocalFile(writeFile(QStringLiteral("letter"), "{\\rtf1 Dear}"))), IsEmpty());
    EXPECT_THAT(
        kindsOf(QUrl::fromLocalFile(writeFile(QStringLiteral("empty.docx"), {}))), ElementsAre(m_docx));
    EXPECT_THAT(kindsOfFile(QStringLiteral("a.unheard-of")), IsEmpty());
}

TEST_F(FileTypesTest, EveryDocumentThatIsReadIsRecognizedByItsContent)
{
    const auto isReadable = [](const QString &name, const QByteArray &contents) {
        return QBYExtension::isReadableDocument(QUrl::fromLocalFile(writeFile(name, contents)));
    };
    const QByteArray picture("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1", 20);
    for (const char *name : {"LICENSE", "story.fountain", "a.text", "a.adoc", "scene.mts", "a.unheard-of"}) {
        EXPECT_TRUE(isReadable(QString::fromLatin1(name), "Some words.")) << name;
        EXPECT_FALSE(isReadable(QString::fromLatin1(name), picture)) << name;
    }
    EXPECT_TRUE(isReadable(QStringLiteral("paper"), "%PDF-1.7\n1 0 obj\n"));
    EXPECT_TRUE(isReadable(QStringLiteral("long"), QByteArray(200'000, 'x')));
    EXPECT_TRUE(isReadable(QStringLiteral("empty"), {}));
    EXPECT_FALSE(QBYExtension::isReadableDocument(QUrl::fromLocalFile(world().root())));
    EXPECT_FALSE(QBYExtension::isReadableDocument(QUrl(QStringLiteral("https://example.org/LICENSE"))));
    EXPECT_FALSE(
        QBYExtension::isReadableDocument(QUrl::fromLocalFile(world().root() + QStringLiteral("/missing"))));
}

TEST_F(FileTypesTest, OnlyAFolderIsAPackageWithAttachments)
{
    EXPECT_THAT(kindsOfFolder(QStringLiteral("a.rtfd")), ElementsAre(m_rtfd));
    EXPECT_THAT(kindsOfFolder(QStringLiteral("A.RTFD")), ElementsAre(m_rtfd));
    EXPECT_THAT(
        kindsOf(QUrl(QUrl::fromLocalFile(world().root() + QStringLiteral("/a.rtfd")).toString() + u'/')),
        ElementsAre(m_rtfd));
    EXPECT_THAT(kindsOfFile(QStringLiteral("b.rtfd")), IsEmpty());
}

TEST_F(FileTypesTest, AFolderOrAPipeIsNeverText)
{
    EXPECT_THAT(kindsOfFolder(QStringLiteral("folder.txt")), IsEmpty());
    EXPECT_THAT(kindsOfFolder(QStringLiteral("folder.docx")), IsEmpty());
    const QString pipe = world().root() + QStringLiteral("/pipe.txt");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_THAT(kindsOf(QUrl::fromLocalFile(pipe)), IsEmpty());
}

TEST_F(FileTypesTest, MissingFilesAndOtherUrlsHaveNoKind)
{
    EXPECT_THAT(kindsOf(QUrl::fromLocalFile(world().root() + QStringLiteral("/missing.txt"))), IsEmpty());
    EXPECT_THAT(kindsOf(QUrl(QStringLiteral("https://example.org/a.txt"))), IsEmpty());
    EXPECT_THAT(kindsOf(QUrl(QStringLiteral("a.txt"))), IsEmpty());
    EXPECT_THAT(kindsOf(QUrl()), IsEmpty());
}

TEST_F(FileTypesTest, ALinkHasTheKindOfItsOwnNameAndMustNotBeBroken)
{
    const QString target = writeFile(QStringLiteral("data"), "x");
    const QString link = world().root() + QStringLiteral("/link.txt");
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_THAT(kindsOf(QUrl::fromLocalFile(link)), ElementsAre(m_text));
    ASSERT_TRUE(QFile::remove(target));
    EXPECT_THAT(kindsOf(QUrl::fromLocalFile(link)), IsEmpty());
}

TEST_F(FileTypesTest, AnUnreadableFileHasNoKind)
{
    const QString path = writeFile(QStringLiteral("secret.txt"), "x");
    const auto told = [&] {
        return ChildProcess(testProgram(QStringLiteral("file_type_teller")))
            .asOtherUser()
            .run({QFile::encodeName(path)})
            .output;
    };
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0644), 0);
    EXPECT_EQ(told(), QByteArray("text\n"));
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0), 0);
    EXPECT_EQ(told(), QByteArray());
}
