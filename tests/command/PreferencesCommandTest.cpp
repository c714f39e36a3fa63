// SPDX-License-Identifier: MIT
// "quillbay preferences", and what the command does where preferences cannot be stored.
#include "command/PreferenceText.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/command/CommandTest.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <sys/stat.h>

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

using Controller = QBYUserDefaultsController;

class PreferencesCommandTest : public CommandTest {
protected:
    static ChildProcess::Outcome preferences(const QByteArrayList &words)
    {
        return quillbay(QByteArrayList{"preferences"} + words);
    }
    static std::string errorOf(const QByteArrayList &words)
    {
        const ChildProcess::Outcome outcome = preferences(words);
        EXPECT_EQ(outcome.exitStatus, 2);
        EXPECT_EQ(outcome.output, QByteArray());
        return outcome.errors.toStdString();
    }
};

/// Two sentences without and one with terminal punctuation.
const QByteArray text = "A heading\n\nThe harbour is quiet.\n\nAnother heading\n";

} // namespace

TEST_F(PreferencesCommandTest, ListsEveryPreferenceWithTheValuesOfANewUser)
{
    const ChildProcess::Outcome outcome = preferences({});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors, QByteArray());
    EXPECT_EQ(outcome.output.count('\n'), static_cast<qsizetype>(editablePreferences().size()));
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("show-lines                       on\n"));
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("minimum-sentences                0\n"));
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("left-margin                      0.25in\n"));
}

TEST_F(PreferencesCommandTest, WhatIsPrintedCanBeSetAgain)
{
    Controller::configureUserDefaultsOnApplicationLaunch();
    Controller::setLeftMarginForPaperSizeLineMeasuring(1.0 / 3);
    for (const EditablePreference &row : editablePreferences()) {
        const QByteArray printed = printableValue(row);
        const Result<DefaultsValue, QString> value = parseValue(row, QString::fromUtf8(printed));
        ASSERT_TRUE(value) << row.name.data() << ": " << value.error().toStdString();
        EXPECT_TRUE(setValue(row, value.value()));
        EXPECT_EQ(printableValue(row), printed);
    }
}

TEST_F(PreferencesCommandTest, EveryNameIsInItsHelp)
{
    const QByteArray help = preferences({"--help"}).output;
    for (const EditablePreference &row : editablePreferences())
        EXPECT_TRUE(help.contains(QByteArray(row.name.data(), row.name.size()))) << row.name.data();
}

TEST_F(PreferencesCommandTest, SetsWhatTheNextCountFollows)
{
    const QByteArray document = file("text.txt", text);
    EXPECT_EQ(tableRows(count({document}).output)[0][3], QByteArray("1"));
    EXPECT_EQ(preferences({"terminal-punctuation", "off"}).exitStatus, 0);
    EXPECT_EQ(tableRows(count({document}).output)[0][3], QByteArray("3"));
    EXPECT_EQ(preferences({"--reset", "terminal-punctuation"}).exitStatus, 0);
    EXPECT_EQ(tableRows(count({document}).output)[0][3], QByteArray("1"));
}

TEST_F(PreferencesCommandTest, UnderstandsTheUnitsOfLengths)
{
    const auto leftMarginAfter = [](const char *value) {
        EXPECT_EQ(preferences({"left-margin", value}).exitStatus, 0) << value;
        return Controller::leftMarginForPaperSizeLineMeasuring();
    };
    EXPECT_DOUBLE_EQ(leftMarginAfter("1.5"), 1.5);
    EXPECT_DOUBLE_EQ(leftMarginAfter("1in"), 1);
    EXPECT_DOUBLE_EQ(leftMarginAfter("2,54 cm"), 1);
    EXPECT_DOUBLE_EQ(leftMarginAfter("12.7mm"), 0.5);
    EXPECT_DOUBLE_EQ(leftMarginAfter("18pt"), 0.25);
    EXPECT_DOUBLE_EQ(leftMarginAfter("0"), 0);
}

TEST_F(PreferencesCommandTest, FindsPapersInAnyCaseAndStoresTheirName)
{
    EXPECT_EQ(preferences({"paper", "a5"}).exitStatus, 0);
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("A5"));
}

TEST_F(PreferencesCommandTest, ReportsWhatIsWrongAndWhatToType)
{
    preferences({"paper", "Letter"});
    EXPECT_THAT(errorOf({"show-words"}),
        StartsWith("quillbay: no preference is called 'show-words'; 'quillbay preferences' lists them"));
    EXPECT_EQ(errorOf({"show-lines", "maybe"}),
        "quillbay: show-lines: 'maybe' is neither on nor off; use one of them\n");
    EXPECT_EQ(errorOf({"minimum-sentences", "1001"}),
        "quillbay: minimum-sentences: '1001' is not a number from 0 to 1000; use one\n");
    EXPECT_EQ(errorOf({"left-margin", "9in"}),
        "quillbay: left-margin: '9in' leaves no column on the page; use at most 7.75in\n");
    EXPECT_THAT(errorOf({"left-margin", "wide"}), HasSubstr("'wide' is not a length; use one such as 1in"));
    EXPECT_THAT(errorOf({"paper", "Papyrus"}), HasSubstr("'Papyrus' is no common paper"));
    EXPECT_THAT(errorOf({"paper", "\x1b[2J"}), HasSubstr("'\\x1b[2J'"));
    EXPECT_THAT(errorOf({"show-lines", "on", "off"}), HasSubstr("one name and one value at a time"));
    EXPECT_THAT(errorOf({"--reset"}), HasSubstr("--reset needs a name"));
    EXPECT_THAT(errorOf({"--reset", "paper", "papier"}), HasSubstr("no preference is called 'papier'"));
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("Letter"));
}

TEST_F(PreferencesCommandTest, MarginsThatLeaveNoColumnOnAPaperKeepIt)
{
    preferences({"paper", "Letter"});
    preferences({"left-margin", "3in"});
    preferences({"right-margin", "3in"});
    EXPECT_THAT(errorOf({"paper", "A5"}), HasSubstr("the margins of 3in and 3in leave no column on A5"));
}

TEST_F(PreferencesCommandTest, PrintsJson)
{
    preferences({"show-lines", "off"});
    preferences({"left-margin", "1.5in"});
    const QJsonObject all = QJsonDocument::fromJson(preferences({"--json"}).output).object();
    EXPECT_EQ(all.size(), static_cast<qsizetype>(editablePreferences().size()));
    EXPECT_EQ(all[QStringLiteral("show-lines")], QJsonValue(false));
    EXPECT_EQ(all[QStringLiteral("left-margin")], QJsonValue(1.5));
    EXPECT_EQ(preferences({"--json", "minimum-sentences"}).output, QByteArray("{\"minimum-sentences\":0}\n"));
}

TEST_F(PreferencesCommandTest, ResetsAll)
{
    preferences({"show-characters", "off"});
    preferences({"minimum-sentences", "4"});
    preferences({"left-margin", "1in"});
    EXPECT_EQ(preferences({"--reset-all"}).exitStatus, 0);
    EXPECT_TRUE(Controller::isShowCharacterCountPreferenceOn());
    EXPECT_TRUE(Controller::isShowCharacterCountIncludingWhitespacePreferenceOn());
    EXPECT_EQ(Controller::minNumberOfSentencesForParagraphCount(), 0);
    EXPECT_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 0.25);
}

namespace {

/// A home folder in which the user of the child may not write.
class UnwritableHome : public PreferencesCommandTest {
protected:
    static ChildProcess::Outcome run(const QByteArrayList &words)
    {
        EXPECT_EQ(::chmod(QFile::encodeName(world().configuration()).constData(), 0555), 0);
        ChildProcess process(productProgram(QStringLiteral("quillbay")));
        // Where that user may look for it.
        process.withVariable("CUPS_SERVER", QFile::encodeName(world().root()) + "/no-print-server");
        return process.asOtherUser().run(words);
    }
};

const char *const message = "K7Q2M9X4T1.com.quillbay.sqlite3: cannot be written (Permission denied), so the "
                            "default rules apply; make the folder writable to set your own\n";

} // namespace

TEST_F(UnwritableHome, CountsAsEverywhereAndReportsThatOnce)
{
    const QByteArray document = file("text.txt", text);
    const QByteArray elsewhere = count({document}).output;
    ASSERT_TRUE(QDir(world().configuration() + QStringLiteral("/quillbay")).removeRecursively());
    const ChildProcess::Outcome outcome = run({"count", document});
    EXPECT_EQ(outcome.output, elsewhere);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors.count(": cannot be written ("), 1);
    EXPECT_THAT(outcome.errors.toStdString(), EndsWith(message));
}

TEST_F(UnwritableHome, ForProgramsTheMessageIsOnStandardError)
{
    const QByteArray document = file("text.txt", text);
    const ChildProcess::Outcome outcome = run({"count", "--json", document});
    EXPECT_TRUE(QJsonDocument::fromJson(outcome.output).isObject()) << outcome.output.toStdString();
    EXPECT_THAT(outcome.errors.toStdString(), EndsWith(message));
}

TEST_F(UnwritableHome, AValueThatCannotBeStoredIsAFailure)
{
    const ChildProcess::Outcome outcome = run({"preferences", "show-lines", "off"});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.errors.toStdString(),
        HasSubstr("K7Q2M9X4T1.com.quillbay.sqlite3: cannot be written: Permission denied; check the"));
    EXPECT_THAT(outcome.errors.toStdString(), Not(HasSubstr("so the default rules apply")));
    EXPECT_THAT(run({"preferences", "show-lines"}).output.toStdString(), StartsWith("on"));
}
