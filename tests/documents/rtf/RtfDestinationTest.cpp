// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/RtfDocuments.h"

using namespace RtfDocuments;

TEST(RtfReader, KeepsTheResultOfAFieldAndDropsItsInstruction)
{
    EXPECT_EQ(textOf(R"(a {\field\fldedit{\*\fldinst{HYPERLINK "x"}}{\fldrslt{\ul shown}}} b)"),
        QStringLiteral("a shown b"));
    EXPECT_EQ(textOf(R"({\field{\fldinst PAGE}{\fldrslt 7}})"), QStringLiteral("7"));
    EXPECT_EQ(
        textOf(
            R"({\field{\*\fldinst IF {\field{\*\fldinst x}{\fldrslt inner}}}{\fldrslt {\field{\*\fldinst y}{\fldrslt deep}}}})"),
        QStringLiteral("deep"));
}

TEST(RtfReader, PrefersTheUnicodeAlternative)
{
    EXPECT_EQ(textOf(R"(a{\upr{old {\b older}}{\*\ud{n\u235 ?w}}}b)"), QStringLiteral(u"anëwb"));
}

TEST(RtfReader, DropsDestinationsWithoutText)
{
    for (const char *destination :
        {"info{\\title t}", "stylesheet{\\s1 Heading;}", "colortbl;\\red1;", "header h", "headerl h",
            "headerr h", "headerf h", "footer f", "footerl f", "footerr f", "footerf f", "pict 00ff",
            "nonshppict{\\pict 00}", "xe entry", "tc entry", "bkmkstart name", "filetbl{\\file x}",
            "listtable{\\list x}", "annotation comment", "ftnsep s", "generator Program;", "falt other"}) {
        EXPECT_EQ(textOf("a{\\" + QByteArray(destination) + "}b"), QStringLiteral("ab")) << destination;
        EXPECT_EQ(textOf("a{\\*\\" + QByteArray(destination) + "}b"), QStringLiteral("ab")) << destination;
    }
}

TEST(RtfReader, DropsUnknownStarredDestinations)
{
    EXPECT_EQ(textOf(R"(a{\*\unheardof x{y\par}\'41\u65?}b)"), QStringLiteral("ab"));
    EXPECT_EQ(textOf(R"(a{\*\b x}b)"), QStringLiteral("ab"));
    EXPECT_EQ(textOf(R"(a{\*\shppict{\pict\bin4 }}}}}}b)"), QStringLiteral("ab"));
}

TEST(RtfReader, KeepsUnknownGroupsWithoutAStar)
{
    EXPECT_EQ(textOf(R"(a{\unheardof x}b)"), QStringLiteral("axb"));
}

TEST(RtfReader, IgnoresADestinationAtTheStartOfTheDocument)
{
    EXPECT_EQ(textOf(R"(a\header b\*\unheardof c)"), QStringLiteral("abc"));
}

TEST(RtfReader, SkipsBinaryDataByItsLength)
{
    EXPECT_EQ(textOf("a\\bin5 }\\{}}b\\bin0 c\\bin-3 d"), QStringLiteral("abcd"));
    EXPECT_EQ(textOf("a{\\pict\\bin3 }}}ff}b"), QStringLiteral("ab"));
    EXPECT_EQ(textOf("a\\bin99999999999 b"), QStringLiteral("a"));
}

TEST(RtfReader, RecognizesAStarredDestinationOnlyDirectlyAfterTheBrace)
{
    EXPECT_EQ(textOf(R"({\pard\plain\*\cs3 one two\par}three)"), QStringLiteral("one two\nthree"));
    EXPECT_EQ(textOf(R"({one \*\unheardof two} three)"), QStringLiteral("one two three"));
    EXPECT_EQ(textOf(R"({one{}\*\unheardof two})"), QStringLiteral("onetwo"));
    EXPECT_EQ(textOf("a{\r\n\\*\r\n\\unheardof b}c"), QStringLiteral("ac"));
}

TEST(RtfReader, DropsTheNumbersAndBulletsOfLists)
{
    EXPECT_EQ(
        textOf(R"({\listtext\pard\plain 1.\tab}one\par{\pntext\'b7\tab}two)"), QStringLiteral("one\ntwo"));
    EXPECT_EQ(textOf(R"({\listtext	\uc0\u8226 	}one)"), QStringLiteral("one"));
    EXPECT_EQ(textOf(R"({\*\pn\pnlvlbody{\pntxtb (}{\pntxta )}}one)"), QStringLiteral("one"));
}

TEST(RtfReader, PutsNotesAfterTheBodyInTheOrderOfTheirReferences)
{
    EXPECT_EQ(
        textOf(
            R"(one{\super\chftn}{\footnote\pard\plain{\super\chftn} first} two{\footnote\ftnalt second\par third}\par)"),
        QStringLiteral("one two\n first\nsecond\nthird"));
    EXPECT_EQ(textOf(R"(one{\footnote no{\b te}s})"), QStringLiteral("one\nnotes"));
    EXPECT_EQ(textOf(R"(one{\footnote a\par}{\footnote b})"), QStringLiteral("one\na\nb"));
    EXPECT_EQ(textOf(R"(one{\footnote a{\footnote b}c}{\footnote}.)"), QStringLiteral("one.\na\nb\nc"));
}

TEST(RtfReader, DropsTheNoteOfADeletedReference)
{
    EXPECT_EQ(textOf(R"(one{\deleted two{\footnote\plain note}})"), QStringLiteral("one"));
}

TEST(RtfReader, PutsTheTextOfBoxesAfterTheBodyOnce)
{
    EXPECT_EQ(
        textOf(
            R"(one{\shp{\*\shpinst\shpleft0{\sp{\sn name}{\sv value}}{\shptxt\pard box\par}}{\shprslt{\*\do\dptxbx{\dptxbxtext box\par}}}} two)"),
        QStringLiteral("one two\nbox\n"));
    EXPECT_EQ(textOf(R"(one{\*\do\dobxpage{\dptxbxtext box}} two)"), QStringLiteral("one two\nbox"));
    EXPECT_EQ(textOf(R"(one{\*\background{\shp{\*\shpinst{\shptxt no}}}} two)"), QStringLiteral("one two"));
}

TEST(RtfReader, KeepsTheResultOfAnObjectAndDropsItsData)
{
    EXPECT_EQ(textOf(R"(a{\object\objemb{\*\objclass X}{\*\objdata 0102}{\objname n}{\result{\b shown}}}b)"),
        QStringLiteral("ashownb"));
}

TEST(RtfReader, DropsHiddenAndDeletedText)
{
    EXPECT_EQ(textOf(R"(a{\v b\par}c\v d\v0 e\v f\plain g)"), QStringLiteral("aceg"));
    EXPECT_EQ(textOf(R"(a{\deleted b}c\deleted\u228?\tab\deleted0 d{\mvf e})"), QStringLiteral("acd"));
}

TEST(RtfReader, KeepsRevisedText)
{
    EXPECT_EQ(textOf(R"(a{\revised\revauth1 b}c)"), QStringLiteral("abc"));
}
