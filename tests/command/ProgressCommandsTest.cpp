// SPDX-License-Identifier: MIT
// "quillbay documents", "goal", "status" and "history".
#include "tests/command/CommandTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using ::testing::HasSubstr;

class ProgressCommandsTest : public CommandTest {
protected:
    static std::string output(const QByteArrayList &words) { return quillbay(words).output.toStdString(); }
    /// path: the names of members and the indexes of elements, separated by dots.
    static QJsonValue status(const char *path)
    {
        QJsonValue value = QJsonDocument::fromJson(quillbay({"status", "--json"}).output).object();
        for (const QString &name : QString::fromLatin1(path).split(u'.'))
            value = value.isArray() ? value.toArray().at(name.toInt()) : value.toObject().value(name);
        return value;
    }
};

TEST_F(ProgressCommandsTest, NothingIsStoredBeforeADocumentIsListed)
{
    file("a.txt", "one two");
    EXPECT_THAT(quillbay({"status"}).errors.toStdString(), HasSubstr("quillbay documents FILE"));
    EXPECT_FALSE(
        QFile::exists(world().configuration() + QStringLiteral("/quillbay/com.quillbay.Documents.sqlite3")));
}

TEST_F(ProgressCommandsTest, AListedDocumentIsCountedWithItsChangeSinceMidnight)
{
    const QByteArray path = file("a.txt", "one two");
    EXPECT_EQ(quillbay({"documents", path}).exitStatus, 0);
    EXPECT_EQ(quillbay({"documents"}).output, path + '\n');
    EXPECT_EQ(status("documents.0.today.words").toInt(-1), 0);
    file("a.txt", "one two three four five");
    EXPECT_EQ(status("documents.0.counts.words").toInt(), 5);
    EXPECT_EQ(status("documents.0.today.words").toInt(), 3);
    EXPECT_EQ(status("total.today.words").toInt(), 3);
    EXPECT_THAT(output({"status"}), HasSubstr("5         3  " + path.toStdString()));
}

TEST_F(ProgressCommandsTest, AGoalIsPartOfTheStatus)
{
    const QByteArray path = file("a.txt", "one two three");
    quillbay({"documents", path});
    EXPECT_EQ(quillbay({"goal", path, "10"}).exitStatus, 0);
    EXPECT_EQ(quillbay({"goal", "--limit", path, "2"}).exitStatus, 0);
    EXPECT_EQ(output({"goal", path}), "Goal: 10 words\nLimit: At most 2 words\n");
    EXPECT_THAT(output({"status"}), HasSubstr("(7 words remaining; more than 2 words)"));
    EXPECT_EQ(status("documents.0.goal.percent").toInt(), 30);
    EXPECT_TRUE(status("documents.0.limit.isPassed").toBool());
    quillbay({"goal", "--remove", path});
    EXPECT_TRUE(status("documents.0.goal").isUndefined());
}

TEST_F(ProgressCommandsTest, AFolderHasAGoalForItsDocuments)
{
    const QByteArray path = file("book/a.txt", "one two three");
    quillbay({"documents", path, file("book/b.txt", "four five")});
    quillbay({"goal", path.first(path.lastIndexOf('/')) + '/', "10"});
    EXPECT_EQ(status("folders.0.goal.remaining").toInt(), 5);
}

TEST_F(ProgressCommandsTest, HistoryHasEachDay)
{
    const QByteArray path = file("a.txt", "one two");
    quillbay({"documents", path});
    quillbay({"status"});
    file("a.txt", "one two three");
    quillbay({"status"});
    const QByteArray today = QDate::currentDate().toString(Qt::ISODate).toLatin1();
    EXPECT_THAT(
        output({"history", path}), HasSubstr(today.toStdString() + "           3         1         1"));
    const QByteArrayList lines = quillbay({"history", "--csv", path}).output.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_THAT(lines[0].toStdString(), HasSubstr("time,day,words,characters,"));
    EXPECT_THAT(lines[2].toStdString(), HasSubstr(today.toStdString() + ",3,11,"));
    quillbay({"history", "--forget", path});
    EXPECT_EQ(quillbay({"history", "--csv", path}).output.count('\n'), 2);
}

TEST_F(ProgressCommandsTest, ADocumentThatCannotBeReadIsReported)
{
    const QByteArray path = file("a.txt", "one two");
    quillbay({"documents", path});
    QFile::remove(QFile::decodeName(path));
    const ChildProcess::Outcome outcome = quillbay({"status"});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr(path.toStdString() + ": "));
    EXPECT_EQ(quillbay({"documents", "--remove", path}).exitStatus, 0);
    EXPECT_EQ(quillbay({"documents"}).output, "");
}

TEST_F(ProgressCommandsTest, AGoalIsForTheStatisticOfThatName)
{
    const QByteArray path = file("a.txt", "one two");
    quillbay({"documents", path});
    EXPECT_EQ(quillbay({"goal", "--of", "all-characters", path, "10"}).exitStatus, 0);
    EXPECT_EQ(
        status("documents.0.goal.statistic").toString(), QStringLiteral("charactersIncludingWhitespace"));
    EXPECT_EQ(status("documents.0.goal.remaining").toInt(), 3);
}

TEST_F(ProgressCommandsTest, WrongUsageIsReported)
{
    const QByteArray path = file("a.txt", "one");
    for (const QByteArrayList &words :
        {QByteArrayList{"goal", path, "0"}, {"goal", path, "many"}, {"goal", "--of", "sonnets", path, "5"},
            {"goal", "--by", "tomorrow", path, "5"}, {"goal", "--day", "--by", "2026-11-30", path, "5"},
            {"goal", "--added-only", path, "5"}, {"goal"}, {"history"}, {"history", "--keep", "perhaps"},
            {"history", "--csv", "--json", path}, {"status", path}, {"documents", "--remove"}})
        EXPECT_EQ(quillbay(words).exitStatus, 2) << words.join(' ').toStdString();
    EXPECT_EQ(quillbay({"documents", "/nonexistent"}).exitStatus, 1);
}
