// SPDX-License-Identifier: MIT
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/printing/PrintServer.h"

#include "platform/printing/PrinterDescription.h"

using ::testing::ElementsAre;

namespace {

std::vector<QString> names(const PrinterDescription &description)
{
    std::vector<QString> result;
    for (const Paper &paper : description.papers)
        result.push_back(paper.ppdName.value_or(QString()));
    return result;
}

} // namespace

TEST(PrinterDescription, PapersComeInTheOrderOfTheChoicesWithSizeAndMargins)
{
    const PrinterDescription description = parsePrinterDescription(oddPrinterDescription);
    ASSERT_THAT(names(description),
        ElementsAre(QStringLiteral("Letter"), QStringLiteral("A4"), QStringLiteral("A5"),
            QStringLiteral("Legal"), QStringLiteral("OddCard")));
    const Paper &card = description.papers.back();
    EXPECT_EQ(card.size, QSizeF(300, 500));
    EXPECT_EQ(card.margins, (PaperMargins{.top = 50, .left = 20, .bottom = 30, .right = 40}));
    EXPECT_FALSE(card.identifier);
    EXPECT_EQ(description.defaultPaperName, QStringLiteral("A4"));
}

TEST(PrinterDescription, AnyLineEndSpacingAndOrderOfStatementsWillDo)
{
    const PrinterDescription description = parsePrinterDescription(
        "*PaperDimension  Wide/Very wide :\t\"100.5 200\"\r*ImageableArea Wide: \"1 2 99 197\"\r\n"
        "*PageSize\tWide: \"x\"\n*DefaultPageSize:Wide\n");
    ASSERT_EQ(description.papers.size(), 1U);
    EXPECT_EQ(description.papers[0].size, QSizeF(100.5, 200));
    EXPECT_EQ(description.papers[0].margins, (PaperMargins{.top = 3, .left = 1, .bottom = 2, .right = 1.5}));
    EXPECT_EQ(description.defaultPaperName, QStringLiteral("Wide"));
}

TEST(PrinterDescription, ChoicesWithoutASensibleSizeAreLeftOut)
{
    const QByteArray file = "*PageSize None: \"\"\n"
                            "*PageSize Zero: \"\"\n*PaperDimension Zero: \"0 100\"\n"
                            "*PageSize Negative: \"\"\n*PaperDimension Negative: \"100 -1\"\n"
                            "*PageSize Endless: \"\"\n*PaperDimension Endless: \"inf 100\"\n"
                            "*PageSize NoNumber: \"\"\n*PaperDimension NoNumber: \"nan nan\"\n"
                            "*PageSize Huge: \"\"\n*PaperDimension Huge: \"1e9 100\"\n"
                            "*PageSize One: \"\"\n*PaperDimension One: \"100\"\n"
                            "*PageSize Three: \"\"\n*PaperDimension Three: \"100 100 100\"\n"
                            "*PageSize Good: \"\"\n*PaperDimension Good: \"100 100\"\n";
    EXPECT_THAT(names(parsePrinterDescription(file)), ElementsAre(QStringLiteral("Good")));
}

TEST(PrinterDescription, MarginsThatAreMissingOrNegativeOrNoNumbersAreZero)
{
    for (const QByteArray area : {"", "*ImageableArea A: \"-5 -5 105 205\"\n",
             "*ImageableArea A: \"1 1 99\"\n", "*ImageableArea A: \"inf nan 1 1\"\n"}) {
        const PrinterDescription description =
            parsePrinterDescription("*PageSize A: \"\"\n*PaperDimension A: \"100 200\"\n" + area);
        ASSERT_EQ(description.papers.size(), 1U);
        EXPECT_EQ(description.papers[0].margins, PaperMargins()) << area.constData();
    }
}

TEST(PrinterDescription, AMarginIsNotWiderThanThePaper)
{
    const PrinterDescription description = parsePrinterDescription(
        "*PageSize A: \"\"\n*PaperDimension A: \"100 200\"\n*ImageableArea A: \"1e9 1e9 -1e9 -1e9\"\n");
    ASSERT_EQ(description.papers.size(), 1U);
    EXPECT_EQ(
        description.papers[0].margins, (PaperMargins{.top = 200, .left = 100, .bottom = 200, .right = 100}));
}

TEST(PrinterDescription, WhatIsNoDescriptionHasNoPapers)
{
    for (const QByteArray &file : {QByteArray(), QByteArray("*"), QByteArray("*:"), QByteArray(": \""),
             QByteArray("*PageSize:\n*PaperDimension: \"1 1\"\n"), QByteArray("*% *PageSize A: \"\"\n"),
             QByteArray("<html>no such printer</html>"), QByteArray(100'000, '\0')}) {
        const PrinterDescription description = parsePrinterDescription(file);
        EXPECT_TRUE(description.papers.empty()) << file.toStdString();
        EXPECT_FALSE(description.defaultPaperName) << file.toStdString();
    }
}

TEST(PrinterDescription, AnUnknownDefaultIsNone)
{
    EXPECT_FALSE(parsePrinterDescription("*DefaultPageSize: Unknown\n").defaultPaperName);
}

TEST(PrinterDescription, OfAnEndlessListTheFirstThousandPapersAreRead)
{
    QByteArray file;
    for (int number = 0; number < 20'000; ++number) {
        const QByteArray name = QByteArray::number(number);
        file += "*PageSize " + name + ": \"\"\n*PaperDimension " + name + ": \"100 200\"\n";
    }
    EXPECT_EQ(parsePrinterDescription(file).papers.size(), 1000U);
}
