// SPDX-License-Identifier: MIT
#include "preferences/QBYPaper.h"

#include "tests/harness/QuillbayTest.h"
#include "tests/preferences/PaperTestPrinter.h"

class QBYPaperTest : public QuillbayTest {
protected:
    static Paper card()
    {
        return {QStringLiteral("Card"), QStringLiteral("custom_card"), true, QSizeF(300, 500),
            PaperMargins{.top = 10, .left = 72, .bottom = 20, .right = 36}};
    }

    PaperTestSettings m_print;
};

TEST_F(QBYPaperTest, HoldsTheDataOfThePrintingSystem)
{
    const QBYPaper paper(card());
    EXPECT_TRUE(paper.isCustom());
    EXPECT_EQ(paper.pmPaper(), card());
    EXPECT_EQ(paper.paperName(), QStringLiteral("Card"));
    EXPECT_EQ(paper.paperID(), QStringLiteral("custom_card"));
    EXPECT_EQ(paper.paperSize(), QSizeF(300, 500));
    EXPECT_EQ(paper.topMarginInScreen(), 10);
    EXPECT_EQ(paper.leftMarginInScreen(), 72);
    EXPECT_EQ(paper.bottomMarginInScreen(), 20);
    EXPECT_EQ(paper.rightMarginInScreen(), 36);
}

TEST_F(QBYPaperTest, NameAndIdentifierAreAbsentIfThePrintingSystemHasNone)
{
    const QBYPaper paper{Paper()};
    EXPECT_EQ(paper.paperName(), std::nullopt);
    EXPECT_EQ(paper.paperID(), std::nullopt);
    EXPECT_FALSE(paper.isCustom());
}

TEST_F(QBYPaperTest, AtAHundredPerCentAnInchIs72Points)
{
    m_print.setAnswer(printerWith({"Letter"}, 100));
    const QBYPaper paper(card());
    EXPECT_EQ(paper.getScreenScaleFactor(), 1);
    EXPECT_EQ(paper.leftMarginInInches(), 1);
    EXPECT_EQ(paper.rightMarginInInches(), 0.5);
    EXPECT_EQ(paper.screenNumberToInch(144), 2);
    EXPECT_EQ(paper.inchToScreenNumber(1), 72);
}

TEST_F(QBYPaperTest, AtFiftyPerCentAMarginOf72PointsIsHalfAnInchAndAnInchIs144Points)
{
    m_print.setAnswer(printerWith({"Letter"}, 50));
    const QBYPaper paper(card());
    EXPECT_EQ(paper.getScreenScaleFactor(), 0.5);
    EXPECT_EQ(paper.leftMarginInInches(), 0.5);
    EXPECT_EQ(paper.rightMarginInInches(), 0.25);
    EXPECT_EQ(paper.inchToScreenNumber(1), 144);
    EXPECT_EQ(paper.leftMarginInScreen(), 72) << "points are not scaled";
    EXPECT_EQ(paper.paperSize(), QSizeF(300, 500));
}

TEST_F(QBYPaperTest, WithoutAPrinterOrAnAnswerTheFactorIsOne)
{
    for (const PrinterFailure failure : {PrinterFailure::NoPrinter, PrinterFailure::NotAnswering}) {
        m_print.setAnswer(failure);
        EXPECT_EQ(QBYPaper(card()).getScreenScaleFactor(), 1);
        EXPECT_EQ(QBYPaper(card()).leftMarginInInches(), 1);
    }
}

TEST_F(QBYPaperTest, APaperIsFoundByNameInTheSharedPrintSettings)
{
    m_print.setAnswer(printerWith({"Letter", "Card"}));
    const std::optional<QBYPaper> paper = QBYPaper::paperObjectForPaperName(QStringLiteral("Card"));
    ASSERT_TRUE(paper);
    EXPECT_EQ(paper->paperID(), QStringLiteral("Card-id"));
    EXPECT_FALSE(QBYPaper::paperObjectForPaperName(QStringLiteral("A5")));
}
