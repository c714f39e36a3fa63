// SPDX-License-Identifier: MIT
// Counts on the papers of a real print server, and of one that never answers.
#include "preferences/QBYUserDefaultsController.h"
#include "tests/command/CommandTest.h"
#include "tests/platform/printing/PrintServer.h"

using ::testing::HasSubstr;
using Preferences = QBYUserDefaultsController;

class CountOnPaperTest : public CommandTest {
protected:
    static std::string explainedRules()
    {
        return count({"--explain-rules"}).output.simplified().toStdString();
    }
};

TEST_F(CountOnPaperTest, AFirstCountTakesThePrintersDefaultPaperWithItsMargins)
{
    SKIP_WITHOUT_PACKAGE(PrintServer::isInstalled(), "cups, cups-daemon, cups-client");
    PrintServer server;
    server.addQueue("odd");
    server.makeDefault("odd");
    const std::string rules = explainedRules();
    EXPECT_THAT(rules, HasSubstr("Paper A4 Paper width 595 points Paper height 842 points"));
    EXPECT_THAT(rules, HasSubstr("Left margin 9 points Right margin 11 points Column 575 points"));
}

TEST_F(CountOnPaperTest, APaperThatThePrinterLacksIsReplacedByItsDefault)
{
    SKIP_WITHOUT_PACKAGE(PrintServer::isInstalled(), "cups, cups-daemon, cups-client");
    Preferences::configureUserDefaultsOnApplicationLaunch();
    Preferences::setCurrentPaperNamePreference(QStringLiteral("Tabloid"));
    PrintServer server;
    server.addQueue("odd");
    server.makeDefault("odd");
    EXPECT_THAT(explainedRules(), HasSubstr("Paper A4 "));
    EXPECT_EQ(Preferences::paperNameForLineMeasuring(), QStringLiteral("A4"));
}

TEST_F(CountOnPaperTest, WhileThePrinterDoesNotAnswerThePreferredPaperIsUsedAndKept)
{
    Preferences::configureUserDefaultsOnApplicationLaunch();
    Preferences::setCurrentPaperNamePreference(QStringLiteral("Tabloid"));
    const SilentPrintServer server;
    EXPECT_THAT(explainedRules(), HasSubstr("Paper Tabloid Paper width 792 points"));
    EXPECT_EQ(Preferences::paperNameForLineMeasuring(), QStringLiteral("Tabloid"));
}
