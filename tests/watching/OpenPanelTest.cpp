// SPDX-License-Identifier: MIT
#include "documents/loading/DocumentLoader.h"
#include "tests/harness/QuillbayTest.h"
#include "watching/FileTypes.h"

#include <QFile>
#include <QMimeDatabase>

#include <algorithm>

using ::testing::ElementsAre;

namespace {

bool isOffered(const QUrl &url, const OpenPanel &panel)
{
    const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(url.fileName());
    return std::any_of(types.begin(), types.end(), [&](const QMimeType &type) {
        const QStringList offered = panel.allowedFileTypes + panel.otherFileTypes;
        return std::any_of(
            offered.begin(), offered.end(), [&](const QString &allowed) { return type.inherits(allowed); });
    });
}

} // namespace

class OpenPanelTest : public QuillbayTest { };

TEST_F(OpenPanelTest, OffersTheFourKindsInTheirOrderAndOthersBehindThem)
{
    EXPECT_THAT(QBYExtension::openPanelForTextFiles().allowedFileTypes,
        ElementsAre(QStringLiteral("inode/directory"), QStringLiteral("application/rtf"),
            QStringLiteral("text/plain"),
            QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.document"),
            QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.template"),
            QStringLiteral("application/vnd.oasis.opendocument.text"),
            QStringLiteral("application/vnd.oasis.opendocument.text-template"),
            QStringLiteral("application/vnd.oasis.opendocument.text-master"),
            QStringLiteral("application/vnd.oasis.opendocument.text-flat-xml"),

            QStringLiteral("application/epub+zip")));
    EXPECT_EQ(QBYExtension::openPanelForTextFilesAllowMultipleSelection(true).allowedFileTypes,
        QBYExtension::openPanelForTextFiles().allowedFileTypes);
}

TEST_F(OpenPanelTest, AFolderOfRichTextIsChosenAsOneDocument)
{
    EXPECT_THAT(QBYExtension::openPanelForTextFiles().packageSuffixes, ElementsAre(QStringLiteral("rtfd")));
}

TEST_F(OpenPanelTest, TheMimeDatabaseKnowsEveryTypeByThatName)
{
    for (const QString &type : QBYExtension::openPanelForTextFiles().allowedFileTypes)
        EXPECT_EQ(QMimeDatabase().mimeTypeForName(type).name(), type);
}

TEST_F(OpenPanelTest, AllowsSeveralFilesOnlyOnRequest)
{
    EXPECT_FALSE(QBYExtension::openPanelForTextFiles().allowsMultipleSelection);
    EXPECT_FALSE(QBYExtension::openPanelForTextFilesAllowMultipleSelection(false).allowsMultipleSelection);
    EXPECT_TRUE(QBYExtension::openPanelForTextFilesAllowMultipleSelection(true).allowsMultipleSelection);
}

TEST_F(OpenPanelTest, OffersEveryOtherKindThatIsReadBesideThem)
{
    const OpenPanel panel = QBYExtension::openPanelForTextFiles();
    for (quint32 kind = 1; kind <= static_cast<quint32>(lastDocumentKind); ++kind) {
        for (const QString &type : mimeTypes(static_cast<DocumentKind>(kind)))
            EXPECT_TRUE(panel.otherFileTypes.contains(type)) << type.toStdString();
    }
    EXPECT_TRUE(isOffered(QUrl(QStringLiteral("file:///a.pdf")), panel));
}

TEST_F(OpenPanelTest, OffersTheFilesThatPassTheTypeTestsAndNoOthers)
{
    const OpenPanel panel = QBYExtension::openPanelForTextFiles();
    for (const char *name : {"a.rtf", "a.txt", "a.html", "a.c", "a.svg", "a.docx", "a.docm", "a.dotx",
             "a.dotm", "a.epub", "TXT.rtf", "a.doc", "a.odt", "a.fodt", "a.ods", "a.png"}) {
        const QUrl url = QUrl::fromLocalFile(writeFile(QString::fromLatin1(name), "x"));
        EXPECT_EQ(isOffered(url, panel),
            QBYExtension::doesConformToPlainTextFileUTI(url) || QBYExtension::doesConformToDocXFileUTI(url)
                || QBYExtension::isDocumentOfAnotherKind(url))
            << name;
    }
}

TEST_F(OpenPanelTest, TheRtfInAFolderWithAttachmentsHasTheWholeText)
{
    const QString rtf = writeFile(QStringLiteral("a.rtfd/TXT.rtf"),
        "{\\rtf1 Seen {{\\NeXTGraphic a.png \\width10 \\height10}\xac} there.}");
    writeFile(QStringLiteral("a.rtfd/a.png"), "x");
    const auto folder = loadDocument(QFile::encodeName(rtf.chopped(8)));
    const auto file = loadDocument(QFile::encodeName(rtf));
    EXPECT_EQ(folder.value().string(), QStringLiteral("Seen \uFFFC there."));
    EXPECT_EQ(file.value().string(), folder.value().string());
}
