// SPDX-License-Identifier: MIT
#include "tests/command/CommandTest.h"
#include "tests/documents/docx/PackageWriter.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using Outcome = ChildProcess::Outcome;

namespace {

const std::vector<QString> kinds{QStringLiteral("words"), QStringLiteral("characters"),
    QStringLiteral("charactersIncludingWhitespace"), QStringLiteral("sentences"), QStringLiteral("lines"),
    QStringLiteral("hardLineBreaks"), QStringLiteral("paragraphs"), QStringLiteral("indentedParagraphs")};

class ExplainCommandTest : public CommandTest {
protected:
    void SetUp() override
    {
        CommandTest::SetUp();
        setLocale("en_US.UTF-8");
    }

    static Outcome explain(const QByteArrayList &words, const QByteArray &input = {})
    {
        return quillbay(QByteArrayList{"explain"} + words, input);
    }

    static std::vector<QJsonObject> objectsOf(const QByteArray &output)
    {
        std::vector<QJsonObject> objects;
        for (const QByteArray &line : output.trimmed().split('\n'))
            objects.push_back(QJsonDocument::fromJson(line).object());
        return objects;
    }

    /// That the items add up to the last line, which is what "quillbay count" prints, and are where they say.
    static void expectItemsAsCounted(const QByteArray &name)
    {
        SCOPED_TRACE(name.toStdString());
        const QByteArray output = explain({"--json", name}).output;
        const QByteArray last = output.mid(output.chopped(1).lastIndexOf('\n') + 1);
        EXPECT_EQ(last, count({"--json", name}).output);
        const QString text = QString::fromUtf8(quillbay({"extract", name}).output);
        std::map<QString, qint64> sums;
        std::vector<QJsonObject> items = objectsOf(output);
        const QJsonObject counts = items.back();
        items.pop_back();
        for (const QJsonObject &item : items) {
            const QString kind = item[u"kind"].toString();
            const bool isRun = kind.startsWith(u"characters");
            const int length = item[u"length"].toInt();
            if (item[u"counted"].toBool())
                sums[kind] += isRun ? length : 1;
            const QString excerpt = item[u"text"].toString();
            EXPECT_EQ(text.mid(item[u"offset"].toInt(), length).first(excerpt.size()), excerpt);
            EXPECT_FALSE(item[u"reason"].toString().isEmpty());
        }
        for (const QString &kind : kinds)
            EXPECT_EQ(sums[kind], counts[kind].toInteger()) << kind.toStdString();
    }
};

} // namespace

TEST_F(ExplainCommandTest, TheItemsOfEverySampleAddUpToItsCounts)
{
    const QDir samples(QStringLiteral(QUILLBAY_SAMPLES));
    const QStringList names = samples.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    EXPECT_GE(names.size(), 6);
    for (const QString &name : names)
        expectItemsAsCounted(QFile::encodeName(samples.filePath(name)));
}

TEST_F(ExplainCommandTest, ExplainsWordDocumentsAndNamesOfAnyBytes)
{
    const QByteArray body = "<w:p><w:r><w:t>Two words. b</w:t></w:r></w:p><w:p><w:r><w:tab/><w:t>Three"
                            "</w:t></w:r></w:p>";
    expectItemsAsCounted(file("report.docx", WordPackage{.body = body}.bytes()));
    const QByteArray name = writeFileOfBytes("caf\xE9\x1B.txt", "One.");
    EXPECT_THAT(
        explain({name}).output.toStdString(), HasSubstr("caf\uFFFD\\x1b.txt\nWords                 1"));
    EXPECT_THAT(explain({"--json", "--words", name}).output.toStdString(), HasSubstr("caf\uFFFD\\u001b.txt"));
}

TEST_F(ExplainCommandTest, TheOverviewHasTheCountsAndWhatIsMissing)
{
    const QByteArray name = file("letter.txt", "\tI saw b.\n\nNo end");
    EXPECT_EQ(explain({name}).output, name + R"(
Words                 4
                      1 not counted: in American English, a single character other than A, I, O and X is no word
Characters           11
                      6 not counted: spaces, tabs and line ends are white space
+Whitespace          17
Sentences             1
                      1 not counted: it does not end in a full stop, question mark or exclamation mark, or in one of them and a straight double quote
Lines                 3
Hard breaks           3
Paragraphs            2
                      1 not counted: there is nothing but white space in it
Indented              1
                      1 not counted: it does not begin with a tab
)");
}

TEST_F(ExplainCommandTest, TheTextIsMarkedLineByLineWithReasons)
{
    EXPECT_EQ(explain({"--words", "-"}, "I saw b.\r\n\r\n\tIt's 5 & c.").output, QByteArray(R"(-
     1  [I] [saw] {b}.
        not counted: {b}: in American English, a single character other than A, I, O and X is no word
     2
     3  	[It's] {5} {&} {c}.
        not counted: {5} {c}: in American English, a single character other than A, I, O and X is no word
        not counted: {&}: there is no letter, digit or ideograph in it
Words                 3
                      3 not counted: in American English, a single character other than A, I, O and X is no word
                      1 not counted: there is no letter, digit or ideograph in it
)"));
    EXPECT_THAT(explain({"--sentences"}, "One. Two. No end").output.toStdString(),
        HasSubstr("     1  [One.] [Two.] {No end}\n"));
    EXPECT_THAT(
        explain({"--paragraphs"}, "One.\n\n").output.toStdString(), HasSubstr("1  [One.]\n     2  {}\n"));
    EXPECT_THAT(explain({"--characters"}, "a b\n \nc").output.toStdString(),
        HasSubstr("     1  [a] [b]\n     2   \n     3  [c]\n"));
    EXPECT_THAT(explain({"--hard-line-breaks"}, "a\n\nb").output.toStdString(),
        HasSubstr("     1  [a]\n     2  []\n     3  [b]\n"));
}

TEST_F(ExplainCommandTest, ALaidOutLineIsMarkedWhereItEnds)
{
    const QByteArray output = explain({"--lines"}, QByteArray("many words ").repeated(30)).output;
    EXPECT_THAT(output.toStdString(), AllOf(HasSubstr("     1  [many words"), HasSubstr("] [")));
}

TEST_F(ExplainCommandTest, WhatIsNotCountedCanBePrintedAlone)
{
    const QByteArray text = "One two three.\nIt was " + QByteArray("long ").repeated(20) + "b "
        + QByteArray("long ").repeated(20) + ".\n";
    const QByteArray output = explain({"--not-counted", "--words"}, text).output;
    EXPECT_THAT(output.toStdString(),
        StartsWith("-\n     2  g long long long long long long {b} long long long long long long l\n        "
                   "not counted: in American English"));
    EXPECT_THAT(output.toStdString(), Not(HasSubstr("One")));
    for (const QJsonObject &item : objectsOf(explain({"--not-counted", "--json"}, text).output))
        EXPECT_FALSE(item[u"counted"].toBool(false));
}

TEST_F(ExplainCommandTest, NotesOfALineAreFewAndShort)
{
    const QByteArray output = explain({"--words"}, "b c d e f " + QByteArray("*").repeated(100)).output;
    EXPECT_THAT(output.toStdString(), HasSubstr("not counted: {b} {c} {d} and 2 more: in"));
    EXPECT_THAT(output.toStdString(), HasSubstr('{' + std::string(32, '*') + "…}: there"));
}

TEST_F(ExplainCommandTest, ADocumentCannotControlTheTerminal)
{
    const QByteArray text = "\x1B]0;title\a b\xC2\x9B\xE2\x80\xAE c";
    for (const QByteArrayList &words :
        {QByteArrayList{"--words"}, QByteArrayList{"--not-counted"}, QByteArrayList{"--json"}}) {
        const QByteArray output = explain(words, text).output;
        EXPECT_FALSE(output.contains('\x1B') || output.contains('\a') || output.contains("\xC2\x9B")
            || output.contains("\xE2\x80\xAE"));
    }
}

TEST_F(ExplainCommandTest, FollowsTheLocale)
{
    setLocale("de_DE.UTF-8");
    qputenv("LANGUAGE", "en");
    const QByteArray output = explain({"--words"}, "b").output;
    EXPECT_EQ(output, QByteArray("-\n     1  [b]\nWords                 1\n"));
}

TEST_F(ExplainCommandTest, FailsLikeCountAndExplainsTheOthers)
{
    const QByteArray picture = file("picture.txt", QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1", 20));
    const QByteArray text = file("sound.txt", "Two words.");
    const Outcome outcome = explain({"--words", "/no/such", picture, text});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors, count({"/no/such", picture}).errors);
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("[Two] [words].\nWords                 2\n"));
    EXPECT_EQ(explain({"--as-text", picture}).exitStatus, 0);
    EXPECT_EQ(explain({}, "").exitStatus, 0);
}

TEST_F(ExplainCommandTest, WrongUsageIsReported)
{
    EXPECT_EQ(explain({"--help"}).exitStatus, 0);
    const Outcome outcome = explain({"--tsv"});
    EXPECT_EQ(outcome.exitStatus, 2);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("invalid option '--tsv'"));
}
