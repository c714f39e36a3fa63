// SPDX-License-Identifier: MIT
// The list of documents, their plans and what is kept of their counts.
#include "tests/writing_progress/ProgressTest.h"

#include <sqlite3.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ProgressStoreTest : public ProgressTest { };

TEST_F(ProgressStoreTest, ReadingMakesNoFile)
{
    EXPECT_THAT(paths(), IsEmpty());
    EXPECT_THAT(record("/book/a.md", 10, at("2026-11-22 10:00:00")), IsEmpty());
    EXPECT_FALSE(QFile::exists(QFile::decodeName(m_store.path())));
}

TEST_F(ProgressStoreTest, DocumentsStayInTheUsersOrder)
{
    add({"/book/a.md", "/book/b.md", "/book/\xff.md"});
    add({"/book/b.md", "/book/c.md"});
    EXPECT_THAT(paths(), ElementsAre("/book/a.md", "/book/b.md", "/book/\xff.md", "/book/c.md"));
    EXPECT_FALSE(m_store.setOrder({"/book/c.md", "/book/a.md", "/book/b.md", "/book/\xff.md"}));
    EXPECT_THAT(ProgressStore().documents().value().front().path.toStdString(), "/book/c.md");
}

TEST_F(ProgressStoreTest, ADocumentThatIsNotListedIsNotRecorded)
{
    add({"/book/a.md"});
    record("/book/b.md", 10, at("2026-11-22 10:00:00"));
    add({"/book/b.md"});
    EXPECT_THAT(history("/book/b.md"), IsEmpty());
}

TEST_F(ProgressStoreTest, TheSameCountFromTwoProcessesIsOneRow)
{
    add({"/book/a.md"});
    record("/book/a.md", 10, at("2026-11-22 10:00:59"));
    ProgressStore other;
    EXPECT_TRUE(
        other.record({.path = "/book/a.md", .stats = words(10)}, at("2026-11-22 10:01:00")).hasValue());
    EXPECT_THAT(history("/book/a.md"), ElementsAre(10));
}

TEST_F(ProgressStoreTest, SeveralCountsAreRecordedTogether)
{
    add({"/book/a.md", "/book/b.md"});
    EXPECT_TRUE(
        m_store
            .recordAll({{.path = "/book/a.md", .stats = words(1)}, {.path = "/other", .stats = words(2)},
                           {.path = "/book/b.md", .stats = words(3)}},
                at("2026-11-22 10:00:00"))
            .hasValue());
    EXPECT_THAT(history("/book/a.md"), ElementsAre(1));
    EXPECT_THAT(history("/book/b.md"), ElementsAre(3));
}

TEST_F(ProgressStoreTest, AMinuteHasOneRow)
{
    add({"/book/a.md"});
    record("/book/a.md", 10, at("2026-11-22 10:00:00")); // the first one stays
    record("/book/a.md", 11, at("2026-11-22 10:05:01"));
    record("/book/a.md", 12, at("2026-11-22 10:05:59"));
    record("/book/a.md", 13, at("2026-11-22 10:06:00"));
    EXPECT_THAT(history("/book/a.md"), ElementsAre(10, 12, 13));
}

TEST_F(ProgressStoreTest, OfDaysOlderThanAYearTheLastRowIsKept)
{
    add({"/book/a.md"});
    for (int i = 0; i < 5; ++i)
        record("/book/a.md", 10 + static_cast<quint64>(i), at("2025-11-20 10:00:00").addSecs(60 * i));
    for (int i = 0; i < 3; ++i)
        record("/book/a.md", 20 + static_cast<quint64>(i), at("2025-11-23 10:00:00").addSecs(60 * i));
    record("/book/a.md", 30, at("2026-11-22 10:00:00"));
    EXPECT_THAT(history("/book/a.md"), ElementsAre(14, 20, 21, 22, 30));
}

TEST_F(ProgressStoreTest, RemovingADocumentForgetsAllAboutIt)
{
    add({"/book/a.md", "/book/b.md"});
    record("/book/a.md", 10, at("2026-11-22 10:00:00"));
    EXPECT_FALSE(m_store.setPlan("/book/a.md", {.limit = Limit{.amount = 50}}));
    EXPECT_FALSE(m_store.remove({"/book/a.md"}));
    EXPECT_THAT(paths(), ElementsAre("/book/b.md"));
    EXPECT_THAT(m_store.plans().value(), IsEmpty());
    add({"/book/a.md"});
    EXPECT_THAT(history("/book/a.md"), IsEmpty());
}

TEST_F(ProgressStoreTest, AMovedDocumentKeepsItsHistoryAndPlan)
{
    add({"/book/a.md", "/book/b.md"});
    record("/book/a.md", 10, at("2026-11-22 10:00:00"));
    record("/book/b.md", 99, at("2026-11-22 10:00:00"));
    EXPECT_FALSE(m_store.setPlan("/book/a.md", {.limit = Limit{.amount = 50}}));
    EXPECT_FALSE(m_store.move("/book/a.md", "/book/b.md")); // onto the other one
    EXPECT_THAT(paths(), ElementsAre("/book/b.md"));
    EXPECT_THAT(history("/book/b.md"), ElementsAre(10));
    EXPECT_EQ(m_store.plans().value().at("/book/b.md").limit->amount, 50U);
}

TEST_F(ProgressStoreTest, PlansAreReadAsTheyWereSet)
{
    const Plan plan{.goal = Goal{.statistic = Statistic::CharactersIncludingWhitespace,
                        .amount = 90'000,
                        .deadline = QDate(2026, 11, 30)},
        .limit = Limit{.statistic = Statistic::Lines, .amount = 5000}};
    const Plan daily{.goal = Goal{.amount = 500, .span = Goal::Span::Day, .countsAddedOnly = true}};
    EXPECT_FALSE(m_store.setPlan("/book/a.md", plan));
    EXPECT_FALSE(m_store.setPlan("/book", daily));
    const ProgressStore::Plans plans = ProgressStore().plans().value();
    EXPECT_EQ(plans.at("/book/a.md"), plan);
    EXPECT_EQ(plans.at("/book"), daily);
    EXPECT_FALSE(m_store.setPlan("/book", {}));
    EXPECT_THAT(m_store.plans().value(), SizeIs(1));
}

TEST_F(ProgressStoreTest, AGoalIsReportedOnceAndALimitToo)
{
    add({"/book/a.md"});
    EXPECT_FALSE(m_store.setPlan("/book/a.md", {.goal = Goal{.amount = 100}, .limit = Limit{.amount = 150}}));
    EXPECT_THAT(record("/book/a.md", 99, at("2026-11-22 10:00:00")), IsEmpty());
    const std::vector<Milestone> reached = record("/book/a.md", 100, at("2026-11-22 10:01:00"));
    ASSERT_THAT(reached, SizeIs(1));
    EXPECT_EQ(reached[0].kind, Milestone::Kind::GoalReached);
    EXPECT_THAT(record("/book/a.md", 90, at("2026-11-22 10:02:00")), IsEmpty());
    EXPECT_THAT(record("/book/a.md", 150, at("2026-11-22 10:03:00")), IsEmpty());
    const std::vector<Milestone> passed = record("/book/a.md", 151, at("2026-11-22 10:04:00"));
    ASSERT_THAT(passed, SizeIs(1));
    EXPECT_EQ(passed[0].kind, Milestone::Kind::LimitPassed);
    EXPECT_THAT(record("/book/a.md", 152, at("2026-11-22 10:05:00")), IsEmpty());
}

TEST_F(ProgressStoreTest, AGoalForADayIsReportedOnceADay)
{
    add({"/book/a.md"});
    EXPECT_FALSE(m_store.setPlan("/book/a.md", {.goal = Goal{.amount = 50, .span = Goal::Span::Day}}));
    record("/book/a.md", 100, at("2026-11-21 10:00:00"));
    EXPECT_THAT(record("/book/a.md", 150, at("2026-11-21 10:01:00")), SizeIs(1));
    EXPECT_THAT(record("/book/a.md", 160, at("2026-11-21 10:02:00")), IsEmpty());
    EXPECT_THAT(record("/book/a.md", 209, at("2026-11-22 10:00:00")), IsEmpty());
    EXPECT_THAT(record("/book/a.md", 210, at("2026-11-22 10:01:00")), SizeIs(1));
}

TEST_F(ProgressStoreTest, TheDocumentsOfAFolderReachItsGoalTogether)
{
    add({"/book/a.md", "/book/b.md", "/other/c.md"});
    EXPECT_FALSE(m_store.setPlan("/book", {.goal = Goal{.amount = 100}}));
    EXPECT_THAT(record("/other/c.md", 500, at("2026-11-22 10:00:00")), IsEmpty());
    EXPECT_THAT(record("/book/a.md", 60, at("2026-11-22 10:00:00")), IsEmpty());
    const std::vector<Milestone> reached = record("/book/b.md", 40, at("2026-11-22 10:00:00"));
    ASSERT_THAT(reached, SizeIs(1));
    EXPECT_EQ(reached[0].path, "/book");
}

TEST_F(ProgressStoreTest, ForgettingTheHistoryLeavesTheCount)
{
    add({"/book/a.md"});
    record("/book/a.md", 10, at("2026-11-20 10:00:00"));
    record("/book/a.md", 20, at("2026-11-22 10:00:00"));
    EXPECT_FALSE(m_store.forgetHistory({"/book/a.md"}));
    EXPECT_THAT(history("/book/a.md"), ElementsAre(20));
}

TEST_F(ProgressStoreTest, WithoutHistoryTheDayIsStillKnown)
{
    add({"/book/a.md"});
    record("/book/a.md", 10, at("2026-11-19 10:00:00"));
    record("/book/a.md", 20, at("2026-11-20 10:00:00"));
    EXPECT_TRUE(m_store.keepsHistory().value());
    EXPECT_FALSE(m_store.setKeepsHistory(false));
    EXPECT_FALSE(m_store.keepsHistory().value());
    record("/book/a.md", 50, at("2026-11-22 10:00:00"));
    record("/book/a.md", 60, at("2026-11-22 11:00:00"));
    EXPECT_THAT(history("/book/a.md"), ElementsAre(20, 50, 60));
    EXPECT_EQ(change("2026-11-22"), 40);
}

TEST_F(ProgressStoreTest, OtherProgramsCanReadTheHistory)
{
    add({"/book/a.md"});
    record("/book/a.md", 10, at("2026-11-22 23:30:00", QTimeZone(3600)));
    sqlite3 *database = nullptr;
    ASSERT_EQ(sqlite3_open(m_store.path().constData(), &database), SQLITE_OK);
    QByteArray row;
    const auto append = [](void *text, int columns, char **values, char **) {
        for (int i = 0; i < columns; ++i)
            *static_cast<QByteArray *>(text) += QByteArray(values[i]) + '|';
        return 0;
    };
    sqlite3_exec(database,
        "SELECT CAST(path AS TEXT), datetime(time, 'unixepoch'), day, words, characters FROM history"
        " JOIN document ON id = document",
        append, &row, nullptr);
    sqlite3_close(database);
    EXPECT_EQ(row.toStdString(), "/book/a.md|2026-11-22 22:30:00|2026-11-22|10|50|");
}
