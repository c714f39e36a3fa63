// SPDX-License-Identifier: MIT
// "quillbay count" with counts beside the eight statistics.
#include "preferences/FurtherPreferences.h"
#include "tests/command/CommandTest.h"

#include <QJsonDocument>
#include <QJsonObject>

using ::testing::HasSubstr;

namespace {

class CountFurtherTest : public CommandTest {
protected:
    static QJsonObject json(const QByteArrayList &words, const QByteArray &input = {})
    {
        return QJsonDocument::fromJson(count(QByteArrayList{"--json"} + words, input).output).object();
    }
};

/// 600 words of 6 characters with their blank, on 600 lines.
const QByteArray words = QByteArray("words\n").repeated(600);
const QByteArray everything = "pages,standard-pages,reading-time,speaking-time,graphemes";

} // namespace

TEST_F(CountFurtherTest, TheColumnsFollowTheEightInTheOrderGiven)
{
    const QByteArrayList lines =
        count({"--tsv", "--also", "graphemes,standard-pages"}, words).output.split('\n');
    EXPECT_EQ(
        lines[0].split('\t').sliced(8), (QByteArrayList{"indentedParagraphs", "graphemes", "standardPages"}));
    EXPECT_EQ(lines[1].split('\t').sliced(9), (QByteArrayList{"3600", "2.00"}));
}

TEST_F(CountFurtherTest, TimesAreSecondsForProgramsAndClocksForReaders)
{
    const QJsonObject object = json({"--also", "reading-time,speaking-time"}, words);
    EXPECT_EQ(object[u"readingTime"].toInt(), 152); // 600 words at 238 a minute
    EXPECT_EQ(object[u"speakingTime"].toInt(), 197); // at 183
    const QByteArrayList row =
        tableRows(count({"--also", "reading-time,speaking-time"}, words).output).front();
    EXPECT_EQ(row.sliced(8), (QByteArrayList{"2:32", "3:17", "-"}));
    const QByteArrayList long20 =
        tableRows(count({"--also", "reading-time"}, words.repeated(60)).output).front();
    EXPECT_EQ(long20[8], QByteArray("2:31:16"));
}

TEST_F(CountFurtherTest, WithoutThemNothingChanges)
{
    EXPECT_EQ(json({}, words).size(), 9);
    const QJsonObject eight = json({}, words);
    const QJsonObject more = json({"--also", everything}, words);
    EXPECT_EQ(more.size(), 14);
    for (const QString &key : eight.keys())
        EXPECT_EQ(more[key], eight[key]) << key.toStdString();
}

TEST_F(CountFurtherTest, ThePreferencesDecideWhereTheOptionDoesNot)
{
    FurtherPreferences::setShown(Preference::ShowStandardPages, true);
    FurtherPreferences::setStandardPage({300, StandardPage::Unit::Words});
    EXPECT_EQ(json({}, words)[u"standardPages"].toDouble(), 2);
    EXPECT_FALSE(json({"--also", "none"}, words).contains(u"standardPages"));
    EXPECT_FALSE(json({"--also", "graphemes"}, words).contains(u"standardPages"));
}

TEST_F(CountFurtherTest, PagesDependOnTheVerticalMargins)
{
    const int pages = json({"--also", "pages"}, words)[u"pages"].toInt();
    FurtherPreferences::setVerticalMargin(Preference::TopMargin, 5);
    EXPECT_GT(json({"--also", "pages"}, words)[u"pages"].toInt(), pages);
    const QByteArray rules = count({"--explain-rules", "--also", "pages"}).output;
    EXPECT_THAT(rules.toStdString(), HasSubstr("Top margin                            360 points\n"));
}

TEST_F(CountFurtherTest, OneThreadAndSeveralCountAlikeAndTheTotalAddsUp)
{
    const QByteArray name = file("long.txt", words.repeated(200)); // long enough for threads
    const QByteArrayList alone = tableRows(count({"--also", everything, name}).output).front();
    const QList<QByteArrayList> rows = tableRows(count({"--also", everything, name, name}).output);
    EXPECT_EQ(rows[0], alone);
    EXPECT_EQ(rows[1], alone);
    EXPECT_EQ(rows[2][8].toULongLong(), 2 * alone[8].toULongLong());
    EXPECT_EQ(rows[2][12].toULongLong(), 2 * alone[12].toULongLong());
}

TEST_F(CountFurtherTest, WrongNamesAreReported)
{
    for (const auto &[words, message] : std::vector<std::pair<QByteArrayList, const char *>>{
             {{"--also", "pages,letters"}, "--also knows no 'letters'"},
             {{"--also", ""}, "--also knows no ''"},
             {{"--service", "--also", "pages"}, "--service does not count pages"}}) {
        const ChildProcess::Outcome outcome = count(words);
        EXPECT_EQ(outcome.exitStatus, 2);
        EXPECT_THAT(outcome.errors.toStdString(), HasSubstr(message));
    }
}
