// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/RtfDocuments.h"

using namespace RtfDocuments;

TEST(RtfTable, EveryCellEndsAParagraph)
{
    EXPECT_EQ(textOf(R"(\trowd\cellx9\intbl a\cell b\cell\row \intbl c\cell d\cell\row\pard e)"),
        QStringLiteral("a\nb\nc\nd\ne"));
    EXPECT_EQ(textOf(R"({a\cell}{\b b\cell}{\i\row})"), QStringLiteral("a\nb\n"));
    EXPECT_EQ(textOf(R"(a\par b\cell c\cell\row)"), QStringLiteral("a\nb\nc\n"));
}

TEST(RtfTable, AnEmptyCellIsAnEmptyParagraph)
{
    EXPECT_EQ(textOf(R"(\cell\cell\row)"), QStringLiteral("\n\n"));
    EXPECT_EQ(textOf(R"(a\cell\cell\row\cell b\cell\row)"), QStringLiteral("a\n\n\nb\n"));
    EXPECT_EQ(textOf(R"({\v a\cell}b\cell\row)"), QStringLiteral("\nb\n"));
}

TEST(RtfTable, ARowEndsATextThatNoCellHasEnded)
{
    EXPECT_EQ(textOf(R"(a\cell b\row c)"), QStringLiteral("a\nb\nc"));
    EXPECT_EQ(textOf(R"(a\cell b\row)"), QStringLiteral("a\nb"));
    EXPECT_EQ(textOf(R"(a\par\row b)"), QStringLiteral("a\nb"));
}

TEST(RtfTable, ATableInsideACellHasParagraphsOfItsOwn)
{
    EXPECT_EQ(
        textOf(
            R"(a\par b\nestcell c\nestcell{\*\nesttableprops\trowd\cellx9\nestrow}{\nonesttables\par}d\cell e\cell\row)"),
        QStringLiteral("a\nb\nc\nd\ne\n"));
    EXPECT_EQ(
        textOf(R"(b\nestcell{\*\nesttableprops\trowd\cellx9\nestrow}{\nonesttables\par}\cell e\cell\row)"),
        QStringLiteral("b\n\ne\n"));
}

TEST(RtfTable, InANoteFollowsTheBody)
{
    EXPECT_EQ(textOf(R"(one{\footnote a\cell b\cell\row} two)"), QStringLiteral("one two\na\nb\n"));
}

TEST(RtfTable, InADestinationWithoutTextIsIgnored)
{
    EXPECT_EQ(textOf(R"(a{\header b\cell\row}c)"), QStringLiteral("ac"));
    EXPECT_EQ(textOf(R"(a{\listtext b\cell\row}c)"), QStringLiteral("ac"));
}
