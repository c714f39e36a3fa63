// SPDX-License-Identifier: MIT
#include "preferences/PrintSettingsExtension.h"

#include "platform/printing/BuiltInPapers.h"
#include "platform/printing/PrinterSource.h"
#include "platform/session_bus/DistributedNotificationCenter.h"
#include "preferences/PreferenceTable.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/CallingLogSink.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/printing/PrintServer.h"
#include "tests/preferences/PaperTestPrinter.h"
#include "tests/preferences/UnreachableSuite.h"

#include <cerrno>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Controller = QBYUserDefaultsController;

namespace {

const QString noNameLine = QStringLiteral("Error retrieving current paper name. Defaulting to Letter.");
const QString noPaperLine = QStringLiteral("Error instantiating paper object...attempt to restore default.");

std::vector<QString> names(const std::vector<QBYPaper> &papers)
{
    std::vector<QString> result;
    for (const QBYPaper &paper : papers)
        result.push_back(paper.paperName().value_or(QString()));
    return result;
}

} // namespace

class PrintSettingsExtensionTest : public QuillbayTest {
protected:
    void SetUp() override { SessionBus::start(); }

    std::optional<QBYPaper> currentPaper() { return QBYExtension::currentPaperObject(m_print.settings); }
    QString currentName()
    {
        const std::optional<QBYPaper> paper = currentPaper();
        return paper ? paper->paperName().value_or(QString()) : QStringLiteral("none");
    }

    PaperTestSettings m_print;
    RecordingLogSink m_log;
};

TEST_F(PrintSettingsExtensionTest, PapersComeInThePrintersOwnOrder)
{
    m_print.setAnswer(printerWith({"Legal", "A4", "Card", "Letter"}));
    EXPECT_THAT(names(QBYExtension::getAllPaperObjects(m_print.settings)),
        ElementsAre(
            QStringLiteral("Legal"), QStringLiteral("A4"), QStringLiteral("Card"), QStringLiteral("Letter")));
}

TEST_F(PrintSettingsExtensionTest, WithoutAPrinterTheCatalogueIsTheList)
{
    EXPECT_EQ(QBYExtension::getAllPaperObjects(m_print.settings).size(), builtInPapers().size());
    EXPECT_TRUE(QBYExtension::paperObjectForPaperName(m_print.settings, QStringLiteral("EnvDL")));
}

TEST_F(PrintSettingsExtensionTest, TheFirstPaperWithExactlyTheNameIsFound)
{
    Printer printer = printerWith({"Letter", "Card", "Card"});
    printer.papers[0].ppdName.reset();
    printer.papers[1].identifier = QStringLiteral("first");
    m_print.setAnswer(printer);
    const auto find = [this](const char *name) {
        return QBYExtension::paperObjectForPaperName(m_print.settings, QString::fromLatin1(name));
    };
    ASSERT_TRUE(find("Card"));
    EXPECT_EQ(find("Card")->paperID(), QStringLiteral("first"));
    for (const char *name : {"card", "Card ", "Letter", "Letter-id", ""})
        EXPECT_FALSE(find(name)) << name;
}

TEST_F(PrintSettingsExtensionTest, ThePreferredPaperIsTheCurrentOne)
{
    m_print.setAnswer(printerWith({"Letter", "Card"}));
    Controller::setCurrentPaperNamePreference(QStringLiteral("Card"));
    EXPECT_EQ(currentName(), QStringLiteral("Card"));
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(PrintSettingsExtensionTest, WithoutAPreferenceLetterIsTakenAndLoggedAndNothingStored)
{
    m_print.setAnswer(printerWith({"A4", "Letter"}));
    EXPECT_EQ(currentName(), QStringLiteral("Letter"));
    EXPECT_THAT(m_log.messages(), ElementsAre(noNameLine));
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), std::nullopt);
}

TEST_F(PrintSettingsExtensionTest, APaperThatThePrinterLacksIsReplacedByItsDefaultAndTheChangePostedOnce)
{
    m_print.setAnswer(printerWith({"Letter", "A4"}));
    Controller::setCurrentPaperNamePreference(QStringLiteral("A5"));
    int posts = 0;
    const NotificationObserver observer(QBYPreferencesChangedNotification);
    QObject::connect(&observer, &NotificationObserver::posted, &observer, [&posts] { ++posts; });

    EXPECT_EQ(currentName(), QStringLiteral("Letter"));
    EXPECT_THAT(m_log.messages(), ElementsAre(noPaperLine));
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("Letter"));
    EXPECT_EQ(currentName(), QStringLiteral("Letter")) << "repaired for good";

    // The bus keeps the order: all earlier posts arrive before this one.
    Controller::postPreferencesChangedNotification();
    EXPECT_TRUE(waitUntil([&posts] { return posts >= 2; }));
    EXPECT_EQ(posts, 2);
}

TEST_F(PrintSettingsExtensionTest, WithoutAPreferenceAndWithoutLetterTheDefaultIsStored)
{
    m_print.setAnswer(printerWith({"A4", "A5"}));
    EXPECT_EQ(currentName(), QStringLiteral("A4"));
    EXPECT_THAT(m_log.messages(), ElementsAre(noNameLine, noPaperLine));
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("A4"));
}

TEST_F(PrintSettingsExtensionTest, AfterAReadThatFailedNothingIsStored)
{
    m_print.setAnswer(printerWith({"A4", "A5"}));
    Controller::setCurrentPaperNamePreference(QStringLiteral("A5"));
    UnreachableSuite obstacle;
    {
        // After the failed read, the suite works again.
        const CallingLogSink sink([&obstacle](const LogRecord &) { obstacle.end(); });
        EXPECT_EQ(currentName(), QStringLiteral("A4")) << "for this call";
    }
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("A5"));
    EXPECT_EQ(currentName(), QStringLiteral("A5"));
}

TEST_F(PrintSettingsExtensionTest, OfTwoDefaultPapersWithOneNameTheFirstIsTaken)
{
    Printer printer = printerWith({"Letter", "Card", "Card"});
    printer.papers[1].identifier = QStringLiteral("first");
    printer.papers[2].identifier = QStringLiteral("second");
    printer.defaultPaper = printer.papers[2];
    m_print.setAnswer(printer);
    Controller::setCurrentPaperNamePreference(QStringLiteral("A5"));
    const std::optional<QBYPaper> paper = currentPaper();
    ASSERT_TRUE(paper);
    EXPECT_EQ(paper->paperID(), QStringLiteral("first"));
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("Card"));
}

TEST_F(PrintSettingsExtensionTest, WithoutAPrinterThePreferenceIsRepairedFromTheCatalogue)
{
    ::setenv("PAPERSIZE", "a5", 1);
    Controller::setCurrentPaperNamePreference(QStringLiteral("OddCard"));
    EXPECT_EQ(currentName(), QStringLiteral("A5"));
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("A5"));
}

TEST_F(PrintSettingsExtensionTest, ADefaultPaperWithoutANameRepairsNothing)
{
    Printer printer = printerWith({"Card", "A4"});
    printer.papers[0].ppdName.reset();
    printer.defaultPaper = printer.papers[0];
    m_print.setAnswer(printer);
    Controller::setCurrentPaperNamePreference(QStringLiteral("A5"));
    EXPECT_FALSE(currentPaper());
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("A5"));
}

TEST_F(PrintSettingsExtensionTest, WhileThePrinterDoesNotAnswerTheCatalogueIsUsedAndNothingIsStored)
{
    m_print.setAnswer(PrinterFailure::NotAnswering);
    Controller::setCurrentPaperNamePreference(QStringLiteral("OddCard"));
    EXPECT_FALSE(currentPaper());
    EXPECT_THAT(m_log.messages(), ElementsAre(noPaperLine));
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("OddCard"));

    m_print.setAnswer(printerWith({"A4", "OddCard"}));
    EXPECT_EQ(currentName(), QStringLiteral("OddCard")) << "the user's choice has outlived the silence";

    m_print.setAnswer(PrinterFailure::NotAnswering);
    Controller::setCurrentPaperNamePreference(QStringLiteral("EnvDL"));
    EXPECT_EQ(currentName(), QStringLiteral("EnvDL"));
}

// With a real print server.
class PrintServerPreferencesTest : public QuillbayTest {
protected:
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(PrintServer::isInstalled(), "cups, cups-daemon, cups-client");
    }

    static std::optional<DefaultsValue> stored(Preference preference)
    {
        return Controller::sharedUserDefaults().objectForKey(keyOf(preference));
    }

    // A query must end, and release its source, before the next test changes the environment.
    void TearDown() override
    {
        EXPECT_TRUE(waitUntil([this] { return m_source.use_count() == 2; }));
    }

    RecordingLogSink m_log;
    std::shared_ptr<CupsPrinterSource> m_source = std::make_shared<CupsPrinterSource>();
    PrintSettings m_settings{m_source};
    ScopedPrintSettings m_scope{m_settings};
};

TEST_F(PrintServerPreferencesTest, TheFirstLaunchTakesNameAndMarginsOfThePrintersDefaultPaper)
{
    PrintServer server;
    server.addQueue("odd");
    server.setServerOption("odd", "PageSize=OddCard");
    Controller::configureUserDefaultsOnApplicationLaunch();
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("OddCard"));
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 20 / 72.0);
    EXPECT_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 40 / 72.0);
}

TEST_F(PrintServerPreferencesTest, TheFirstLaunchComputesMarginsAtThePageScale)
{
    PrintServer server;
    server.addQueue("odd");
    server.setUserOption("odd", "scaling=50");
    Controller::configureUserDefaultsOnApplicationLaunch();
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("A4"));
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 9 / 144.0);
    EXPECT_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 11 / 144.0);
}

TEST_F(PrintServerPreferencesTest,
    APrinterThatDoesNotAnswerAtTheFirstLaunchIsLoggedAndLeavesThePaperKeysUnwritten)
{
    {
        const SilentPrintServer server;
        Controller::configureUserDefaultsOnApplicationLaunch();
        EXPECT_EQ(m_settings.printer().state, PrinterState::NotAnswering);
    }
    EXPECT_THAT(m_log.messages(),
        ElementsAre(QStringLiteral("Error getting default paper name/margins!"), QString::number(ETIMEDOUT)));
    for (const Preference preference :
        {Preference::PaperName, Preference::LeftMargin, Preference::RightMargin})
        EXPECT_EQ(stored(preference), std::nullopt) << keyOf(preference).toStdString();
    EXPECT_EQ(stored(Preference::HasAppBeenOpened), DefaultsValue(true));
}
