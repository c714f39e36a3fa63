// SPDX-License-Identifier: MIT
#include "platform/system/Sanitizers.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/command/CommandTest.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <fcntl.h>
#include <sys/resource.h>

#include <sys/stat.h>
#include <unistd.h>

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class CountCommandTest : public CommandTest { };

TEST_F(CountCommandTest, TheTableHasAHeaderAndARowForTheFile)
{
    const QByteArray name = file("story.txt", "\tOne day. It rained!\n\nThe end\n");
    const ChildProcess::Outcome outcome = count({name});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors, QByteArray());
    EXPECT_THAT(outcome.output.toStdString(),
        StartsWith(
            "Words  Characters  +Whitespace  Sentences  Lines  Hard breaks  Paragraphs  Indented  File\n"));
    EXPECT_THAT(tableRows(outcome.output),
        ElementsAre(QByteArrayList{"6", "22", "30", "2", "3", "3", "2", "1", name}));
}

TEST_F(CountCommandTest, SeveralFilesComeInTheOrderGivenWithATotalBelow)
{
    const QByteArray one = file("one", "One.");
    const QByteArray two = file("two", "Two words.\n");
    const QList<QByteArrayList> rows = tableRows(count({two, one, two}).output);
    EXPECT_THAT(rows,
        ElementsAre(QByteArrayList{"2", "9", "11", "1", "1", "1", "1", "0", two},
            QByteArrayList{"1", "4", "4", "1", "1", "1", "1", "0", one},
            QByteArrayList{"2", "9", "11", "1", "1", "1", "1", "0", two},
            QByteArrayList{"5", "22", "26", "3", "3", "3", "3", "0", "total"}));
}

TEST_F(CountCommandTest, StandardInputIsReadForADashAndWithoutFiles)
{
    EXPECT_THAT(tableRows(count({"-"}, "One two.").output),
        ElementsAre(QByteArrayList{"2", "7", "8", "1", "1", "1", "1", "0", "-"}));
    EXPECT_THAT(tableRows(count({}, "One two.").output),
        ElementsAre(QByteArrayList{"2", "7", "8", "1", "1", "1", "1", "0", "-"}));
}

TEST_F(CountCommandTest, JsonHasOneObjectPerLineInTheOrderOfTheFiles)
{
    const QByteArray name = file("a \"quoted\"\n\xC3\xA4.txt", "One two.\n");
    const QByteArray other = file("other", "");
    const ChildProcess::Outcome outcome = count({"--json", name, other});
    const QByteArrayList lines = outcome.output.split('\n');
    ASSERT_EQ(lines.size(), 3) << outcome.output.toStdString();
    QJsonObject object = QJsonDocument::fromJson(lines[0]).object();
    EXPECT_EQ(object.size(), 9);
    EXPECT_EQ(object[u"file"].toString(), QString::fromUtf8(name));
    EXPECT_EQ(object[u"words"].toInt(-1), 2);
    EXPECT_EQ(object[u"characters"].toInt(-1), 7);
    EXPECT_EQ(object[u"charactersIncludingWhitespace"].toInt(-1), 9);
    EXPECT_EQ(object[u"sentences"].toInt(-1), 1);
    EXPECT_EQ(object[u"lines"].toInt(-1), 1);
    EXPECT_EQ(object[u"hardLineBreaks"].toInt(-1), 1);
    EXPECT_EQ(object[u"paragraphs"].toInt(-1), 1);
    EXPECT_EQ(object[u"indentedParagraphs"].toInt(-1), 0);
    object = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ(object[u"file"].toString(), QString::fromUtf8(other));
    EXPECT_EQ(object[u"words"].toInt(-1), 0);
}

TEST_F(CountCommandTest, TsvNamesItsColumnsAndEscapesSeparators)
{
    const QByteArray name = file("tab\there\\line\nend", "One two.\n");
    const QByteArrayList lines = count({"--tsv", name}).output.split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0],
        QByteArray("file\twords\tcharacters\tcharactersIncludingWhitespace\tsentences\tlines\thardLineBreaks"
                   "\tparagraphs\t"
                   "indentedParagraphs"));
    EXPECT_THAT(lines[1].toStdString(), EndsWith("/tab\\there\\\\line\\nend\t2\t7\t9\t1\t1\t1\t1\t0"));
}

TEST_F(CountCommandTest, AHostileNameCannotForgeARow)
{
    const QByteArray name = file("a\n1 2 3\x1B[2J", "One.");
    const ChildProcess::Outcome outcome = count({name});
    EXPECT_EQ(outcome.output.count('\n'), 2);
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("a\\x0a1 2 3\\x1b[2J"));
}

TEST_F(CountCommandTest, NamesThatAreNotUtf8AreCounted)
{
    const QByteArray name = QFile::encodeName(world().root()) + "/caf\xE9.txt";
    const int descriptor = ::open(name.constData(), O_CREAT | O_WRONLY, 0644);
    ASSERT_EQ(::write(descriptor, "One.", 4), 4);
    ::close(descriptor);
    const ChildProcess::Outcome outcome = count({"--files-from", "-"}, name);
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.toStdString();
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("/caf\xEF\xBF\xBD.txt"));
}

TEST_F(CountCommandTest, ListsAreSeparatedByLineEndsOrByNulBytes)
{
    const QByteArray one = file("one", "One.");
    const QByteArray two = file("t\nwo", "Two words.");
    const QByteArray lines = count({"--tsv", "--files-from", "-"}, one + "\n\n" + one + '\n').output;
    EXPECT_EQ(lines.count(one + "\t1\t"), 2);
    const QByteArray list = file("list", one + '\0' + two + '\0');
    const QByteArray output = count({"--tsv", "--files-from", list}).output;
    EXPECT_THAT(output.toStdString(), HasSubstr("/one\t1\t"));
    EXPECT_THAT(output.toStdString(), HasSubstr("/t\\nwo\t2\t"));
}

TEST_F(CountCommandTest, FilesOfTheListFollowThoseOfTheCommandLine)
{
    const QByteArray one = file("one", "One.");
    const QByteArray two = file("two", "Two words.");
    const QList<QByteArrayList> rows = tableRows(count({"--files-from", "-", two}, one).output);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0].back(), two);
    EXPECT_EQ(rows[1].back(), one);
}

TEST_F(CountCommandTest, AnEmptyListIsNoError)
{
    const ChildProcess::Outcome outcome = count({"--json", "--files-from", "-"}, "");
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, QByteArray());
}

TEST_F(CountCommandTest, AMissingListIsAnErrorAndNamesItself)
{
    const ChildProcess::Outcome outcome = count({"--files-from", "/no/such/list"});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors, QByteArray("quillbay: /no/such/list: no such file\n"));
}

TEST_F(CountCommandTest, AnUnreadableFileIsReportedOnOneLineAndTheOthersAreStillCounted)
{
    const QByteArray good = file("good", "One.");
    const QByteArray folder = QFile::encodeName(world().home());
    const QByteArray pipe = folder + "/pipe";
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    const ChildProcess::Outcome outcome = count({"--tsv", "/no/such/file", folder, pipe, "/dev/zero", good});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.output.toStdString(), EndsWith("/good\t1\t4\t4\t1\t1\t1\t1\t0\n"));
    EXPECT_EQ(outcome.output.count('\n'), 2);
    const QByteArrayList lines = outcome.errors.split('\n');
    ASSERT_EQ(lines.size(), 5) << outcome.errors.toStdString();
    EXPECT_EQ(lines[0], QByteArray("quillbay: /no/such/file: no such file"));
    EXPECT_EQ(lines[1], "quillbay: " + folder + ": is a folder");
    EXPECT_EQ(lines[2], "quillbay: " + pipe + ": is a named pipe");
    EXPECT_EQ(lines[3], QByteArray("quillbay: /dev/zero: is a device"));
}

TEST_F(CountCommandTest, APipeOfTheShellIsReadLikeStandardInput)
{
    const QByteArray program = QFile::encodeName(productProgram(QStringLiteral("quillbay")));
    const std::vector<std::pair<QByteArray, const char *>> cases{
        {"count --tsv", "\t2\t7\t8\t1\t1\t1\t1\t0\n"},
        {"explain", "\nWords                 2\n"},
        {"extract", "One two."},
    };
    for (const auto &[words, expected] : cases) {
        ChildProcess shell(QStringLiteral("/bin/bash"));
        const ChildProcess::Outcome outcome =
            shell.run({"-c", "'" + program + "' " + words + " <(printf 'One two.') <(true)"});
        EXPECT_EQ(outcome.exitStatus, 0) << words.constData();
        EXPECT_EQ(outcome.errors, QByteArray());
        EXPECT_THAT(outcome.output.toStdString(), HasSubstr(expected));
    }
}

TEST_F(CountCommandTest, APipeOfAFolderIsReadOnceSomebodyWrites)
{
    const QByteArray pipe = QFile::encodeName(world().home()) + "/pipe";
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    ChildProcess writer(QStringLiteral("/bin/sh")); // its redirection waits for the reader
    writer.start({"-c", "printf 'One two.' > '" + pipe + "'"});
    const ChildProcess::Outcome outcome = count({"--tsv", pipe});
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.constData();
    EXPECT_THAT(outcome.output.toStdString(), EndsWith("/pipe\t2\t7\t8\t1\t1\t1\t1\t0\n"));
    writer.finish();
}

TEST_F(CountCommandTest, CountingInTheServiceWithoutABusIsOneSentence)
{
    const QByteArray name = file("one", "One.");
    const ChildProcess::Outcome outcome = count({"--service", name});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors,
        "quillbay: " + name
            + ": there is no session bus, over which the counting service is reached; "
              "run again without --service\n");
}

TEST_F(CountCommandTest, WithoutACountedFileThereIsNoTotal)
{
    const ChildProcess::Outcome outcome = count({"/no/such/file", "/no/such/other"});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.output, QByteArray());
    EXPECT_EQ(outcome.errors.count('\n'), 2);
}

TEST_F(CountCommandTest, AFileWithoutPermissionIsAnError)
{
    const QByteArray name = file("secret", "One.");
    ASSERT_EQ(::chmod(name.constData(), 0), 0);
    const ChildProcess::Outcome outcome =
        ChildProcess(productProgram(QStringLiteral("quillbay"))).asOtherUser().run({"count", name});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("secret: permission denied\n"));
}

TEST_F(CountCommandTest, ATextTooLargeForTheMemoryIsAnErrorAndTheOthersAreStillCounted)
{
    if (isSanitized)
        GTEST_SKIP() << "the address sanitizer reserves more than the limit for itself";
    const QByteArray large = file("large", "");
    ASSERT_EQ(::truncate(large.constData(), qint64(1500) << 20), 0);
    const QByteArray good = file("good", "One.");
    ChildProcess process(productProgram(QStringLiteral("quillbay")));
    process.afterFork([] {
        const rlimit limit{rlim_t{1} << 30, rlim_t{1} << 30};
        ::setrlimit(RLIMIT_AS, &limit);
    });
    const ChildProcess::Outcome outcome = process.run({"count", "--tsv", large, good});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.errors.toStdString(), StartsWith("quillbay: " + large.toStdString() + ": "));
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("/good\t1\t"));
}

TEST_F(CountCommandTest, CountsThatCannotBePrintedAreAFailure)
{
    const QByteArray name = file("good", "One.");
    ChildProcess process(productProgram(QStringLiteral("quillbay")));
    process.afterFork([] {
        const int full = ::open("/dev/full", O_WRONLY);
        ::dup2(full, STDOUT_FILENO);
    });
    const ChildProcess::Outcome outcome = process.run({"count", name});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors, QByteArray("quillbay: standard output: No space left on device\n"));
}

TEST_F(CountCommandTest, TheFirstCountOfAUserWritesTheFirstLaunchDefaults)
{
    const QByteArray name = file("heading", "A heading\nA sentence.");
    EXPECT_FALSE(QBYUserDefaultsController::isShowLineCountPreferenceOn());
    // By the default rules the heading is not a sentence.
    EXPECT_THAT(tableRows(count({name}).output).front()[3], QByteArray("1"));
    EXPECT_TRUE(QBYUserDefaultsController::isShowLineCountPreferenceOn());
    EXPECT_TRUE(QBYUserDefaultsController::shouldEnforceTrailingPeriodForSentencesCount());
}

TEST_F(CountCommandTest, CountsUnderTheCurrentPreferencesAndLocale)
{
    const QByteArray name = file("text", "A heading\nb sentence.");
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    QBYUserDefaultsController::setShouldEnforceTrailingPeriodForSentencesCount(false);
    QBYUserDefaultsController::setMinNumberOfSentencesForParagraphCount(1);
    EXPECT_EQ(tableRows(count({name}).output).front().first(7),
        (QByteArrayList{"3", "18", "21", "2", "2", "2", "2"}));
    QBYUserDefaultsController::setMinNumberOfSentencesForParagraphCount(2);
    setLocale("fr_FR.UTF-8");
    EXPECT_EQ(tableRows(count({name}).output).front().first(7),
        (QByteArrayList{"4", "18", "21", "2", "2", "2", "0"}));
}

TEST_F(CountCommandTest, WithoutAUsableConfigurationFolderItCountsAndLogsOneWarning)
{
    const QByteArray name = file("text", "One. Two.");
    ASSERT_TRUE(QDir(world().configuration()).removeRecursively());
    writeFile(QStringLiteral("../home/.config"), "no folder");
    const ChildProcess::Outcome outcome = count({name});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_THAT(tableRows(outcome.output).front().first(4), ElementsAre("2", "8", "9", "2"));
    EXPECT_EQ(outcome.errors.count("Preference suite"), 1) << outcome.errors.toStdString();
}

TEST_F(CountCommandTest, LinesAreThoseOfTheUsersPaper)
{
    const QByteArray name = file("story", QByteArray("Nobody on the quay had seen it leave. ").repeated(40));
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    const auto lines = [&] { return tableRows(count({name}).output).front()[4].toInt(); };
    QBYUserDefaultsController::setCurrentPaperNamePreference(QStringLiteral("A4"));
    const int onA4 = lines();
    QBYUserDefaultsController::setCurrentPaperNamePreference(QStringLiteral("A6"));
    EXPECT_GT(onA4, 1);
    EXPECT_GT(lines(), onA4);
}

TEST_F(CountCommandTest, ExplainedRulesNameEverythingThatTheCountsDependOn)
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    QBYUserDefaultsController::setCurrentPaperNamePreference(QStringLiteral("Legal"));
    QBYUserDefaultsController::setLeftMarginForPaperSizeLineMeasuring(1);
    QBYUserDefaultsController::setMinNumberOfSentencesForParagraphCount(2);
    const ChildProcess::Outcome outcome = count({"--explain-rules"});
    EXPECT_EQ(outcome.exitStatus, 0);
    const std::string text = outcome.output.simplified().toStdString();
    for (const char *rule : {"Locale en_US", "Sentences end in punctuation yes", "at least 2", "Paper Legal",
             "Paper width 612 points", "Left margin 72 points", "Right margin 18 points", "Column 522 points",
             "Pixels per point 1", "Font "})
        EXPECT_THAT(text, HasSubstr(rule));
}

TEST_F(CountCommandTest, ExplainedRulesAreAnObjectInJson)
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    QBYUserDefaultsController::setCurrentPaperNamePreference(QStringLiteral("Legal"));
    QBYUserDefaultsController::setLeftMarginForPaperSizeLineMeasuring(1);
    QBYUserDefaultsController::setMinNumberOfSentencesForParagraphCount(2);
    const QByteArray output = count({"--explain-rules", "--json"}).output;
    const QJsonObject rules = QJsonDocument::fromJson(output).object();
    EXPECT_EQ(output.count('\n'), 1);
    EXPECT_EQ(rules[u"locale"], QStringLiteral("en_US"));
    EXPECT_EQ(rules[u"terminalPunctuation"], true);
    EXPECT_EQ(rules[u"minimumSentences"], 2);
    EXPECT_EQ(rules[u"paper"], QStringLiteral("Legal"));
    EXPECT_EQ(rules[u"leftMargin"], 72);
    EXPECT_EQ(rules[u"column"], 522);
    EXPECT_FALSE(rules[u"fonts"].toArray().isEmpty());

    QBYUserDefaultsController::setLeftMarginForPaperSizeLineMeasuring(10);
    const QByteArray narrow = count({"--explain-rules", "--json"}).output;
    EXPECT_TRUE(QJsonDocument::fromJson(narrow).object()[u"column"].isNull());
}

TEST_F(CountCommandTest, ExplainedRulesNameTheFontsThatTheFilesNeed)
{
    const QByteArray latin = count({"--explain-rules", file("latin", "One.")}).output;
    const QByteArray thai = count({"--explain-rules", file("thai", "\xE0\xB8\xA0\xE0\xB8\xB2")}).output;
    if (latin.count("\nFont ") != 1)
        GTEST_SKIP() << "no usable font here";
    EXPECT_NE(latin, thai);
}
