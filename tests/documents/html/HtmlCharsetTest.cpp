// SPDX-License-Identifier: MIT
// The encoding of a page, and the recognition of pages.
#include "documents/html/HtmlReader.h"
#include "platform/text_encoding/EncodingLabels.h"

#include "tests/harness/QuillbayTest.h"

#include <unicode/ucnv.h>

#include <memory>

namespace {

QByteArray encodeText(const QString &text, const char *encoding)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, void (*)(UConverter *)> converter(
        ucnv_open(encoding, &status), ucnv_close);
    QByteArray bytes(text.size() * 4 + 16, Qt::Uninitialized);
    bytes.resize(ucnv_fromUChars(converter.get(), bytes.data(), static_cast<int32_t>(bytes.size()),
        reinterpret_cast<const UChar *>(text.utf16()), static_cast<int32_t>(text.size()), &status));
    return bytes;
}

QString textOf(const QByteArray &page, const QByteArray &charset = {})
{
    return readHtml(page, {charset}).value().string();
}

const QString accented = QStringLiteral("été à Noël");
const QString cyrillic = QStringLiteral("съешь ещё этих мягких французских булок");
const QString japanese = QStringLiteral("雨の日は本を読む。");

} // namespace

TEST(HtmlCharset, AByteOrderMarkOverridesEveryDeclaration)
{
    const QString page = QStringLiteral("<meta charset=koi8-r>") + accented;
    EXPECT_EQ(textOf("\xEF\xBB\xBF" + page.toUtf8(), "windows-1251"), accented);
    EXPECT_EQ(textOf("\xFF\xFE" + encodeText(page, "UTF-16LE"), "windows-1251"), accented);
    EXPECT_EQ(textOf("\xFE\xFF" + encodeText(page, "UTF-16BE"), "windows-1251"), accented);
}

TEST(HtmlCharset, TheCharsetOfTheTransferOverridesThatOfThePage)
{
    const QByteArray page = "<meta charset=utf-8>" + encodeText(cyrillic, "KOI8-R");
    EXPECT_EQ(textOf(page, "koi8-r"), cyrillic);
    EXPECT_EQ(textOf(page, " KOI8-R\t"), cyrillic);
    EXPECT_EQ(textOf(page, "text/html; charset=\"koi8-r\""), cyrillic);
    EXPECT_EQ(textOf(page, "text/html;Charset = koi8-r; x=y"), cyrillic);
}

TEST(HtmlCharset, AnUnknownCharsetIsIgnored)
{
    EXPECT_EQ(textOf("<meta charset=koi8-r>" + encodeText(cyrillic, "KOI8-R"), "x-nonsense"), cyrillic);
    EXPECT_EQ(textOf("<meta charset=nonsense>" + cyrillic.toUtf8(), "text/html"), cyrillic);
    EXPECT_EQ(textOf(cyrillic.toUtf8(), QByteArray(100'000, 'x')), cyrillic);
}

TEST(HtmlCharset, AUtf16CharsetOfTheTransferIsLittleEndianUnlessItSaysOtherwise)
{
    EXPECT_EQ(textOf(encodeText(accented, "UTF-16LE"), "utf-16"), accented);
    EXPECT_EQ(textOf(encodeText(accented, "UTF-16BE"), "utf-16be"), accented);
}

TEST(HtmlCharset, AMetaElementNamesTheEncoding)
{
    for (const char *meta : {"<meta charset=shift_jis>", "<META CHARSET='Shift_JIS'>",
             "<head><meta name=x><meta   charset = \"sjis\" >",
             "<!DOCTYPE html><html lang=ja><meta/charset=sjis>",
             "<meta http-equiv=Content-Type content='text/html; charset=Shift_JIS'>",
             "<meta content=\"text/html;charset='shift_jis'\" http-equiv=\"content-type\"/>",
             "<!-- <meta charset=koi8-r> --><meta charset=ms_kanji>",
             "<a title='<meta charset=koi8-r>'><?x <meta?><meta charset=sjis>",
             "<meta http-equiv=refresh content='0; charset=koi8-r'><meta charset=sjis>",
             "<meta charset=sjis http-equiv=content-type content='text/html; charset=koi8-r'>"}) {
        EXPECT_EQ(textOf(meta + encodeText(japanese, "Shift_JIS")), japanese) << meta;
    }
}

TEST(HtmlCharset, WhatIsNoMetaElementNamesNoEncoding)
{
    for (const char *start : {"<!-- <meta charset=koi8-r> -->", "<p title='<meta charset=koi8-r>'>",
             "<metadata charset=koi8-r>", "<meta content='text/html; charset=koi8-r'>",
             "<meta name=charset content=koi8-r>", "<meta http-equiv=content-type content='charset koi8-r'>",
             "<meta charset=''>", "</meta charset=koi8-r>"}) {
        EXPECT_TRUE(textOf(start + cyrillic.toUtf8()).endsWith(cyrillic)) << start;
    }
}

TEST(HtmlCharset, AMetaElementAfterTheFirst1024BytesIsIgnored)
{
    const QByteArray meta = "<meta charset=koi8-r>";
    const QByteArray early = QByteArray(1024 - meta.size(), ' ') + meta;
    EXPECT_EQ(textOf(early + encodeText(cyrillic, "KOI8-R")), cyrillic);
    const QByteArray late = QByteArray(1024, ' ') + meta;
    EXPECT_EQ(textOf(late + cyrillic.toUtf8()), cyrillic);
}

TEST(HtmlCharset, Utf16InAMetaElementIsUtf8)
{
    for (const char *meta : {"<meta charset=utf-16>", "<meta charset=utf-16be>", "<meta charset=unicode>"})
        EXPECT_EQ(textOf(meta + accented.toUtf8()), accented) << meta;
}

TEST(HtmlCharset, UserDefinedIsWindows1252)
{
    EXPECT_EQ(textOf("<meta charset=x-user-defined>\x80\xE9"), QStringLiteral("€é"));
    EXPECT_EQ(textOf("\x80\xE9", "x-user-defined"), QStringLiteral("€é"));
}

TEST(HtmlCharset, Latin1IsWindows1252)
{
    for (const char *label : {"latin1", "iso-8859-1", "us-ascii", "ASCII", "windows-1252", "l1", "cp819"})
        EXPECT_EQ(textOf("\x93"
                         "caf\xE9\x94 \x80",
                      label),
            QStringLiteral("“café” €"))
            << label;
}

TEST(HtmlCharset, AnXmlDeclarationNamesTheEncodingIfNoMetaElementDoes)
{
    const QByteArray declaration = "<?xml version='1.0' encoding='koi8-r'?>";
    EXPECT_EQ(textOf(declaration + "<html xmlns='http://www.w3.org/1999/xhtml'><p>"
                  + encodeText(cyrillic, "KOI8-R")),
        cyrillic);
    EXPECT_EQ(
        textOf(declaration + "<meta charset=windows-1251>" + encodeText(cyrillic, "windows-1251")), cyrillic);
    EXPECT_EQ(textOf("<?xml version=\"1.0\" encoding=\"utf-16\"?><p>" + accented.toUtf8()), accented);
    EXPECT_EQ(textOf("<?xml version='1.0'?><p>" + accented.toUtf8()), accented);
}

TEST(HtmlCharset, WithoutADeclarationTheBytesDecide)
{
    EXPECT_EQ(textOf("<p>" + accented.toUtf8()), accented);
    EXPECT_EQ(textOf("<p>" + encodeText(accented, "windows-1252")), accented);
    EXPECT_EQ(textOf(encodeText(QStringLiteral("<!DOCTYPE html><p>") + accented, "UTF-16LE")), accented);
    EXPECT_EQ(textOf(encodeText(QStringLiteral("<!DOCTYPE html><p>") + accented, "UTF-16BE")), accented);
}

TEST(HtmlCharset, InvalidBytesAreReplaced)
{
    EXPECT_EQ(textOf("<meta charset=utf-8>été \xFF\xC3(b à"), QStringLiteral(u"été \uFFFD\uFFFD(b à"));
    EXPECT_EQ(textOf("\xFE\xFF" + QByteArray("\0a\xD8\0\0b", 6)), QStringLiteral(u"a\uFFFDb"));
}

TEST(HtmlCharset, EveryLabelHasAnAvailableEncoding)
{
    for (const char *label : {"utf8", "866", "l2", "latin3", "iso-ir-110", "cyrillic", "asmo-708", "elot_928",
             "visual", "logical", "iso885910", "iso-8859-13", "iso-8859-14", "l9", "iso-8859-16", "koi",
             "koi8-ru", "x-mac-roman", "tis-620", "cp1250", "cp1251", "cp1252", "cp1253", "latin5", "cp1255",
             "cp1256", "cp1257", "cp1258", "x-mac-ukrainian", "gb_2312-80", "gb18030", "x-x-big5", "x-euc-jp",
             "csiso2022jp", "windows-31j", "ks_c_5601-1987", "iso-2022-kr", "hz-gb-2312", "iso-2022-cn",
             "unicodefffe", "ucs-2", "x-user-defined"}) {
        const char *name = encodingOfLabel(label);
        ASSERT_NE(name, nullptr) << label;
        UErrorCode status = U_ZERO_ERROR;
        UConverter *converter = ucnv_open(name, &status);
        EXPECT_TRUE(U_SUCCESS(status)) << label << ' ' << name;
        ucnv_close(converter);
    }
    EXPECT_EQ(encodingOfLabel("utf-7"), nullptr);
    EXPECT_EQ(encodingOfLabel(""), nullptr);
    EXPECT_EQ(encodingOfLabel(" "), nullptr);
}

TEST(HtmlCharset, FalselyDeclaredUtf8IsIgnored)
{
    const QByteArray meta = "<meta charset=utf-8>";
    EXPECT_EQ(textOf(meta + encodeText(cyrillic, "windows-1251")), cyrillic);
    EXPECT_EQ(textOf(meta + encodeText(accented, "windows-1252")), accented);
    EXPECT_EQ(textOf(meta + encodeText(japanese, "Shift_JIS")), japanese);
    EXPECT_EQ(textOf("<p>" + encodeText(cyrillic, "KOI8-R"), "utf-8"), cyrillic);
    EXPECT_EQ(
        textOf("<?xml version='1.0' encoding='utf-8'?><p>" + encodeText(cyrillic, "windows-1251")), cyrillic);
    EXPECT_EQ(textOf("<meta charset=koi8-r>" + encodeText(cyrillic, "KOI8-R"), "utf-8"), cyrillic);
}

TEST(HtmlCharset, LabelsThatBrowsersReadAsALargerEncodingAreReadAsThat)
{
    EXPECT_EQ(textOf("\xB0\xA1\x81\x41", "euc-kr"), QStringLiteral("가갂"));
    EXPECT_EQ(textOf("\x81\x40\x95\x32\x82\x36", "gb2312"), QStringLiteral("丂𠀀"));
    EXPECT_EQ(textOf("\xFE", "iso-8859-9"), QStringLiteral("ş"));
    EXPECT_EQ(textOf("\xA1", "iso-8859-11"), QStringLiteral("ก"));
}

TEST(LooksLikeHtml, ADoctypeOrAnHtmlTagIsRecognized)
{
    for (const char *page :
        {"<!DOCTYPE html>", "<!doctype HTML PUBLIC \"x\">", "<!DOCTYPE\nhtml\n>", "<html>", "<HTML lang=en>",
            "<html/>", " \r\n\t<html>", "<!-- x --> <!-- > --><html>", "<!--><html>",
            "<?xml version='1.0'?><!DOCTYPE html>", "<?xml version='1.0'?>\n<!-- x -->\n<html xmlns='x'>",
            "\xEF\xBB\xBF<html>", "<!doctype html", "<html"})
        EXPECT_TRUE(looksLikeHtml(page)) << page;
}

TEST(LooksLikeHtml, NothingElseIsRecognized)
{
    for (const char *page : {"", "words", "<p>", "<htmlx>", "<!DOCTYPE svg>", "<!DOCTYPE htmlx>", "x<html>",
             "<!-- <html>", "<?xml version='1.0'?><svg>", "{\\rtf1", "<", "<!", "\xEF\xBB\xBF",
             "<head><html>", "<!doctype", "<!doctype "})
        EXPECT_FALSE(looksLikeHtml(page)) << page;
}

TEST(LooksLikeHtml, Utf16OfEitherOrderMayHaveAMarkOrNone)
{
    for (const char *encoding : {"UTF-16LE", "UTF-16BE"}) {
        const QByteArray mark = QByteArray(encoding).endsWith("LE") ? "\xFF\xFE" : "\xFE\xFF";
        const QByteArray page = encodeText(QStringLiteral("\n<!DOCTYPE html><p>é"), encoding);
        EXPECT_TRUE(looksLikeHtml(page)) << encoding;
        EXPECT_TRUE(looksLikeHtml(mark + page)) << encoding;
        EXPECT_FALSE(looksLikeHtml(encodeText(QStringLiteral("words <html>"), encoding))) << encoding;
    }
}

TEST(LooksLikeHtml, ReadsOnlyTheFirst64Kilobytes)
{
    EXPECT_TRUE(looksLikeHtml("<!--" + QByteArray(60'000, 'x') + "--><html>"));
    EXPECT_FALSE(looksLikeHtml(QByteArray(70'000, ' ') + "<html>"));
}
