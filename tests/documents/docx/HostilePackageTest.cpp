// SPDX-License-Identifier: MIT
#include "tests/documents/docx/DocxTest.h"

#include <random>

namespace {

using Cause = DocumentError::Cause;

Cause causeFor(const QByteArray &bytes)
{
    const Result<AttributedString, DocumentError> text = readWordDocument(bytes);
    EXPECT_FALSE(text.hasValue());
    return text ? Cause::NotEnoughMemory : text.error().cause;
}

/// A document with these bytes as its main part.
QByteArray withMainPart(const QByteArray &contents, ZipWriter::Entry entry = {})
{
    const WordPackage model;
    ZipWriter zip;
    zip.add({"[Content_Types].xml",
        "<Types xmlns='http://schemas.openxmlformats.org/package/2006/content-types'><Default Extension='xml'"
        " ContentType='"
            + model.mainType + "'/></Types>"});
    zip.add({"_rels/.rels",
        "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'><Relationship "
        "Id='x'"
        " Type='http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument'"
        " Target='main.xml'/></Relationships>"});
    entry.name = "main.xml";
    entry.contents = contents;
    zip.add(entry);
    return zip.archive();
}

QByteArray document(const QByteArray &content, const QByteArray &attributes = {})
{
    return "<w:document xmlns:w='http://schemas.openxmlformats.org/wordprocessingml/2006/main' " + attributes
        + "><w:body>" + content + "</w:body></w:document>";
}

/// Removes the last entry of the directory, whose name is a duplicate.
QByteArray withoutLastPart(ZipWriter zip)
{
    zip.removeLast();
    return zip.archive();
}

/// Lets all chunks in the directory refer to the data of the first one.
QByteArray withChunksInOnePlace(QByteArray archive)
{
    // Offsets in a header of the directory (APPNOTE.TXT of ZIP, 4.3.12).
    constexpr qsizetype headerLength = 46;
    constexpr qsizetype method = 10;
    constexpr qsizetype checksumAndLengths = 16;
    constexpr qsizetype offset = 42;
    const auto isChunk = [&](qsizetype header) {
        return archive.sliced(header + headerLength).startsWith("word/chunk");
    };
    qsizetype first = archive.indexOf("PK\x01\x02");
    while (!isChunk(first))
        first = archive.indexOf("PK\x01\x02", first + headerLength);
    for (qsizetype header = first; header >= 0;
         header = archive.indexOf("PK\x01\x02", header + headerLength)) {
        if (!isChunk(header))
            continue;
        archive.replace(header + method, 2, archive.sliced(first + method, 2));
        archive.replace(header + checksumAndLengths, 12, archive.sliced(first + checksumAndLengths, 12));
        archive.replace(header + offset, 4, archive.sliced(first + offset, 4));
    }
    return archive;
}

QByteArray soundDocument()
{
    WordPackage sound{.body = paragraph(run("one") + "<w:r><w:footnoteReference w:id='1'/></w:r>"),
        .styles = "<w:docDefaults/>",
        .footnotes = "<w:footnote w:id='1'>" + textParagraph("note") + "</w:footnote>"};
    sound.method = ZipWriter::Method::Deflated;
    return sound.bytes();
}

} // namespace

TEST(HostilePackage, ThatUnpacksToFarMoreThanItsSizeIsRefused)
{
    const QByteArray spaces(100'000'000, ' ');
    EXPECT_EQ(
        causeFor(withMainPart(document(spaces), {.method = ZipWriter::Method::Deflated})), Cause::TooLarge);
}

TEST(HostilePackage, ThatPacksOnePartManyTimesIsRefused)
{
    // Each of the 40 chunks of 20 MB is acceptable, but not their sum.
    WordPackage many;
    many.others = {{"r", "aFChunk", "chunk.rtf", "text/rtf", "{\\rtf1 x}" + QByteArray(20'000'000, ' ')}};
    many.method = ZipWriter::Method::Deflated;
    for (int i = 0; i < 40; ++i)
        many.body += "<w:altChunk r:id='r'/>";
    EXPECT_EQ(causeFor(many.bytes()), Cause::TooLarge);
}

TEST(HostilePackage, ThatIsAChunkOfItselfIsRefused)
{
    const WordPackage document{.body = textParagraph("again") + "<w:altChunk r:id='r'/>",
        .others = {{"r", "aFChunk", "document.xml", WordPackage{}.mainType, {}, false}}};
    EXPECT_EQ(causeFor(withoutLastPart(document.writer())), Cause::UnsupportedPart);
}

TEST(HostilePackage, ThatGrowsAHundredfoldWithEachLevelIsRefused)
{
    QByteArray document = WordPackage{.body = textParagraph("core")}.bytes();
    for (int level = 0; level < 3; ++level)
        document = WordPackage{.body = QByteArray("<w:altChunk r:id='r'/>").repeated(100),
            .others = {{"r", "aFChunk", "inner.docx", WordPackage{}.mainType, document}}}
                       .bytes();
    EXPECT_EQ(causeFor(document), Cause::TooComplex);
}

TEST(HostilePackage, ThatReadsOneLocationAsManyPartsIsRefused)
{
    WordPackage overlapping;
    const auto addChunk = [&overlapping](int number, const QByteArray &contents) {
        const QByteArray identifier = "r" + QByteArray::number(number);
        overlapping.others.push_back(
            {identifier, "aFChunk", "chunk" + identifier + ".rtf", "text/rtf", contents});
        overlapping.body += "<w:altChunk r:id='" + identifier + "'/>";
    };
    addChunk(0, "{\\rtf1 x}" + QByteArray(20'000'000, ' '));
    addChunk(1, "{\\rtf1 y}");
    overlapping.method = ZipWriter::Method::Deflated;
    EXPECT_EQ(readWordDocument(withChunksInOnePlace(overlapping.bytes())).value().string(),
        QStringLiteral("x\nx\n"));
    for (int number = 2; number < 40; ++number)
        addChunk(number, {});
    const QByteArray archive = withChunksInOnePlace(overlapping.bytes());
    EXPECT_LT(archive.size(), 50'000);
    EXPECT_EQ(causeFor(archive), Cause::TooLarge);
}

TEST(HostilePackage, WithTooManyPartsIsRefused)
{
    ZipWriter zip;
    for (int i = 0; i < 20'001; ++i)
        zip.add({QByteArray::number(i), {}});
    EXPECT_EQ(causeFor(zip.archive()), Cause::TooLarge);
}

TEST(HostilePackage, WithTwoPartsOfOneNameIsRefused)
{
    ZipWriter zip = WordPackage{.body = textParagraph("shown")}.writer();
    zip.add({"WORD/document.xml", WordPackage{.body = textParagraph("hidden")}.mainPart()});
    EXPECT_EQ(causeFor(zip.archive()), Cause::Damaged);
}

TEST(HostilePackage, WithPartsOfAFalseLengthIsDamagedOrComplete)
{
    const QByteArray contents = document(textParagraph("text"));
    for (const auto method : {ZipWriter::Method::Stored, ZipWriter::Method::Deflated}) {
        for (const quint32 claimed : {0U, 10U, 100'000U, 0xFFFFFFFEU}) {
            const auto text =
                readWordDocument(withMainPart(contents, {.method = method, .claimedLength = claimed}));
            EXPECT_TRUE(text ? text.value().string() == QStringLiteral("text\n")
                             : text.error().cause == Cause::Damaged)
                << claimed;
        }
    }
}

TEST(HostilePackage, WithADocumentTypeIsRefusedBeforeEntitiesExpand)
{
    const QByteArray main = document(paragraph(run("&b;")));
    EXPECT_EQ(causeFor(withMainPart("<!DOCTYPE x [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;'>]>" + main)),
        Cause::Damaged);
    EXPECT_EQ(causeFor(withMainPart("<!DOCTYPE x [<!ATTLIST x a CDATA 'aaaa'>]>" + main)), Cause::Damaged);
    EXPECT_EQ(causeFor(withMainPart(main)), Cause::Damaged);
}

TEST(HostilePackage, WithADocumentTypeElsewhereReadsNothingOutside)
{
    const QByteArray main = document(paragraph(run("one &b; two")));
    const Result<AttributedString, DocumentError> text =
        readWordDocument(withMainPart("<!DOCTYPE x SYSTEM 'file:///etc/passwd'>" + main));
    ASSERT_TRUE(text);
    EXPECT_EQ(text.value().string(), QStringLiteral("one  two\n"));
}

TEST(HostilePackage, NestedTooDeeplyIsRefused)
{
    const auto nested = [](int depth) {
        const QByteArray open = QByteArray("<w:tbl><w:tr><w:tc>").repeated(depth);
        return withMainPart(
            document(open + textParagraph("core") + QByteArray("</w:tc></w:tr></w:tbl>").repeated(depth)));
    };
    EXPECT_EQ(readWordDocument(nested(600)).value().string(), QStringLiteral("core\n"));
    EXPECT_EQ(causeFor(nested(100'000)), Cause::TooComplex);
}

TEST(HostilePackage, WithATagOrANameListWithoutEndIsRefused)
{
    EXPECT_EQ(causeFor(withMainPart(document("<w:p w:x='" + QByteArray(40'000'000, 'x') + "'/>"))),
        Cause::TooComplex);
    QByteArray names;
    for (int i = 0; i < 20'000; ++i)
        names += "<n" + QByteArray::number(i) + "/>";
    EXPECT_EQ(causeFor(withMainPart(document(names))), Cause::TooComplex);
}

TEST(HostilePackage, WithAHundredThousandNamespacesOrAttributesIsReadOrRefusedInTime)
{
    QByteArray namespaces;
    QByteArray attributes;
    for (int i = 0; i < 100'000; ++i) {
        namespaces += " xmlns:p" + QByteArray::number(i) + "='urn:" + QByteArray::number(i) + "'";
        attributes += " a" + QByteArray::number(i) + "=''";
    }
    EXPECT_EQ(causeFor(withMainPart(document("<w:p/>", namespaces))), Cause::TooComplex);
    EXPECT_EQ(causeFor(withMainPart(document("<w:p" + attributes + "/><w:p/>"))), Cause::TooComplex);
}

TEST(HostilePackage, WithExternalRelationshipsReadsNothingOutside)
{
    WordPackage outside{.body = textParagraph("inside")};
    outside.others = {{"rId1", "styles", "../../../../../../etc/passwd", "", "", true},
        {"rId2", "footnotes", "file:///etc/passwd", "", "", true}};
    EXPECT_EQ(textOf(outside), QStringLiteral("inside\n"));
    ZipWriter zip;
    zip.add({"[Content_Types].xml",
        "<Types xmlns='http://schemas.openxmlformats.org/package/2006/content-types'><Override "
        "PartName='/etc/passwd'"
        " ContentType='"
            + outside.mainType + "'/></Types>"});
    zip.add({"_rels/.rels",
        "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'><Relationship "
        "Id='x'"
        " Type='http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument'"
        " Target='../../etc/passwd'/></Relationships>"});
    EXPECT_EQ(causeFor(zip.archive()), Cause::Damaged);
}

TEST(HostilePackage, CutOffAnywhereIsAnError)
{
    const QByteArray sound = soundDocument();
    ASSERT_EQ(readWordDocument(sound).value().string(), QStringLiteral("one\nnote\n"));
    for (qsizetype length = 0; length < sound.size(); ++length)
        EXPECT_FALSE(readWordDocument(sound.first(length)).hasValue()) << length;
}

TEST(HostilePackage, WithAByteChangedIsReadOrRefused)
{
    const QByteArray sound = soundDocument();
    std::mt19937 random(7);
    int refused = 0;
    for (int round = 0; round < 3'000; ++round) {
        QByteArray changed = sound;
        changed[static_cast<qsizetype>(random() % static_cast<size_t>(sound.size()))] =
            static_cast<char>(random());
        refused += readWordDocument(changed) ? 0 : 1;
    }
    EXPECT_GT(refused, 1'000); // because of the checksums
}
