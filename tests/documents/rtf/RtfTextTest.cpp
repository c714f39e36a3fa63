// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/RtfDocuments.h"

using namespace RtfDocuments;

using Cause = DocumentError::Cause;

TEST(RtfReader, RecognizesRtfByItsFirstBytes)
{
    EXPECT_TRUE(looksLikeRtf("{\\rtf1 text}"));
    EXPECT_TRUE(looksLikeRtf("\xEF\xBB\xBF \r\n\t{\\rtf"));
    for (const char *bytes : {"", "{", "{\\rt", "\\rtf1 text", "x{\\rtf1 text}", "{ \\rtf1 text}"}) {
        EXPECT_FALSE(looksLikeRtf(bytes)) << bytes;
        EXPECT_EQ(readRtf(bytes).error().cause, Cause::WrongKind) << bytes;
    }
}

TEST(RtfReader, NamesTheCauseOfAFailure)
{
    EXPECT_EQ(causeText({Cause::WrongKind, DocumentKind::Rtf}), QStringLiteral("is not RTF"));
    EXPECT_EQ(causeText({Cause::TooLong, DocumentKind::Rtf}), QStringLiteral("is larger than 2 GiB"));
    EXPECT_EQ(causeText({Cause::NotEnoughMemory, DocumentKind::Rtf}), QStringLiteral("not enough memory"));
}

TEST(RtfReader, ReadsTheGroupOfTheDocument)
{
    EXPECT_EQ(textOf("one {two} three"), QStringLiteral("one two three"));
    EXPECT_EQ(read("{\\rtf1}").length(), 0);
    EXPECT_EQ(read("\xEF\xBB\xBF\n{\\rtf1 text}").string(), QStringLiteral("text"));
}

TEST(RtfReader, IgnoresWhatFollowsTheDocumentsGroup)
{
    EXPECT_EQ(read("{\\rtf1 one} two {three}").string(), QStringLiteral("one"));
    EXPECT_EQ(read("{\\rtf1 one}} two").string(), QStringLiteral("one"));
}

TEST(RtfReader, AssumesMissingBracesAtTheEnd)
{
    EXPECT_EQ(read("{\\rtf1 one {\\b two").string(), QStringLiteral("one two"));
    EXPECT_EQ(read("{\\rtf1 one \\").string(), QStringLiteral("one "));
}

TEST(RtfReader, IgnoresLineEndsAndNulsOfTheSource)
{
    EXPECT_EQ(textOf(QByteArray("one\r\n two\n\0three", 16)), QStringLiteral("one twothree"));
}

TEST(RtfReader, ReadsEscapedBackslashesAndBraces)
{
    EXPECT_EQ(textOf(R"(\\ \{\})"), QStringLiteral("\\ {}"));
}

TEST(RtfReader, SkipsTheBlankAfterAWord)
{
    EXPECT_EQ(textOf(R"(a\b b\b0  c\i-d\fs-12e)"), QStringLiteral("ab c-de"));
}

TEST(RtfReader, ReadsTheEndsOfParagraphsLinesSectionsAndPages)
{
    EXPECT_EQ(
        textOf(R"(a\par b\line c\sect d\page e\column f)"), QStringLiteral(u"a\nb\u2028c\nd\u000Ce\u000Cf"));
    EXPECT_EQ(textOf("a\\\nb\\\rc\\\r\nd"), QStringLiteral("a\nb\nc\nd"));
}

TEST(RtfReader, ReadsTabsInEveryForm)
{
    EXPECT_EQ(textOf("a\\tab b\tc\\\td"), QStringLiteral("a\tb\tc\td"));
}

TEST(RtfReader, ReadsTheWordsForCharacters)
{
    EXPECT_EQ(textOf(R"(\emdash\endash\emspace\enspace\qmspace\bullet)"),
        QStringLiteral(u"\u2014\u2013\u2003\u2002\u2005\u2022"));
    EXPECT_EQ(textOf(R"(\lquote\rquote\ldblquote\rdblquote)"), QStringLiteral(u"\u2018\u2019\u201C\u201D"));
    EXPECT_EQ(textOf(R"(a\~b\_c\-d)"), QStringLiteral(u"a\u00A0b\u2011c\u00ADd"));
    EXPECT_EQ(textOf(R"(\zwj\zwnj\zwbo\zwnbo\ltrmark\rtlmark)"),
        QStringLiteral(u"\u200D\u200C\u200B\u2060\u200E\u200F"));
}

TEST(RtfReader, LeavesOutGeneratedNumbersAndDates)
{
    EXPECT_EQ(textOf(R"(a\chdate\chtime\chpgn\sectnum\chftn\chatn b)"), QStringLiteral("ab"));
}

TEST(RtfReader, IgnoresUnknownWordsAndSymbols)
{
    EXPECT_EQ(textOf(R"(a\unheardof12 b\Par c\|d\:e\;f)"), QStringLiteral("abcdef"));
}

TEST(RtfReader, ReadsUnicodeOfEitherSign)
{
    EXPECT_EQ(textOf(R"(\u8364?\u-10179?\u-8704?\u61623?)"), QStringLiteral(u"\u20AC\U0001F600\uF0B7"));
    EXPECT_EQ(textOf(R"(\u128512?)"), QStringLiteral(u"\U0001F600"));
}

TEST(RtfReader, KeepsLoneSurrogates)
{
    const char16_t units[] = {0xD83D, u'a', 0xDE00};
    EXPECT_EQ(textOf(R"(\uc0\u-10179 a\u-8704 )"), QStringView(units, 3).toString());
}

TEST(RtfReader, ReplacesUnicodeBeyondItsEnd)
{
    EXPECT_EQ(textOf(R"(\u1114112?\u-32769?\u99999999999999999999?)"), QString(3, QChar(0xFFFD)));
}

TEST(RtfReader, SkipsTheAnnouncedNumberOfFallbackCharacters)
{
    EXPECT_EQ(textOf(R"(\u228?b)"), QStringLiteral(u"äb"));
    EXPECT_EQ(textOf(R"(\uc0\u228 b)"), QStringLiteral(u"äb"));
    EXPECT_EQ(textOf(R"(\uc3\u228 xyzb)"), QStringLiteral(u"äb"));
    EXPECT_EQ(textOf(R"(\uc2\u228\'8d\'90b)"), QStringLiteral(u"äb"));
    EXPECT_EQ(textOf("\\uc2\\u228 x\r\nyb"), QStringLiteral(u"äb"));
    EXPECT_EQ(textOf(R"(\uc-3\u228 b)"), QStringLiteral(u"äb"));
}

TEST(RtfReader, CountsASymbolAWordForACharacterAndBinaryDataAsOneFallback)
{
    EXPECT_EQ(textOf(R"(\u228\~b)"), QStringLiteral(u"äb"));
    EXPECT_EQ(textOf(R"(\u8212\emdash b)"), QStringLiteral(u"\u2014b"));
    EXPECT_EQ(textOf(R"(\uc2\u228\bin3 }}}xb)"), QStringLiteral(u"äb"));
}

TEST(RtfReader, NeverSkipsFormattingAsAFallback)
{
    EXPECT_EQ(textOf(R"(\uc2\u228\par b)"), QStringLiteral(u"ä\nb"));
    EXPECT_EQ(textOf("\\u228\\\nb"), QStringLiteral(u"ä\nb"));
    EXPECT_EQ(textOf(R"(\u-10179\u-8704?b)"), QStringLiteral(u"\U0001F600b"));
}

TEST(RtfReader, EndsTheFallbackAtTheEdgesOfGroups)
{
    EXPECT_EQ(textOf(R"({\uc3\u228 x}bcd)"), QStringLiteral(u"äbcd"));
    EXPECT_EQ(textOf(R"(\uc3\u228 x{bcd})"), QStringLiteral(u"äbcd"));
}

TEST(RtfReader, KeepsTheFallbacksLengthToItsGroup)
{
    EXPECT_EQ(textOf(R"(\uc0{\uc2\u228 xy}\u228 b)"), QStringLiteral(u"ääb"));
}
