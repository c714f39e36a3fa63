// SPDX-License-Identifier: MIT
#include "tests/documents/KindOf.h"
#include "tests/documents/odt/OdtTest.h"

namespace {

using Cause = DocumentError::Cause;

const OpenDocumentText simple{.body = "<text:p>text</text:p>"};

OpenDocumentText ofType(const QByteArray &mimeType)
{
    OpenDocumentText document = simple;
    document.mimeType = mimeType;
    return document;
}

Cause causeFor(const QByteArray &bytes)
{
    const Result<AttributedString, DocumentError> text = readOpenDocument(bytes);
    EXPECT_FALSE(text.hasValue());
    return text ? Cause::NotEnoughMemory : text.error().cause;
}

} // namespace

TEST(OdtPackage, IsRecognizedByItsTypeUnderAnyName)
{
    for (const char *name : {"", "letter.odt", "letter.fodt", "letter.txt", "letter.docx", "letter.xml"}) {
        EXPECT_EQ(kindOfDocument(name, simple.package()).value(), DocumentKind::OpenDocument) << name;
        EXPECT_EQ(kindOfDocument(name, simple.flat()).value(), DocumentKind::OpenDocument) << name;
    }
}

TEST(OdtPackage, MayBeATemplateOrAMasterDocument)
{
    for (const char *ending : {"-template", "-master", "-master-template", "-web"}) {
        const OpenDocumentText document =
            ofType(QByteArray("application/vnd.oasis.opendocument.text") + ending);
        EXPECT_TRUE(isOfKind(DocumentKind::OpenDocument, document.package())) << ending;
        EXPECT_TRUE(isOfKind(DocumentKind::OpenDocument, document.flat())) << ending;
        EXPECT_EQ(styledTextOf(document).string(), u"text\n") << ending;
    }
}

TEST(OdtPackage, OfAnotherKindIsNoText)
{
    for (const char *kind : {"spreadsheet", "presentation", "textual", "graphics"}) {
        const OpenDocumentText document = ofType(QByteArray("application/vnd.oasis.opendocument.") + kind);
        EXPECT_FALSE(isOfKind(DocumentKind::OpenDocument, document.package())) << kind;
        EXPECT_FALSE(isOfKind(DocumentKind::OpenDocument, document.flat())) << kind;
        EXPECT_EQ(causeFor(document.package()), Cause::WrongKind) << kind;
        EXPECT_EQ(causeFor(document.flat()), Cause::WrongKind) << kind;
    }
    EXPECT_EQ(causeFor("Some words."), Cause::WrongKind);
    EXPECT_EQ(causeFor({}), Cause::WrongKind);
    EXPECT_EQ(causeFor("<?xml version='1.0'?><office:document>"), Cause::WrongKind);
}

TEST(OdtPackage, MayNameItsTypeAtItsEnd)
{
    ZipWriter zip;
    zip.add({.name = "META-INF/manifest.xml"});
    zip.add({.name = "content.xml"});
    zip.add({.name = "mimetype", .contents = simple.mimeType, .method = ZipWriter::Method::Deflated});
    EXPECT_TRUE(isOfKind(DocumentKind::OpenDocument, zip.archive()));
}

TEST(OdtPackage, MayBeCompressed)
{
    OpenDocumentText document{.body = "<text:p>" + QByteArray("many words ").repeated(10'000) + "</text:p>"};
    document.method = ZipWriter::Method::Deflated;
    EXPECT_EQ(styledTextOf(document).length(), 110'001);
}

TEST(OdtPackage, MayBeAFlatFileWithAByteOrderMarkOrInUtf16)
{
    EXPECT_EQ(readOpenDocument("\xEF\xBB\xBF" + simple.flat()).value().string(), u"text\n");
    const QString wide = QString::fromUtf8(simple.flat())
                             .replace(QStringLiteral("UTF-8"), QStringLiteral("UTF-16"))
                             .prepend(QChar::ByteOrderMark);
    const QByteArray bytes(reinterpret_cast<const char *>(wide.utf16()), wide.size() * 2);
    for (const char *name : {"text.fodt", "", "text.xml"})
        EXPECT_EQ(kindOfDocument(name, bytes).value(), DocumentKind::OpenDocument) << name;
    EXPECT_EQ(readOpenDocument(bytes).value().string(), u"text\n");
}

TEST(OdtPackage, ThatIsEncryptedIsReportedAsSuch)
{
    OpenDocumentText document = simple;
    document.manifest = "<manifest:file-entry manifest:full-path='content.xml'><manifest:encryption-data/>"
                        "</manifest:file-entry>";
    EXPECT_TRUE(isOfKind(DocumentKind::OpenDocument, document.package()));
    EXPECT_EQ(causeFor(document.package()), Cause::Encrypted);
}

TEST(OdtPackage, WithoutContentIsDamaged)
{
    ZipWriter zip;
    zip.add({.name = "mimetype", .contents = simple.mimeType});
    EXPECT_EQ(causeFor(zip.archive()), Cause::Damaged);
    EXPECT_EQ(causeFor(simple.flat().chopped(10)), Cause::Damaged);
}

TEST(OdtPackage, OfStylesAloneIsEmpty)
{
    ZipWriter zip;
    zip.add({.name = "mimetype", .contents = simple.mimeType});
    zip.add({.name = "styles.xml", .contents = "<styles/>"});
    EXPECT_TRUE(readOpenDocument(zip.archive()).value().isEmpty());
}

TEST(OdtPackage, ReadsWithADamagedOrMissingManifest)
{
    ZipWriter zip = simple.writer();
    zip.removeLast();
    EXPECT_EQ(readOpenDocument(zip.archive()).value().string(), u"text\n");
    zip.add({.name = "META-INF/manifest.xml", .contents = "<manifest"});
    EXPECT_EQ(readOpenDocument(zip.archive()).value().string(), u"text\n");
}
