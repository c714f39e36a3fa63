// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/RtfDocuments.h"

using namespace RtfDocuments;

namespace {

QString textOfFormula(const QByteArray &formula)
{
    return textOf(R"(so {\mmath{\*\moMath )" + formula + R"(}{\mmathPict{\pict 00ff}}} on)");
}

} // namespace

TEST(RtfFormula, HasTheTextOfItsRuns)
{
    EXPECT_EQ(textOfFormula(R"({\mr x}{\mr =}{\mr\mscr0\msty2{\i y}})"), QStringLiteral("so x=y on"));
    EXPECT_EQ(textOf(R"(a{\mmath{\*\moMathPara{\*\moMathParaPr{\mjc left}}{\*\moMath{\mr b}}}}c)"),
        QStringLiteral("abc"));
    EXPECT_EQ(textOfFormula(R"({\msSup{\msSupPr{\mctrlPr\f1 no}}{\me{\mr r}}{\msup{\mr 2}}})"),
        QStringLiteral("so r2 on"));
}

TEST(RtfFormula, HasNoTextInItsProperties)
{
    EXPECT_EQ(
        textOfFormula(
            R"({\mnary{\mnaryPr{\mchr \u8721?}{\mlimLoc undOvr}}{\msub{\mr i}}{\msup{\mr n}}{\me{\mr x}}})"),
        QStringLiteral("so inx on"));
    EXPECT_EQ(textOfFormula(R"({\md{\mdPr{\mbegChr [}{\msepChr ,}{\mendChr ]}}{\me{\mr a}}{\me{\mr b}}})"),
        QStringLiteral("so ab on"));
    EXPECT_EQ(textOf(R"({\*\mmathPr\mmathFont34\mwrapIndent1440 no}a)"), QStringLiteral("a"));
}

TEST(RtfFormula, KeepsThePartsOfAFractionApart)
{
    EXPECT_EQ(textOfFormula(R"({\mf{\mfPr{\mtype bar}}{\mnum{\mr 3}}{\mden{\mr 4}}})"),
        QStringLiteral("so 3 4 on"));
    EXPECT_EQ(textOf(R"(so {\mmath{\*\moMath{\mr 2}{\mf{\mnum{\mr 3}}{\mden{\mr 4}}}}}on.\par b)"),
        QStringLiteral("so 2 3 4 on.\nb"));
    EXPECT_EQ(
        textOf(
            R"({\mmath{\*\moMath{\mf{\mnum{\mf{\mnum{\b 1}}{\mden{\mr 2}}}}{\mden{\mr x}{\i y}}}}}\par b)"),
        QStringLiteral("1 2 xy\nb"));
    EXPECT_EQ(textOf(R"({\mmath{\*\moMath{\mf{\mnum}{\mden}}}}\par a)"), QStringLiteral("\na"));
}

TEST(RtfFormula, KeepsTheCellsOfAMatrixAndTheLinesOfAnEquationArrayApart)
{
    const QByteArray matrix = R"({\mm{\mmPr{\mmcs{\mmc{\mmcPr{\mcount 2}}}}})"
                              R"({\mmr{\me{\mr a}}{\me{\mr b}}}{\mmr{\me{\mr c}}{\me{\mr d}}}})";
    EXPECT_EQ(textOfFormula(R"({\mr A}{\md{\mdPr{\mbegChr [}}{\me)" + matrix + "}}"),
        QStringLiteral("so A a b c d on"));
    EXPECT_EQ(textOfFormula(R"({\meqArr{\meqArrPr}{\me{\mr x}}{\me{\msSup{\me{\mr y}}{\msup{\mr 2}}}}})"),
        QStringLiteral("so x y2 on"));
}

TEST(RtfFormula, ThatIsHiddenOrInADestinationWithoutTextHasNone)
{
    EXPECT_EQ(textOf(R"(a{\v{\mmath{\*\moMath{\mf{\mnum{\mr 3}}{\mden{\mr 4}}}}}}b)"), QStringLiteral("ab"));
    EXPECT_EQ(
        textOf(R"(a{\header{\mmath{\*\moMath{\mf{\mnum{\mr 3}}{\mden{\mr 4}}}}}}b)"), QStringLiteral("ab"));
}
