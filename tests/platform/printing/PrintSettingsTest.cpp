// SPDX-License-Identifier: MIT
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/printing/PrintServer.h"

#include "platform/printing/BuiltInPapers.h"
#include "platform/printing/PrintSettings.h"
#include "platform/printing/PrinterSource.h"

#include <QElapsedTimer>

#include <atomic>
#include <semaphore>

using namespace std::chrono_literals;

namespace {

Paper paper(const char *name, double width, double height)
{
    return {QString::fromLatin1(name), QString::fromLatin1(name).toLower(), false, QSizeF(width, height),
        PaperMargins{.top = 1, .left = 2, .bottom = 3, .right = 4}};
}

Printer cardPrinter()
{
    return {.papers = {paper("Card", 300, 500), paper("Letter", 612, 792)},
        .defaultPaper = paper("Card", 300, 500),
        .pageScale = 50};
}

// Returns the answer of the test at the time that the test chooses.
class FakePrinter : public PrinterSource {
public:
    Result<Printer, PrinterFailure> ask() override
    {
        ++questions;
        if (isSlow)
            m_release.acquire();
        return answer;
    }
    /// Lets one slow query answer.
    void release() { m_release.release(); }

    Result<Printer, PrinterFailure> answer = cardPrinter(); // changed only while no query runs
    std::atomic<bool> isSlow = false;
    std::atomic<int> questions = 0;

private:
    std::counting_semaphore<> m_release{0};
};

} // namespace

class PrintSettingsTest : public QuillbayTest {
protected:
    std::chrono::steady_clock::time_point m_now{};
    std::shared_ptr<FakePrinter> m_printer = std::make_shared<FakePrinter>();
    PrintSettings m_settings{m_printer, [this] { return m_now; }};
    // Does not wait at all: an answer is either there already or late.
    PrintSettings m_hurriedSettings{m_printer, [this] { return m_now; }, 0ms};

    // The test and its two settings hold the printer, and every query does.
    [[nodiscard]] bool isQueryRunning() const { return m_printer.use_count() > 3; }
    void answerLate()
    {
        m_printer->release();
        ASSERT_TRUE(waitUntil([&] { return m_hurriedSettings.printer().state == PrinterState::Answering; }));
    }
};

TEST_F(PrintSettingsTest, PapersDefaultAndScaleAreThePrinters)
{
    const PrinterAnswer answer = m_settings.printer();
    EXPECT_EQ(answer.state, PrinterState::Answering);
    EXPECT_EQ(answer.papers, cardPrinter().papers);
    EXPECT_EQ(answer.defaultPaper, cardPrinter().defaultPaper);
    EXPECT_EQ(answer.pageScale, 50);
    EXPECT_EQ(m_settings.paperSize(), QSizeF(300, 500));
}

TEST_F(PrintSettingsTest, WithoutAPrinterTheCatalogueIsTheList)
{
    ::setenv("PAPERSIZE", "a5", 1);
    m_printer->answer = PrinterFailure::NoPrinter;
    const PrinterAnswer answer = m_settings.printer();
    EXPECT_EQ(answer.state, PrinterState::NoPrinter);
    EXPECT_EQ(answer.papers, builtInPapers());
    ASSERT_TRUE(answer.defaultPaper);
    EXPECT_EQ(answer.defaultPaper->ppdName, QStringLiteral("A5"));
    EXPECT_EQ(answer.pageScale, 100);
    EXPECT_EQ(m_settings.paperSize(), QSizeF(420, 595));
}

TEST_F(PrintSettingsTest, APrinterThatKnowsNoPapersCountsAsNone)
{
    m_printer->answer = Printer();
    EXPECT_EQ(m_settings.printer().state, PrinterState::NoPrinter);
    EXPECT_EQ(m_settings.printer().papers, builtInPapers());
}

TEST_F(PrintSettingsTest, WhereThePrinterHasNoDefaultTheSurroundingsChooseAmongItsPapers)
{
    Printer printer = cardPrinter();
    printer.defaultPaper.reset();
    m_printer->answer = printer;
    ::setenv("PAPERSIZE", "letter", 1);
    EXPECT_EQ(m_settings.printer().defaultPaper, paper("Letter", 612, 792)) << "with the printer's margins";
    ::setenv("PAPERSIZE", "a4", 1);
    EXPECT_EQ(m_settings.printer().defaultPaper, paper("Card", 300, 500)) << "A4 is none of its papers";
}

TEST_F(PrintSettingsTest, AnAnswerIsKeptForAMinute)
{
    EXPECT_EQ(m_settings.printer().state, PrinterState::Answering);
    m_printer->answer = PrinterFailure::NoPrinter;
    m_now += 59s;
    EXPECT_EQ(m_settings.printer().state, PrinterState::Answering);
    EXPECT_EQ(m_printer->questions, 1);
    m_now += 1s;
    EXPECT_EQ(m_settings.printer().state, PrinterState::NoPrinter);
    EXPECT_EQ(m_printer->questions, 2);
}

TEST_F(PrintSettingsTest, APrinterThatDoesNotAnswerInTimeIsNotAnsweringAndTheCatalogueStandsIn)
{
    ::setenv("PAPERSIZE", "a5", 1);
    m_printer->isSlow = true;
    const PrinterAnswer answer = m_hurriedSettings.printer();
    EXPECT_EQ(answer.state, PrinterState::NotAnswering);
    EXPECT_EQ(answer.papers, builtInPapers());
    EXPECT_FALSE(answer.defaultPaper);
    EXPECT_FALSE(answer.pageScale);
    EXPECT_EQ(m_hurriedSettings.paperSize(), QSizeF(420, 595));
    m_printer->release();
}

TEST_F(PrintSettingsTest, APrinterThatSaysItCannotAnswerIsLeftInPeaceForAMinute)
{
    m_printer->answer = PrinterFailure::NotAnswering;
    EXPECT_EQ(m_settings.printer().state, PrinterState::NotAnswering);
    m_printer->answer = cardPrinter();
    m_now += 59s;
    EXPECT_EQ(m_settings.printer().state, PrinterState::NotAnswering);
    EXPECT_EQ(m_printer->questions, 1);
    m_now += 1s;
    EXPECT_EQ(m_settings.printer().state, PrinterState::Answering);
    EXPECT_EQ(m_printer->questions, 2);
}

TEST_F(PrintSettingsTest, ALateAnswerIsTakenAsSoonAsItIsThere)
{
    m_printer->isSlow = true;
    EXPECT_EQ(m_hurriedSettings.printer().state, PrinterState::NotAnswering);
    answerLate();
    EXPECT_EQ(m_hurriedSettings.printer().papers, cardPrinter().papers);
    EXPECT_EQ(m_printer->questions, 1);
}

TEST_F(PrintSettingsTest, ALateAnswerThatNobodyFetchedForAMinuteIsNotTrusted)
{
    m_printer->isSlow = true;
    EXPECT_EQ(m_hurriedSettings.printer().state, PrinterState::NotAnswering);
    m_printer->release();
    ASSERT_TRUE(waitUntil([&] { return !isQueryRunning(); }));
    m_printer->isSlow = false;
    m_now += 1h;
    static_cast<void>(m_hurriedSettings.printer());
    EXPECT_TRUE(waitUntil([&] { return m_printer->questions == 2; }));
}

TEST_F(PrintSettingsTest, AQueryThatTakesLongerThanAMinuteIsGivenUpForANewOne)
{
    m_printer->isSlow = true;
    EXPECT_EQ(m_hurriedSettings.printer().state, PrinterState::NotAnswering);
    m_now += 59s;
    EXPECT_EQ(m_hurriedSettings.printer().state, PrinterState::NotAnswering);
    ASSERT_TRUE(waitUntil([&] { return m_printer->questions == 1; }));
    m_now += 1s;
    EXPECT_EQ(m_hurriedSettings.printer().state, PrinterState::NotAnswering);
    ASSERT_TRUE(waitUntil([&] { return m_printer->questions == 2; }));
    m_printer->release();
    answerLate();
    EXPECT_EQ(m_printer->questions, 2);
}

TEST_F(PrintSettingsTest, WithoutATimeoutTheFormerPrinterStandsInUntilTheNextAnswer)
{
    ASSERT_EQ(m_settings.printer().state, PrinterState::Answering);
    m_settings.setTimeout(0ms);
    m_printer->isSlow = true;
    m_now += PrintSettings::queryInterval;
    EXPECT_EQ(m_settings.printer().papers, cardPrinter().papers);
    EXPECT_TRUE(m_settings.isAsking());
    m_printer->release();
    EXPECT_TRUE(waitUntil([this] {
        static_cast<void>(m_settings.printer());
        return !m_settings.isAsking();
    }));
}

TEST_F(PrintSettingsTest, WithoutATimeoutNoFormerAnswerSaysThatThereIsNoPrinter)
{
    m_printer->answer = PrinterFailure::NoPrinter;
    ASSERT_EQ(m_settings.printer().state, PrinterState::NoPrinter);
    m_settings.setTimeout(0ms);
    m_printer->isSlow = true;
    m_now += PrintSettings::queryInterval;
    // A paper that the user chose could be replaced otherwise.
    EXPECT_EQ(m_settings.printer().state, PrinterState::NotAnswering);
    m_printer->release();
    EXPECT_TRUE(waitUntil([this] { return m_settings.printer().state == PrinterState::NoPrinter; }));
}

TEST_F(PrintSettingsTest, AnAnswerToSettingsThatAreGoneIsDropped)
{
    m_printer->isSlow = true;
    {
        PrintSettings settings(
            m_printer, [this] { return m_now; }, 0ms);
        EXPECT_EQ(settings.printer().state, PrinterState::NotAnswering);
    }
    ASSERT_TRUE(waitUntil([&] { return m_printer->questions == 1; }));
    m_printer->release();
    EXPECT_TRUE(waitUntil([&] { return !isQueryRunning(); }));
}

TEST_F(PrintSettingsTest, ScopedSettingsAreTheSharedOnesWhileTheyLive)
{
    const PrintSettings *const before = &PrintSettings::shared();
    {
        const ScopedPrintSettings scope(m_settings);
        EXPECT_EQ(&PrintSettings::shared(), &m_settings);
    }
    EXPECT_EQ(&PrintSettings::shared(), before);
}

TEST_F(PrintSettingsTest, AProgramWithoutAPrintServerHasNoPrinter)
{
    const ChildProcess::Outcome outcome = ChildProcess(testProgram(QStringLiteral("print_asker"))).run({});
    EXPECT_EQ(outcome.output, QByteArray("no printer\nSIGPIPE as before\n"));
    EXPECT_EQ(outcome.exitStatus, 0);
}

TEST_F(PrintSettingsTest, ASilentServerHoldsAProgramUpForASecondAtMostAndNotAtItsEnd)
{
    const SilentPrintServer server;
    QElapsedTimer timer;
    timer.start();
    const ChildProcess::Outcome outcome = ChildProcess(testProgram(QStringLiteral("print_asker"))).run({});
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(outcome.output, QByteArray("not answering\nSIGPIPE as before\n"));
    EXPECT_EQ(outcome.errors, QByteArray());
    EXPECT_EQ(outcome.exitStatus, 0);
}

TEST_F(PrintSettingsTest, AHungServerIsNotAnsweringUntilItWakes)
{
    SKIP_WITHOUT_PACKAGE(PrintServer::isInstalled(), "cups, cups-daemon, cups-client");
    PrintServer server;
    server.addQueue("odd");
    server.hang();
    PrintSettings settings(std::make_shared<CupsPrinterSource>());
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(settings.printer().state, PrinterState::NotAnswering);
    EXPECT_EQ(settings.printer().papers, builtInPapers());
    EXPECT_LT(timer.elapsed(), 5000);
    server.wake();
    ASSERT_TRUE(waitUntil([&] { return settings.printer().state == PrinterState::Answering; }));
    EXPECT_EQ(settings.printer().papers.size(), 5U);
}
