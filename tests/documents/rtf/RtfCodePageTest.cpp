// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfCodePage.h"

#include "tests/documents/rtf/RtfDocuments.h"

using namespace RtfDocuments;

namespace {

/// The text of bytes in a font with a charset.
QString inCharset(int charset, const QByteArray &bytes)
{
    return textOf(R"({\fonttbl{\f7\fcharset)" + QByteArray::number(charset) + " Some;}}\\f7 " + bytes);
}

} // namespace

TEST(RtfReader, ReadsBytesByTheDocumentsCodePage)
{
    EXPECT_EQ(read("{\\rtf1 \\'80\\'e9}").string(), QStringLiteral(u"\u20ACé"));
    EXPECT_EQ(read("{\\rtf1\\ansi\\ansicpg1251 \\'c4\\'e0}").string(), QStringLiteral(u"Да"));
    EXPECT_EQ(read("{\\rtf1\\mac \\'8e}").string(), QStringLiteral(u"é"));
    EXPECT_EQ(read("{\\rtf1\\pc \\'82\\'9b}").string(), QStringLiteral(u"é\u00A2"));
    EXPECT_EQ(read("{\\rtf1\\pca \\'82\\'9b}").string(), QStringLiteral(u"éø"));
    EXPECT_EQ(read("{\\rtf1\\ansi\\ansicpg0 \\'e9}").string(), QStringLiteral(u"é"));
    EXPECT_EQ(read("{\\rtf1\\ansi\\ansicpg65001 \xC3\xA9\\'c3\\'a9}").string(), QStringLiteral(u"éé"));
}

TEST(RtfReader, ReadsRawBytesLikeEscapedOnes)
{
    EXPECT_EQ(read("{\\rtf1\\ansi\\ansicpg1251 \xC4\xE0!}").string(), QStringLiteral(u"Да!"));
}

TEST(RtfReader, ReplacesInvalidBytes)
{
    EXPECT_EQ(read("{\\rtf1\\ansi\\ansicpg1255 a\\'d9 b}").string(), QStringLiteral(u"a\uFFFD b"));
    EXPECT_EQ(read("{\\rtf1\\ansi\\ansicpg932 a\\'83{}b}").string(), QStringLiteral(u"a\uFFFDb"));
}

TEST(RtfReader, IgnoresAnEscapeWithoutTwoDigits)
{
    EXPECT_EQ(textOf("a\\'zb\\'4"), QStringLiteral("azb4"));
}

TEST(RtfReader, ReadsBytesByTheCharsetOfTheFont)
{
    EXPECT_EQ(inCharset(204, "\\'c4\\'e0"), QStringLiteral(u"Да"));
    EXPECT_EQ(inCharset(238, "\\'b9"), QStringLiteral(u"ą"));
    EXPECT_EQ(inCharset(77, "\\'8e"), QStringLiteral(u"é"));
    EXPECT_EQ(inCharset(134, "\\'b2\\'e2\\'ca\\'d4"), QStringLiteral(u"测试"));
    EXPECT_EQ(inCharset(129, "\\'c7\\'d1"), QStringLiteral(u"한"));
    EXPECT_EQ(inCharset(136, "\\'a4\\'a4"), QStringLiteral(u"中"));
}

TEST(RtfReader, ReadsADefaultOrUnknownCharsetByTheDocumentsCodePage)
{
    for (const int charset : {1, 99, -5}) {
        const QByteArray font = R"({\fonttbl{\f7\fcharset)" + QByteArray::number(charset) + " Some;}}";
        EXPECT_EQ(read("{\\rtf1\\ansi\\ansicpg1251" + font + "\\f7\\'c4}").string(), QStringLiteral(u"Д"));
    }
}

TEST(RtfReader, PrefersTheFontsCodePageToItsCharset)
{
    EXPECT_EQ(textOf(R"({\fonttbl{\f7\fcharset0\cpg1251 Some;}}\f7\'c4)"), QStringLiteral(u"Д"));
}

TEST(RtfReader, EndsAFontsCodePageWithItsGroup)
{
    EXPECT_EQ(textOf(R"({\fonttbl{\f7\fcharset204 Some;}}{\f7\'c4}\'c4)"), QStringLiteral(u"ДÄ"));
}

TEST(RtfReader, ReadsBytesOfTheDefaultFontByItsCharset)
{
    EXPECT_EQ(textOf(R"(\deff7{\fonttbl{\f7\fcharset204 Some;}{\f8 Other;}}\'c4\f8\'c4\plain\'c4)"),
        QStringLiteral(u"ДÄД"));
}

TEST(RtfReader, ReadsBytesByTheCurrentFontTable)
{
    EXPECT_EQ(textOf(R"({\fonttbl{\f7\fcharset204 A;}}\f7\'c4{\fonttbl{\f7\fcharset161 B;}}\'c4)"),
        QStringLiteral(u"ДΔ"));
}

TEST(RtfReader, JoinsTheTwoBytesOfACharacterHoweverTheyAreWritten)
{
    for (const char *bytes : {"\\'83\\'41", "\\'83A", "\x83\\'41",
             "\x83"
             "A",
             "\\'83\r\n\\'41"})
        EXPECT_EQ(inCharset(128, bytes), QStringLiteral(u"ア")) << bytes;
    EXPECT_EQ(inCharset(128, "a\\'83\\'5cb"), QStringLiteral(u"aソb"));
}

TEST(RtfReader, JoinsNoBytesAcrossWordsAndGroups)
{
    EXPECT_EQ(inCharset(128, "\\'83\\b A"), QStringLiteral(u"\uFFFDA"));
    EXPECT_EQ(inCharset(128, "{\\'83}A"), QStringLiteral(u"\uFFFDA"));
}

TEST(RtfReader, ReadsTheLettersOfTheFontSymbolAsGreek)
{
    const QByteArray font = R"({\fonttbl{\f7\fcharset2 Symbol;}}\f7 )";
    EXPECT_EQ(textOf(font + R"(l o\'b7 \u-3999\'67{\plain lo})"), QStringLiteral(u"λ ο\u2022 αlo"));
}

TEST(RtfReader, ReadsOtherSymbolFontsAsTheirPrivateCharacters)
{
    const QByteArray font = R"({\fonttbl{\f7\fcharset2 Wingdings;}}\f7 )";
    EXPECT_EQ(textOf(font + R"(a b\'fc\tab\~)"), QStringLiteral(u"\uF061 \uF062\uF0FC\t\u00A0"));
    EXPECT_EQ(textOf(R"({\fonttbl{\f7\fcharset0 Symbol;}}\f7 a)"), QStringLiteral("a"));
}

TEST(RtfCodePage, HasAConverterForEachOfItsPages)
{
    for (qint32 number = 0; number <= 65'535; ++number) {
        if (const RtfCodePage *page = rtfCodePage(number); page && page->encoding) {
            const QByteArray rtf = "{\\rtf1\\ansi\\ansicpg" + QByteArray::number(number) + " A\\'41}";
            EXPECT_EQ(read(rtf).string(), QStringLiteral("AA")) << number;
        }
    }
    EXPECT_EQ(rtfCodePage(1253)->number, 1253);
    EXPECT_EQ(rtfCodePage(-42), nullptr);
}
