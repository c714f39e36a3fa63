// SPDX-License-Identifier: MIT
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/printing/PrintServer.h"

#include "platform/printing/PrinterSource.h"

#include <QFile>

#include <future>

// With a real, private server.
class CupsPrinterSourceTest : public QuillbayTest {
protected:
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(PrintServer::isInstalled(), "cups, cups-daemon, cups-client");
    }

    static Result<Printer, PrinterFailure> answer()
    {
        return std::async(std::launch::async, [] { return CupsPrinterSource().ask(); }).get();
    }
    static Printer answeredPrinter()
    {
        const Result<Printer, PrinterFailure> answer = CupsPrinterSourceTest::answer();
        if (answer)
            return answer.value();
        ADD_FAILURE() << (answer.error() == PrinterFailure::NoPrinter ? "no printer" : "not answering");
        return {};
    }
    static std::optional<PrinterFailure> failure()
    {
        const Result<Printer, PrinterFailure> answer = CupsPrinterSourceTest::answer();
        return answer ? std::nullopt : std::optional(answer.error());
    }
    static QString defaultName()
    {
        const std::optional<Paper> paper = answeredPrinter().defaultPaper;
        return paper && paper->ppdName ? *paper->ppdName : QString();
    }
};

TEST_F(CupsPrinterSourceTest, AQueueReportsItsPapersInItsOrderWithNamesSizesAndMargins)
{
    PrintServer server;
    server.addQueue("odd");
    server.makeDefault("odd");
    const Printer printer = answeredPrinter();
    ASSERT_EQ(printer.papers.size(), 5U);
    const std::vector<QString> names{QStringLiteral("Letter"), QStringLiteral("A4"), QStringLiteral("A5"),
        QStringLiteral("Legal"), QStringLiteral("OddCard")};
    for (size_t index = 0; index < names.size(); ++index)
        EXPECT_EQ(printer.papers[index].ppdName, names[index]);

    const Paper &a4 = printer.papers[1];
    EXPECT_EQ(a4.identifier, QStringLiteral("iso_a4_210x297mm"));
    EXPECT_EQ(a4.size, QSizeF(595, 842));
    EXPECT_EQ(a4.margins, (PaperMargins{.top = 12, .left = 9, .bottom = 10, .right = 11}));
    EXPECT_FALSE(a4.isCustom);

    const Paper &card = printer.papers[4];
    ASSERT_TRUE(card.identifier);
    EXPECT_TRUE(card.identifier->startsWith(QStringLiteral("custom_"))) << card.identifier->toStdString();
    EXPECT_TRUE(card.isCustom);
    EXPECT_EQ(card.size, QSizeF(300, 500));
    EXPECT_EQ(card.margins, (PaperMargins{.top = 50, .left = 20, .bottom = 30, .right = 40}));

    EXPECT_EQ(printer.defaultPaper, a4);
    EXPECT_EQ(printer.pageScale, 100);
}

TEST_F(CupsPrinterSourceTest, TheDefaultPaperIsTheUsersElseTheQueues)
{
    PrintServer server;
    server.addQueue("odd");
    server.makeDefault("odd");
    server.setServerOption("odd", "PageSize=Legal");
    EXPECT_EQ(defaultName(), QStringLiteral("Legal"));
    server.setServerOption("odd", "media-default=Letter");
    EXPECT_EQ(defaultName(), QStringLiteral("Letter"));
    server.setUserOption("odd", "media=iso_a5_148x210mm");
    EXPECT_EQ(defaultName(), QStringLiteral("A5"));
}

TEST_F(CupsPrinterSourceTest, ThePageScaleIsTheUsersElseTheQueues)
{
    PrintServer server;
    server.addQueue("odd");
    server.makeDefault("odd");
    server.setServerOption("odd", "scaling-default=75");
    EXPECT_EQ(answeredPrinter().pageScale, 75);
    server.setUserOption("odd", "scaling=50");
    EXPECT_EQ(answeredPrinter().pageScale, 50);
}

TEST_F(CupsPrinterSourceTest, TheUsersDefaultQueueComesBeforeTheServersAndThatBeforeTheFirst)
{
    PrintServer server;
    for (const char *queue : {"alpha", "beta", "gamma"})
        server.addQueue(queue);
    server.setServerOption("alpha", "PageSize=Letter");
    server.setServerOption("beta", "PageSize=A5");
    server.setServerOption("gamma", "PageSize=Legal");
    EXPECT_EQ(defaultName(), QStringLiteral("Letter"));
    server.makeDefault("beta");
    EXPECT_EQ(defaultName(), QStringLiteral("A5"));
    server.makeUserDefault("gamma");
    EXPECT_EQ(defaultName(), QStringLiteral("Legal"));
    ::setenv("PRINTER", "alpha", 1);
    EXPECT_EQ(defaultName(), QStringLiteral("Letter"));
    ::setenv("PRINTER", "no-such-queue", 1);
    EXPECT_EQ(defaultName(), QStringLiteral("Letter"));
}

TEST_F(CupsPrinterSourceTest, ARawQueueIsAPrinterWithoutPapers)
{
    PrintServer server;
    server.addQueue("raw", {});
    EXPECT_TRUE(answeredPrinter().papers.empty());
}

TEST_F(CupsPrinterSourceTest, WithoutQueuesThereIsNoPrinter)
{
    PrintServer server;
    EXPECT_EQ(failure(), PrinterFailure::NoPrinter);
    server.addQueue("odd");
    EXPECT_EQ(failure(), std::nullopt);
    server.removeQueue("odd");
    EXPECT_EQ(failure(), PrinterFailure::NoPrinter);
}

TEST_F(CupsPrinterSourceTest, WhereNoServerRunsThereIsNoPrinter)
{
    ::setenv("CUPS_SERVER", QFile::encodeName(world().runtime() + QStringLiteral("/none")).constData(), 1);
    EXPECT_EQ(failure(), PrinterFailure::NoPrinter);
    ::setenv("CUPS_SERVER", "localhost:1", 1);
    EXPECT_EQ(failure(), PrinterFailure::NoPrinter);
}

TEST_F(CupsPrinterSourceTest, AServerElsewhereThatCannotBeReachedIsNotAnswering)
{
    for (const char *server : {"no-such-host.invalid", "127.0.0.2:1"}) {
        ::setenv("CUPS_SERVER", server, 1);
        EXPECT_EQ(failure(), PrinterFailure::NotAnswering) << server;
    }
}
