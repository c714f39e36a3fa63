// SPDX-License-Identifier: MIT
#include "documents/epub/EpubReader.h"

#include "tests/documents/KindOf.h"
#include "tests/documents/epub/BookWriter.h"
#include "tests/harness/QuillbayTest.h"

namespace {

using Cause = DocumentError::Cause;

QString textOfBook(const QByteArray &bytes)
{
    const Result<AttributedString, DocumentError> text = readEpub(bytes);
    return text ? text.value().string() : causeText(text.error());
}

QString textOfBook(const BookWriter &book)
{
    return textOfBook(book.bytes());
}

QByteArray encryptedPart(const QByteArray &name, const QByteArray &algorithm)
{
    return "<enc:EncryptedData><enc:EncryptionMethod Algorithm='" + algorithm
        + "'/><enc:CipherData><enc:CipherReference URI='" + name + "'/></enc:CipherData></enc:EncryptedData>";
}

const BookWriter twoChapters{.pages = {{"one.xhtml", "<h1>One</h1><p>First &amp; last.</p>"},
                                 {"two.xhtml", "<h1>Two</h1><p>The end.</p>"}}};
const QString twoTexts = QStringLiteral("One\n\nFirst & last.\nTwo\n\nThe end.");
const QString isDamaged = QStringLiteral("is a damaged EPUB; create it again with the program that wrote it");
const QString isEncrypted = QStringLiteral("is encrypted (DRM); count a copy without copy protection");

} // namespace

TEST(Epub, IsRecognizedByItsTypeOrItsContainer)
{
    BookWriter book = twoChapters;
    EXPECT_TRUE(isOfKind(DocumentKind::Epub, book.bytes()));
    book.mimeType = "application/epub+zip\r\n";
    EXPECT_TRUE(isOfKind(DocumentKind::Epub, book.bytes()));
    book.mimeType.clear();
    EXPECT_TRUE(isOfKind(DocumentKind::Epub, book.bytes()));
    EXPECT_EQ(textOfBook(book), twoTexts);
    book.mimeType = "application/vnd.oasis.opendocument.text";
    EXPECT_FALSE(isOfKind(DocumentKind::Epub, book.bytes()));
    ZipWriter pictures;
    pictures.add({.name = "sun.png", .contents = "a picture"});
    EXPECT_FALSE(isOfKind(DocumentKind::Epub, pictures.archive()));
    EXPECT_FALSE(isOfKind(DocumentKind::Epub, "PK"));
    EXPECT_FALSE(isOfKind(DocumentKind::Epub, {}));
    EXPECT_EQ(readEpub(pictures.archive()).error().cause, Cause::WrongKind);
    EXPECT_EQ(textOfBook("no archive"), QStringLiteral("is not an EPUB"));
}

TEST(Epub, IsTheTextOfItsPagesInReadingOrder)
{
    EXPECT_EQ(textOfBook(twoChapters), twoTexts);
    BookWriter book = twoChapters;
    book.method = ZipWriter::Method::Stored;
    EXPECT_EQ(textOfBook(book), twoTexts);
    for (BookWriter::Page &page : book.pages)
        page.inSpine.clear();
    book.spine = "<itemref idref='page2'/><itemref idref='page1'/>";
    EXPECT_EQ(textOfBook(book), QStringLiteral("Two\n\nThe end.\nOne\n\nFirst & last."));
}

TEST(Epub, KeepsTheStylesOfItsPages)
{
    const auto text = readEpub(twoChapters.bytes());
    ASSERT_TRUE(text);
    EXPECT_EQ(text.value().attributesAt(0).font->pointSize, 24);
    EXPECT_EQ(text.value().attributesAt(6).font->pointSize, 12);
}

TEST(Epub, APageBesideTheReadingOrderIsLeftOut)
{
    BookWriter book = twoChapters;
    book.pages.push_back(
        {"notes.xhtml", "<p>beside", {}, "media-type='application/xhtml+xml'", "linear='no'"});
    book.pages.push_back(
        {"toc.xhtml", "<nav>contents</nav>", {}, "media-type='application/xhtml+xml' properties='nav'", ""});
    EXPECT_EQ(textOfBook(book), twoTexts);
    book.spine = "<itemref idref='page4'/>";
    EXPECT_EQ(textOfBook(book), twoTexts + QStringLiteral("\ncontents"));
}

TEST(Epub, APageWithoutTextAddsNoLine)
{
    BookWriter book = twoChapters;
    book.pages.insert(book.pages.begin(), {"cover.xhtml", "<img src='cover.png' alt='Cover'/>"});
    book.pages.insert(book.pages.begin() + 2, {"plate.xhtml", "<p> </p>"});
    EXPECT_EQ(textOfBook(book), twoTexts);
    EXPECT_EQ(textOfBook({.pages = {{"cover.xhtml", "<img/>"}}}), QString());
}

TEST(Epub, ReferencesMayBeEscapedRelativeAndInOtherCase)
{
    const auto textOfPageAt = [](const QByteArray &name, const QByteArray &reference) {
        return textOfBook({.pages = {{name, "<p>text</p>", reference}}});
    };
    const QString text = QStringLiteral("text");
    EXPECT_EQ(textOfPageAt("my page.xhtml", "my%20page.xhtml"), text);
    EXPECT_EQ(textOfPageAt("my page.xhtml", "my page.xhtml"), text);
    EXPECT_EQ(textOfPageAt("100%.xhtml", "100%25.xhtml"), text);
    EXPECT_EQ(textOfPageAt("a%20b.xhtml", "a%20b.xhtml"), text);
    EXPECT_EQ(textOfPageAt("sch\xC3\xB6n.xhtml", "sch%C3%B6n.xhtml"), text);
    EXPECT_EQ(textOfPageAt("sch\xC3\xB6n.xhtml", "sch\xC3\xB6n.xhtml"), text);
    EXPECT_EQ(textOfPageAt("a.xhtml", "a.xhtml#chapter"), text);
    EXPECT_EQ(textOfPageAt("a.xhtml", "./x/../a.xhtml"), text);
    EXPECT_EQ(textOfPageAt("a.xhtml", "../OEBPS/a.xhtml"), text);
    EXPECT_EQ(textOfPageAt("a.xhtml", "../../../OEBPS/a.xhtml"), text);
    EXPECT_EQ(textOfPageAt("A.XHTML", "a.xhtml"), text);
    EXPECT_EQ(textOfPageAt("a.xhtml", "../../etc/passwd"), isDamaged);
    EXPECT_EQ(textOfPageAt("a.xhtml", "http://example.org/a.xhtml"), isDamaged);
}

TEST(Epub, OfAPageInAnotherFormatTheFallbackIsRead)
{
    BookWriter book;
    book.pages = {{"a.pdf", "<?%PDF-", {}, "media-type='application/pdf' fallback='page2'"},
        {"a.xhtml", "<p>fallback</p>", {}, "media-type='application/xhtml+xml'", ""},
        {"b.png", "<?png", {}, "media-type='image/png'"},
        {"c.svg", "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg'><text>drawn</text></svg>", {},
            "media-type='image/svg+xml'"},
        {"d.x", "<?x", {}, "media-type='x/x' fallback='page5'"}};
    EXPECT_EQ(textOfBook(book), QStringLiteral("fallback\ndrawn"));
}

TEST(Epub, APageThatIsListedTwiceIsReadOnce)
{
    BookWriter book = twoChapters;
    book.spine = QByteArray("<itemref idref='page1'/>").repeated(5000);
    EXPECT_EQ(textOfBook(book), twoTexts);
}

TEST(Epub, PagesAreReadAsXml)
{
    EXPECT_EQ(
        textOfBook(
            {.pages = {{"a.xhtml",
                 "<?xml version='1.0'?><html><head><title/><script src='a.js'/><style/></head><body><p>a</p>"
                 "<div/><p>b<br></br>c<![CDATA[<d> & e]]></p></body></html>"}}}),
        QStringLiteral("a\n\nb\nc<d> & e"));
    EXPECT_EQ(textOfBook({.pages = {{"a.xhtml", QByteArray("<span id='n'/>").repeated(5000) + "text"}}}),
        QStringLiteral("text"));
}

TEST(Epub, PagesMayBeInAnyEncoding)
{
    EXPECT_EQ(
        textOfBook({.pages = {{"a.xhtml",
                        "<?xml version='1.0' encoding='ISO-8859-1'?><html><body>caf\xE9</body></html>"}}}),
        QStringLiteral("caf\u00E9"));
    EXPECT_EQ(textOfBook({.pages = {{"a.xhtml", "caf\xC3\xA9 \xE6\x9D\xB1\xE4\xBA\xAC"}}}),
        QStringLiteral("caf\u00E9 \u6771\u4EAC"));
}

TEST(Epub, StyleSheetsOfAPageHideItsText)
{
    EXPECT_EQ(
        textOfBook(
            {.pages = {{"a.xhtml",
                 "<?xml version='1.0'?><html><head><style><![CDATA[ p > .page {display:none} ]]></style>"
                 "</head><body><p>a<span class='page'>17</span> b</p></body></html>"}}}),
        QStringLiteral("a b"));
}

TEST(Epub, StyleSheetsInFilesOfTheBookHideTheTextOfThePagesThatLinkThem)
{
    const auto page = [](const QByteArray &links) {
        return "<?xml version='1.0'?><html><head>" + links
            + "</head><body><p>a<span class='page'>17</span> b</p></body></html>";
    };
    const QByteArray link = "<link rel='stylesheet' type='text/css' href='../styles/all%20pages.css'/>";
    const auto textWith = [&](const QByteArray &links, const QByteArray &sheet) {
        const BookWriter book{.pages = {{"pages/a.xhtml", page(links)}, {"pages/b.xhtml", page(links)}}};
        ZipWriter zip = book.writer();
        zip.add({.name = "OEBPS/styles/all pages.css", .contents = sheet});
        return textOfBook(zip.archive());
    };
    const QByteArray hiding = "\xEF\xBB\xBF.page { display: none }";
    EXPECT_EQ(textWith(link, hiding), QStringLiteral("a b\na b"));
    EXPECT_EQ(textWith(link, "p { margin: 0 }"), QStringLiteral("a17 b\na17 b"));
    EXPECT_EQ(
        textWith(link + "<style>.page { display: inline }</style>", hiding), QStringLiteral("a17 b\na17 b"))
        << "the later sheet";
    for (const char *other : {"rel='alternate stylesheet'", "rel='stylesheet' media='print'", "rel='icon'",
             "rel='stylesheet' type='text/less'"}) {
        const QByteArray ignored = QByteArray("<link href='../styles/all%20pages.css' ") + other + "/>";
        EXPECT_EQ(textWith(ignored, hiding), QStringLiteral("a17 b\na17 b")) << other;
    }
    for (const char *missing : {"none.css", "", "http://example.org/a.css", "../../../../etc/passwd"}) {
        const QByteArray dead = QByteArray("<link rel='stylesheet' href='") + missing + "'/>";
        EXPECT_EQ(textWith(dead, hiding), QStringLiteral("a17 b\na17 b")) << missing;
    }
}

TEST(Epub, MayHaveADocumentTypeButNoEntities)
{
    BookWriter book = twoChapters;
    book.documentType = "<!DOCTYPE package PUBLIC '-//X//Y' 'http://example.org/x.dtd'>";
    EXPECT_EQ(textOfBook(book), twoTexts);
    book.documentType = "<!DOCTYPE package [<!ENTITY a 'aaaa'>]>";
    EXPECT_EQ(textOfBook(book), isDamaged);
}

TEST(Epub, IsEncryptedIfAPageIs)
{
    constexpr char aes[] = "http://www.w3.org/2001/04/xmlenc#aes256-cbc";
    BookWriter book = twoChapters;
    book.encryption = encryptedPart("OEBPS/two.xhtml", aes);
    EXPECT_EQ(textOfBook(book), isEncrypted);
    book.encryption = encryptedPart("OEBPS/Two%2Exhtml", aes);
    EXPECT_EQ(textOfBook(book), isEncrypted);
    book.encryption = encryptedPart("OEBPS/book.opf", aes);
    EXPECT_EQ(textOfBook(book), isEncrypted);
    book.encryption = "<enc:EncryptedData><enc:CipherReference URI='OEBPS/one.xhtml'/></enc:EncryptedData>";
    EXPECT_EQ(textOfBook(book), isEncrypted);
    ZipWriter zip;
    zip.add({.name = "META-INF/container.xml", .contents = "0123456789ABCDEF", .isEncrypted = true});
    EXPECT_EQ(readEpub(zip.archive()).error().cause, Cause::Encrypted);
}

TEST(Epub, IsReadInSpiteOfEncryptedFontsAndPictures)
{
    BookWriter book = twoChapters;
    book.encryption = encryptedPart("OEBPS/font.otf", "http://www.idpf.org/2008/embedding")
        + encryptedPart("OEBPS/font2.otf", "http://ns.adobe.com/pdf/enc#RC")
        + encryptedPart("OEBPS/cover.jpg", "http://www.w3.org/2001/04/xmlenc#aes256-cbc");
    EXPECT_EQ(textOfBook(book), twoTexts);
}

TEST(Epub, WithoutAPageOrAReadingOrderIsDamaged)
{
    BookWriter book = twoChapters;
    book.pages[1].isMissing = true;
    EXPECT_EQ(textOfBook(book), isDamaged);
    EXPECT_EQ(textOfBook(BookWriter{}), isDamaged);
    ZipWriter zip;
    zip.add({.name = "META-INF/container.xml", .contents = "<container/>"});
    EXPECT_EQ(textOfBook(zip.archive()), isDamaged);
    const QByteArray whole = twoChapters.bytes();
    EXPECT_EQ(textOfBook(whole.first(whole.size() / 2)), isDamaged);
}

TEST(Epub, ThatIsTooLargeOrTooDeepIsRefused)
{
    BookWriter book;
    for (int i = 0; i < 3; ++i)
        book.pages.push_back(
            {"page" + QByteArray::number(i) + ".xhtml", "<!--" + QByteArray(23'000'000, ' ') + "-->"});
    EXPECT_EQ(readEpub(book.bytes()).error().cause, Cause::TooLarge);
    EXPECT_EQ(readEpub(BookWriter{.pages = {{"a.xhtml", QByteArray("<div>").repeated(2000)}}}.bytes())
                  .error()
                  .cause,
        Cause::TooDeep);
}

TEST(Epub, AnyByteMayBeAnother)
{
    const QByteArray book = twoChapters.bytes();
    for (qsizetype at = 0; at < book.size(); at += 3) {
        QByteArray broken = book;
        broken[at] = static_cast<char>(~broken[at]);
        const auto text = readEpub(broken);
        EXPECT_TRUE(!text || text.value().string().isValidUtf16());
    }
}
