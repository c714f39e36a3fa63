// SPDX-License-Identifier: MIT
#include "tests/command/CommandTest.h"

#include <cerrno>
#include <cstring>

using ::testing::HasSubstr;
using ::testing::StartsWith;

class CountUsageTest : public CommandTest { };

TEST_F(CountUsageTest, HelpAndVersionGoToStandardOutput)
{
    for (const QByteArrayList &words :
        {QByteArrayList{"--help"}, QByteArrayList{"-h"}, QByteArrayList{"count", "--help"}}) {
        const ChildProcess::Outcome outcome = quillbay(words);
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_THAT(outcome.output.toStdString(), StartsWith("Usage: quillbay "));
        EXPECT_EQ(outcome.errors, QByteArray());
    }
    EXPECT_THAT(quillbay({"--version"}).output.toStdString(), ::testing::MatchesRegex("quillbay [0-9.]+\n"));
}

TEST_F(CountUsageTest, WrongUsageExitsWithTwoAndAHintOnStandardError)
{
    const std::vector<std::pair<QByteArrayList, const char *>> cases{
        {{}, "no command given"},
        {{"frobnicate"}, "unknown command 'frobnicate'"},
        {{"count", "--nonsense"}, "--nonsense"},
        {{"count", "--json", "--tsv"}, "--json and --tsv cannot be combined"},
        {{"count", "--explain-rules", "--tsv"}, "leave out --tsv"},
        {{"count", "--files-from"}, "--files-from"},
        {{"count", "--files-from", "a", "--files-from", "b"}, "only once"},
        {{"count", "--files-from", "-", "-"}, "standard input cannot be both"},
    };
    for (const auto &[words, message] : cases) {
        const ChildProcess::Outcome outcome = quillbay(words);
        EXPECT_EQ(outcome.exitStatus, 2) << message;
        EXPECT_EQ(outcome.output, QByteArray());
        EXPECT_THAT(outcome.errors.toStdString(), HasSubstr(message));
        EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("--help' for more."));
    }
}

TEST_F(CountUsageTest, NoWordControlsTheTerminal)
{
    const QByteArray name = file("a\x1B[2J\xC2\x9B\r", "One.");
    const std::vector<QByteArrayList> cases{{"no\x1B[2J\xC2\x9B"}, {"count", "--no\x1B[2J\xC2\x9B"},
        {"count", "-\x1B"}, {"text", "--no\x1B[2J\xC2\x9B"}, {"count", "/no/such\x1B[2J\xC2\x9B\r"},
        {"count", name}, {"count", "--tsv", name}, {"count", "--json", name}};
    for (const QByteArrayList &words : cases) {
        const ChildProcess::Outcome outcome = quillbay(words);
        for (const QByteArray &stream : {outcome.output, outcome.errors}) {
            EXPECT_FALSE(stream.contains('\x1B')) << stream.constData();
            EXPECT_FALSE(stream.contains('\r')) << stream.constData();
            EXPECT_FALSE(stream.contains("\xC2\x9B")) << stream.constData();
        }
        EXPECT_FALSE(outcome.output.isEmpty() && outcome.errors.isEmpty());
    }
}

TEST_F(CountUsageTest, MessagesAreEnglishInALanguageWithoutATranslation)
{
    // glibc's own texts for these would be Italian.
    setLocale("de_DE.UTF-8");
    qputenv("LANGUAGE", "it");
    const bool isTranslated = std::strcmp(std::strerror(ENOENT), ::strerrordesc_np(ENOENT)) != 0;
    SKIP_WITHOUT_PACKAGE(isTranslated, "locales, with de_DE.UTF-8");
    const QByteArray missing = QFile::encodeName(world().root()) + "/missing";
    const std::vector<std::pair<QByteArrayList, QByteArray>> cases{
        {{"count", "--nonsense"},
            "quillbay: invalid option '--nonsense'\nTry 'quillbay count --help' for more.\n"},
        {{"count", "-x"}, "quillbay: invalid option '-x'\nTry 'quillbay count --help' for more.\n"},
        {{"count", "--files-from"},
            "quillbay: missing argument for option '--files-from'\n"
            "Try 'quillbay count --help' for more.\n"},
        {{"text", "--nonsense"},
            "quillbay: invalid option '--nonsense'\nTry 'quillbay text --help' for more.\n"},
        {{"watch", missing}, "quillbay: " + missing + ": no such file\n"},
        {{"count", missing}, "quillbay: " + missing + ": no such file\n"},
    };
    for (const auto &[words, message] : cases) {
        const ChildProcess::Outcome outcome = quillbay(words);
        EXPECT_NE(outcome.exitStatus, 0);
        EXPECT_EQ(outcome.errors, message);
    }
}

TEST_F(CountUsageTest, MessagesAndTablesAreInTheLanguageOfTheUserAndJsonIsTheSame)
{
    const QByteArray name = file("name", "One b.");
    const QByteArray json = count({"--json", name}).output;
    const QByteArray tsv = count({"--tsv", name}).output;
    ::setenv("LANGUAGE", "fr:de", 1); // the counting rules remain those of LANG
    EXPECT_TRUE(count({name}).output.contains("Phrases"));
    EXPECT_EQ(count({"--json", name}).output, json);
    EXPECT_EQ(count({"--tsv", name}).output, tsv);
    ::setenv("LANGUAGE", "de", 1);
    EXPECT_EQ(count({"/missing"}).errors, QByteArray("quillbay: /missing: gibt es nicht\n"));
    EXPECT_EQ(count({"--json", name}).output, json);
}

TEST_F(CountUsageTest, OptionsMayFollowFilesAndTwoDashesEndThem)
{
    const QByteArray name = file("--json", "One.");
    const QString folder = QFileInfo(QFile::decodeName(name)).path();
    ChildProcess process(productProgram(QStringLiteral("quillbay")));
    const ChildProcess::Outcome outcome = process.inFolder(folder).run({"count", "--tsv", "--", "--json"});
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("\n--json\t1\t"));
    const QByteArray other = file("other", "One.");
    EXPECT_THAT(count({other, "--json"}).output.toStdString(), StartsWith("{\"file\":"));
}
