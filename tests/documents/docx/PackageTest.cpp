// SPDX-License-Identifier: MIT
#include "tests/documents/KindOf.h"
#include "tests/documents/docx/DocxTest.h"

#include <QStringEncoder>

namespace {

using Cause = DocumentError::Cause;

const QByteArray relationshipsStart(
    "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>");
const QByteArray officeDocument(
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument");

/// A package with its main part at a given name.
QByteArray packageWithMainPart(const QByteArray &name, const QByteArray &target, const QByteArray &contents)
{
    ZipWriter zip;
    zip.add({"[Content_Types].xml",
        "<Types xmlns='http://schemas.openxmlformats.org/package/2006/content-types'><Default Extension='xml'"
        " ContentType='"
            + WordPackage{}.mainType + "'/></Types>"});
    zip.add({"_rels/.rels",
        relationshipsStart + "<Relationship Id='x' Type='" + officeDocument + "' Target='" + target
            + "'/></Relationships>"});
    zip.add({name, contents});
    return zip.archive();
}

QString read(const QByteArray &bytes)
{
    const Result<AttributedString, DocumentError> text = readWordDocument(bytes);
    return text ? text.value().string() : causeText(text.error());
}

const WordPackage hello{.body = textParagraph("hello")};

} // namespace

TEST(DocxPackage, IsRecognizedByItsParts)
{
    EXPECT_TRUE(isOfKind(DocumentKind::WordDocument, hello.bytes()));
    WordPackage sheet = hello;
    sheet.mainType = "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml";
    EXPECT_EQ(readWordDocument(sheet.bytes()).error().cause, Cause::WrongKind);
    ZipWriter zip;
    zip.add({"word/document.xml", hello.mainPart()});
    EXPECT_FALSE(isOfKind(DocumentKind::WordDocument, zip.archive()));
    EXPECT_FALSE(isOfKind(DocumentKind::WordDocument, "PK\x03\x04 and no more"));
    EXPECT_FALSE(isOfKind(DocumentKind::WordDocument, "word/document.xml"));
    EXPECT_FALSE(isOfKind(DocumentKind::WordDocument, {}));
}

TEST(DocxPackage, MayBeATemplateOrHaveMacros)
{
    for (const char *type :
        {"application/vnd.openxmlformats-officedocument.wordprocessingml.template.main+xml",
            "application/vnd.ms-word.document.macroEnabled.main+xml",
            "application/vnd.ms-word.template.macroEnabledTemplate.main+xml"}) {
        WordPackage document = hello;
        document.mainType = type;
        EXPECT_TRUE(isOfKind(DocumentKind::WordDocument, document.bytes())) << type;
        EXPECT_EQ(textOf(document), QStringLiteral("hello\n")) << type;
    }
}

TEST(DocxPackage, AsOneXmlFileIsRefusedWithARemedy)
{
    const QByteArray declaration("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!-- a letter -->\n");
    const QByteArray flatPackage(
        "<pkg:package xmlns:pkg=\"http://schemas.microsoft.com/office/2006/xmlPackage\"><pkg:part/>");
    const QByteArray wordOf2003("<w:wordDocument xmlns:v=\"urn:schemas-microsoft-com:vml\"\n"
                                "xmlns:w=\"http://schemas.microsoft.com/office/word/2003/wordml\">");
    for (const QByteArray &document : {declaration + flatPackage, declaration + wordOf2003, wordOf2003,
             declaration + "<?mso-application progid=\"Word.Document\"?>" + flatPackage}) {
        const Result<AttributedString, DocumentError> text = readWordDocument(document);
        EXPECT_EQ(
            causeText(text.error()), QStringLiteral("is a Word document in one XML file; save it as .docx"))
            << document.constData();
    }
    for (const QByteArray &other :
        {declaration + "<?mso-application progid=\"PowerPoint.Show\"?>" + flatPackage,
            declaration + "<w:wordDocument xmlns:w=\"urn:other\">", "About " + wordOf2003,
            declaration + "<!-- " + wordOf2003})
        EXPECT_EQ(readWordDocument(other).error().cause, Cause::WrongKind) << other.constData();
}

TEST(DocxPackage, MayBeStrict)
{
    WordPackage document{.body = paragraph(run("strict", "<w:sz w:val='14pt'/>"), "<w:ind w:start='1cm'/>")};
    document.wordNamespace = "http://purl.oclc.org/ooxml/wordprocessingml/main";
    document.relationshipsNamespace = "http://purl.oclc.org/ooxml/officeDocument/relationships";
    const Result<AttributedString, DocumentError> text = readWordDocument(document.bytes());
    ASSERT_EQ(text.value().string(), QStringLiteral("strict\n"));
    EXPECT_EQ(text.value().attributesAt(0).font->pointSize, 14);
    EXPECT_NEAR(text.value().attributesAt(0).paragraphStyle.headIndent, 28.35, 0.01);
}

TEST(DocxPackage, HasTheSameTextInTheStrictForm)
{
    WordPackage document{
        .body = paragraph("<w:r><w:t>a</w:t><w:tab/><w:br w:type='page'/><w:noBreakHyphen/>"
                          "<w:sym w:font='Symbol' w:char='F061'/></w:r><w:ins>"
                    + run("b") + "</w:ins><w:del><w:r><w:delText>c</w:delText></w:r></w:del>"
                    + run("d", "<w:vanish/>") + "<w:fldSimple w:instr='PAGE'>" + run("e")
                    + "</w:fldSimple><w:r><w:footnoteReference w:id='1'/></w:r><w:sdt><w:sdtContent>"
                    + run("f") + "</w:sdtContent></w:sdt><w:r><w:pict><v:textbox><w:txbxContent>"
                    + textParagraph("g") + "</w:txbxContent></v:textbox></w:pict></w:r>")
            + "<w:tbl><w:tr>" + cell(textParagraph("h")) + "</w:tr><w:tr><w:trPr><w:del/></w:trPr>"
            + cell(textParagraph("i")) + "</w:tr></w:tbl><w:altChunk r:id='chunk'/>",
        .footnotes = "<w:footnote w:id='1'>" + textParagraph("note") + "</w:footnote>",
        .others = {{"chunk", "aFChunk", "chunk.txt", "text/plain", "chunk"}}};
    const QString text = textOf(document);
    EXPECT_EQ(text, QStringLiteral("a\t\f\u2011\u03B1bef\ng\nh\nchunk\nnote\n"));
    document.wordNamespace = "http://purl.oclc.org/ooxml/wordprocessingml/main";
    document.relationshipsNamespace = "http://purl.oclc.org/ooxml/officeDocument/relationships";
    EXPECT_EQ(textOf(document), text);
}

TEST(DocxPackage, MayBeCompressed)
{
    WordPackage document = hello;
    document.method = ZipWriter::Method::Deflated;
    EXPECT_EQ(textOf(document), QStringLiteral("hello\n"));
}

TEST(DocxPackage, HasItsMainPartAtTheTargetOfTheRelationship)
{
    const QByteArray main = hello.mainPart();
    EXPECT_EQ(read(packageWithMainPart("a/b/main.xml", "a/b/main.xml", main)), QStringLiteral("hello\n"));
    EXPECT_EQ(read(packageWithMainPart("a/b/main.xml", "/a/b/main.xml", main)), QStringLiteral("hello\n"));
    EXPECT_EQ(read(packageWithMainPart("a/my main.xml", "./x/../a/my%20main.xml", main)),
        QStringLiteral("hello\n"));
    EXPECT_EQ(
        read(packageWithMainPart("Word/Document.XML", "word/document.xml", main)), QStringLiteral("hello\n"));
    EXPECT_EQ(read(packageWithMainPart("word\\document.xml", "word/document.xml", main)),
        QStringLiteral("hello\n"));
    EXPECT_EQ(read(packageWithMainPart("other.xml", "word/document.xml", main)),
        causeText({Cause::Damaged, DocumentKind::WordDocument}));
}

TEST(DocxPackage, HasItsStylesAtTheTargetOfTheRelationship)
{
    const WordPackage document{.body = textParagraph("a"),
        .others = {{"rId1", "styles", "deep/look.xml",
            "application/vnd.openxmlformats-officedocument.wordprocessingml.styles+xml",
            "<w:styles xmlns:w='http://schemas.openxmlformats.org/wordprocessingml/2006/main'><w:docDefaults>"
            "<w:rPrDefault><w:rPr><w:sz w:val='66'/></w:rPr></w:rPrDefault></w:docDefaults></w:styles>"}}};
    EXPECT_EQ(readWordDocument(document.bytes()).value().attributesAt(0).font->pointSize, 33);
}

TEST(DocxPackage, ReadsWithoutPartsThatOnlyDescribeTheFormat)
{
    WordPackage document = hello;
    document.others = {{"rId1", "styles", "missing.xml", "", "", true}};
    EXPECT_EQ(textOf(document), QStringLiteral("hello\n"));
}

TEST(DocxPackage, MayHaveItsPartsInUtf16OrWithAByteOrderMark)
{
    QString main = QString::fromUtf8(WordPackage{.body = textParagraph("h\xC3\xA9llo")}.mainPart());
    main.replace(QStringLiteral("UTF-8"), QStringLiteral("UTF-16"));
    QStringEncoder utf16(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom);
    const QByteArray bytes = utf16(main);
    EXPECT_EQ(read(packageWithMainPart("m.xml", "m.xml", bytes)), QStringLiteral("h\u00E9llo\n"));
    EXPECT_EQ(read(packageWithMainPart("m.xml", "m.xml", "\xEF\xBB\xBF" + hello.mainPart())),
        QStringLiteral("hello\n"));
}

TEST(DocxPackage, MayUseAnyPrefixes)
{
    EXPECT_EQ(
        read(packageWithMainPart("m.xml", "m.xml",
            "<document "
            "xmlns='http://schemas.openxmlformats.org/wordprocessingml/2006/main'><body><p><r><t>one</t>"
            "</r></p><x:p "
            "xmlns:x='http://schemas.openxmlformats.org/wordprocessingml/2006/main'><x:r><x:t>two"
            "</x:t></x:r></x:p><x:p xmlns:x='urn:other'><r><t>no</t></r></x:p></body></document>")),
        QStringLiteral("one\ntwo\n"));
}

TEST(DocxPackage, ThatIsEncryptedIsReportedAsSuch)
{
    QByteArray compound("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    compound.resize(1024, '\0');
    EXPECT_EQ(readWordDocument(compound).error().cause, Cause::OldFormat);
    EXPECT_FALSE(isOfKind(DocumentKind::WordDocument, compound));
    const char16_t name[] = u"EncryptedPackage";
    compound.append(reinterpret_cast<const char *>(name), sizeof name);
    EXPECT_EQ(readWordDocument(compound).error().cause, Cause::Encrypted);
    EXPECT_TRUE(isOfKind(DocumentKind::WordDocument, compound));
    for (const char16_t *otherCase : {u"ENCRYPTEDPACKAGE", u"encryptedPackage"}) {
        compound.replace(1024, sizeof name, reinterpret_cast<const char *>(otherCase), sizeof name);
        EXPECT_EQ(readWordDocument(compound).error().cause, Cause::Encrypted);
    }
    EXPECT_EQ(causeText({Cause::Encrypted, DocumentKind::WordDocument}),
        QStringLiteral("is encrypted; save it without a password"));
}

TEST(DocxPackage, OfBefore2007IsNotEncryptedBecauseOfAWordInItsText)
{
    QByteArray compound("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    compound.resize(1024, '\0');
    const char16_t text[] = u"An EncryptedPackage";
    const char16_t name[] = u"EncryptedPackageOfMine";
    compound.append(reinterpret_cast<const char *>(text), sizeof text).resize(2048, '\0');
    compound.append(reinterpret_cast<const char *>(name), sizeof name);
    EXPECT_EQ(readWordDocument(compound).error().cause, Cause::OldFormat);
}

TEST(DocxPackage, WithAnEncryptedPartIsReportedAsEncrypted)
{
    ZipWriter zip;
    for (const char *name : {"[Content_Types].xml", "_rels/.rels", "word/document.xml"})
        zip.add({.name = name, .contents = "0123456789ABCDEF", .isEncrypted = true});
    EXPECT_EQ(readWordDocument(zip.archive()).error().cause, Cause::Encrypted);
}

TEST(DocxPackage, ThatIsNoWordDocumentIsReportedAsSuch)
{
    EXPECT_EQ(readWordDocument({}).error().cause, Cause::WrongKind);
    EXPECT_EQ(readWordDocument("{\\rtf1 text}").error().cause, Cause::WrongKind);
    EXPECT_EQ(readWordDocument("PK\x03\x04").error().cause, Cause::Damaged);
}
