// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/RtfDocuments.h"

using namespace RtfDocuments;

namespace {

QString familyIn(const QByteArray &fontTable)
{
    return fontAt("{\\fonttbl" + fontTable + "}\\f3 x").family;
}

} // namespace

TEST(RtfReader, HasNoFontIfTheDocumentNamesNone)
{
    EXPECT_FALSE(attributesAt("x").font.has_value());
    EXPECT_FALSE(attributesAt(R"({\fonttbl{\f0 Some;}}\pard\plain\qc\cf1\ul x)").font.has_value());
    EXPECT_FALSE(attributesAt(R"(\fs40\b\plain x)").font.has_value());
    EXPECT_FALSE(attributesAt(R"({\b y}x)").font.has_value());
}

TEST(RtfReader, HasAFontWithoutAFamilyAfterAnyFontWord)
{
    for (const char *word : {"\\b0", "\\i0", "\\fs24", "\\expndtw0", "\\up0", "\\nosupersub"}) {
        EXPECT_EQ(fontAt(QByteArray(word) + " x"), FontAttributes{}) << word;
    }
}

TEST(RtfReader, ReadsFontTablesWithAndWithoutGroups)
{
    EXPECT_EQ(
        familyIn(R"({\f3\froman\fcharset0\fprq2 Times New Roman;})"), QStringLiteral("Times New Roman"));
    EXPECT_EQ(familyIn(R"(\f1\fnil Other;\f3\fswiss\fcharset0 Helvetica;)"), QStringLiteral("Helvetica"));
    EXPECT_EQ(familyIn(R"({\f3 Helvetica;\f4 Other;})"), QStringLiteral("Helvetica"));
    EXPECT_EQ(familyIn(R"({\f4 Other;}{\f3 First;}{\f3 Second;})"), QStringLiteral("Second"));
}

TEST(RtfReader, ReadsANameWithoutItsSemicolon)
{
    EXPECT_EQ(familyIn(R"({\f3 Some}{\f4 Other})"), QStringLiteral("Some"));
    EXPECT_EQ(familyIn(R"(\f3 Some\f4 Other)"), QString());
    EXPECT_EQ(familyIn(R"(\f4 Other;\f3 Some)"), QStringLiteral("Some"));
}

TEST(RtfReader, IgnoresGroupsInsideOfAFont)
{
    EXPECT_EQ(familyIn(R"({\f3{\*\panose 02}{\*\fname Untagged;}Some{\*\falt Else}{\fontemb 00};})"),
        QStringLiteral("Some00"));
    EXPECT_EQ(familyIn(R"({\f3 Some{\*\falt Else};})"), QStringLiteral("Some"));
    EXPECT_EQ(familyIn(R"({\f3 Some{\falt Else};})"), QStringLiteral("Some"));
}

TEST(RtfReader, ShowsNothingOfAFontTable)
{
    EXPECT_EQ(familyIn(R"({\f3 So{\fldrslt m}{\footnote e};})"), QStringLiteral("Some"));
    EXPECT_EQ(textOf(R"({\fonttbl{\f3 So{\fldrslt m}{\footnote e}\par\cell;}x}y)"), QStringLiteral("y"));
}

TEST(RtfReader, ReadsANameInUnicodeAndInItsOwnCodePage)
{
    EXPECT_EQ(familyIn(R"({\f3\fcharset128 \'82\'6c\'82r;})"), QStringLiteral(u"ＭＳ"));
    EXPECT_EQ(familyIn(R"({\f3\fcharset0 {\upr{Stra?e}{\*\ud{Stra\u223 ?e}}};})"), QStringLiteral(u"Straße"));
    const QByteArray symbols = R"({\fonttbl{\f3\fcharset2 Caf\'e9;}}\f3\emdash)";
    EXPECT_EQ(fontAt(symbols, QChar(0x2014)).family, QStringLiteral(u"Café"));
}

TEST(RtfReader, KeepsBlanksAndSemicolonsInANameOnlyIfTheyAreEscaped)
{
    EXPECT_EQ(familyIn("{\\f3\\fnil \n   {\\*\\panose 02}  Some Font  ;}"), QStringLiteral("Some Font"));
    EXPECT_EQ(familyIn(R"({\f3\fnil\uc0 \u32 a\u59 b\u32 ;})"), QStringLiteral(" a;b "));
    EXPECT_EQ(familyIn(R"({\f3\fnil a\'3bb;})"), QStringLiteral("a;b"));
}

TEST(RtfReader, HasNoFamilyForAnUnknownFontNumber)
{
    EXPECT_EQ(fontAt(R"({\fonttbl{\f3 Some;}}\f4 x)").family, QString());
}

TEST(RtfReader, StartsInTheDefaultFontAndReturnsToItByPlain)
{
    const QByteArray head = R"(\deff3{\fonttbl{\f3 Some;}{\f4 Other;}})";
    EXPECT_EQ(fontAt(head + "x"), (FontAttributes{.family = QStringLiteral("Some")}));
    EXPECT_EQ(fontAt(head + R"(\f4\fs40\b\i\up6\expndtw20\super\plain x)"),
        (FontAttributes{.family = QStringLiteral("Some")}));
    EXPECT_EQ(fontAt(head + R"({\f4 y}x)").family, QStringLiteral("Some"));
}

TEST(RtfReader, ReadsSizes)
{
    EXPECT_EQ(fontAt(R"(\fs25 x)").pointSize, 12.5);
    EXPECT_EQ(fontAt(R"(\fs25\fsmilli12600 x)").pointSize, 12.6);
    EXPECT_EQ(fontAt(R"(\b\fs0\fs-20 x)").pointSize, 12);
}

TEST(RtfReader, ReadsBoldAndItalicOnAndOff)
{
    EXPECT_EQ(fontAt(R"(\b x)").weight, 700);
    EXPECT_EQ(fontAt(R"(\b\b0 x)").weight, 400);
    EXPECT_EQ(fontAt(R"(\i1 x)").slant, FontSlant::Italic);
    EXPECT_EQ(fontAt(R"(\i\i0 x)").slant, FontSlant::Upright);
}

TEST(RtfReader, ReadsTracking)
{
    EXPECT_EQ(fontAt(R"(\expnd6 x)").tracking, 1.5);
    EXPECT_EQ(fontAt(R"(\expnd-1\expndtw-4 x)").tracking, -0.2);
    EXPECT_EQ(fontAt(R"(\expndtw5\kerning1\expnd0\expndtw0 x)").tracking, 0);
}

TEST(RtfReader, ReadsBaselineOffsets)
{
    EXPECT_EQ(fontAt(R"(\up5 x)").baselineOffset, 2.5);
    EXPECT_EQ(fontAt(R"(\dn4 x)").baselineOffset, -2);
    EXPECT_EQ(fontAt(R"(\up x)").baselineOffset, 3);
    EXPECT_EQ(fontAt(R"(\super\fs36 x)").baselineOffset, 6);
    EXPECT_EQ(fontAt(R"(\fs36\sub x)").baselineOffset, -6);
    EXPECT_EQ(fontAt(R"(\fs36\super\nosupersub x)").baselineOffset, 0);
}

TEST(RtfReader, KeepsFormatsToTheirGroup)
{
    const AttributedString text = read(document(R"(a{\b b{\i c}d}e)"));
    ASSERT_EQ(text.runCount(), 5);
    EXPECT_EQ(text.attributesAt(1).font->weight, 700);
    EXPECT_EQ(text.attributesAt(2).font->slant, FontSlant::Italic);
    EXPECT_EQ(text.attributesAt(3).font->slant, FontSlant::Upright);
    EXPECT_FALSE(text.attributesAt(4).font.has_value());
}

TEST(RtfReader, MakesOneRunOfTextWithOneFormat)
{
    EXPECT_EQ(read(document(R"(a{\b b}{\cf2\b c}\b\ul d\par{\plain\b e})")).runCount(), 2);
}

TEST(RtfReader, ReadsLanguages)
{
    EXPECT_EQ(attributesAt("x").language, QString());
    EXPECT_EQ(attributesAt(R"(\lang1033 x)").language, QStringLiteral("en-US"));
    EXPECT_EQ(attributesAt(R"(\lang1031\lang1024 x)").language, QString());
    EXPECT_EQ(attributesAt(R"(\lang1031\lang-7\lang0 x)").language, QString());
    EXPECT_EQ(attributesAt(R"(\lang1031\langfe2052 x)").language, QStringLiteral("de-DE"));
    EXPECT_EQ(attributesAt(R"(\lang1024\noproof\langnp1031 x)").language, QStringLiteral("de-DE"));
    EXPECT_EQ(attributesAt(R"(\lang1031\langnp1024 x)").language, QStringLiteral("de-DE"));
    EXPECT_EQ(attributesAt(R"(\deflang1036\lang1031\plain x)").language, QStringLiteral("fr-FR"));
    EXPECT_FALSE(attributesAt(R"(\lang1031 x)").font.has_value());
}
