// SPDX-License-Identifier: MIT
// "quillbay count" with columns, sorting, goals and folders.
#include "tests/command/CommandTest.h"

#include <QDir>

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;

namespace {

class CountSelectionTest : public CommandTest {
protected:
    const QByteArray m_one = file("one.txt", "One.");
    const QByteArray m_two = file("two.txt", "Two words.");
    const QByteArray m_three = file("an early name.txt", "Now three words.");
};

} // namespace

TEST_F(CountSelectionTest, ColumnsAreThoseGivenInTheirOrder)
{
    EXPECT_THAT(tableRows(count({"--columns", "sentences,words,reading-time", m_two}).output),
        ElementsAre(QByteArrayList{"1", "2", "0:01", m_two}));
    EXPECT_EQ(count({"--tsv", "--columns", "words", m_one}).output, "file\twords\n" + m_one + "\t1\n");
    EXPECT_EQ(count({"--json", "--columns", "words,words"}, "a b").output.toStdString(),
        "{\"file\":\"-\",\"words\":1}\n");
}

TEST_F(CountSelectionTest, FilesAreSortedByACountOrByName)
{
    const auto order = [&](const QByteArray &key) {
        QByteArrayList names;
        for (const QByteArray &line :
            count({"--tsv", "--columns", "words", "--sort", key, m_two, m_three, m_one}).output.split('\n'))
            names.append(line.split('\t').first());
        return names.sliced(1, 3);
    };
    EXPECT_EQ(order("words"), (QByteArrayList{m_three, m_two, m_one}));
    EXPECT_EQ(order("graphemes"), (QByteArrayList{m_three, m_two, m_one})); // counted though not shown
    EXPECT_EQ(order("sentences"), (QByteArrayList{m_two, m_three, m_one})); // equal ones as given
    EXPECT_EQ(order("name"), (QByteArrayList{m_three, m_one, m_two}));
}

TEST_F(CountSelectionTest, AGoalIsReachedOrNot)
{
    ChildProcess::Outcome outcome = count({"--goal", "5", m_one, m_two});
    EXPECT_EQ(outcome.exitStatus, 3);
    EXPECT_THAT(outcome.output.toStdString(), EndsWith("Words: goal 5, 2 to go\n"));
    outcome = count({"--goal", "5", m_one, m_two, m_three});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_THAT(outcome.output.toStdString(), EndsWith("Words: goal 5, reached with 1 more\n"));
    outcome = count({"--json", "--goal", "100 all-characters", m_one});
    EXPECT_EQ(outcome.exitStatus, 3);
    EXPECT_EQ(outcome.output.count('\n'), 1);
    EXPECT_EQ(count({"--goal", "1", m_one, "/no/such/file"}).exitStatus, 1);
}

TEST_F(CountSelectionTest, FoldersStandForTheFilesBelowThem)
{
    const QByteArray folder = QFileInfo(QFile::decodeName(m_one)).path().toUtf8();
    QDir(QString::fromUtf8(folder)).mkdir(QStringLiteral("inner"));
    file("inner/deep.md", "Deep words here.");
    file("inner/picture.png", QByteArray("\x89PNG\r\n\x1A\n") + QByteArray(100, '\0'));
    file(".gitignore", "one.txt\n");
    const ChildProcess::Outcome outcome = count({"--recursive", "--columns", "words", folder});
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.constData();
    EXPECT_EQ(outcome.errors, QByteArray());
    EXPECT_THAT(tableRows(outcome.output),
        ElementsAre(QByteArrayList{"1", folder + "/.gitignore"},
            QByteArrayList{"3", folder + "/an", "early", "name.txt"},
            QByteArrayList{"3", folder + "/inner/deep.md"}, QByteArrayList{"2", m_two},
            QByteArrayList{"9", "total"}));
    EXPECT_THAT(tableRows(count({"-r", "--include", "*.md", "--columns", "words", folder}).output),
        ElementsAre(QByteArrayList{"3", folder + "/inner/deep.md"}, QByteArrayList{"3", "total"}));
    // What is named itself is reported.
    EXPECT_EQ(count({"-r", folder + "/inner/picture.png"}).exitStatus, 1);
}

TEST_F(CountSelectionTest, WrongValuesAreReported)
{
    for (const auto &[words, message] : std::vector<std::pair<QByteArrayList, const char *>>{
             {{"--columns", "letters"}, "--columns knows no 'letters'"},
             {{"--columns", "words", "--also", "pages"}, "--also and --columns cannot be combined"},
             {{"--sort", "size"}, "--sort knows no 'size'"}, {{"--goal", "many"}, "'many' is no goal"},
             {{"--goal", "5 pages"}, "'5 pages' is no goal"},
             {{"--include", "*"}, "--include needs --recursive"},
             {{"--count-as", "me"}, "--count-as knows no 'me'"}}) {
        const ChildProcess::Outcome outcome = count(words);
        EXPECT_EQ(outcome.exitStatus, 2);
        EXPECT_THAT(outcome.errors.toStdString(), HasSubstr(message));
    }
}
