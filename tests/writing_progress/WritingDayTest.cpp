// SPDX-License-Identifier: MIT
// Days of writing, with what clocks, time zones and other programs do meanwhile.
#include "tests/writing_progress/ProgressTest.h"

using ::testing::ElementsAre;

class WritingDayTest : public ProgressTest {
protected:
    WritingDayTest() { add({document}); }

    void write(quint64 wordCount, const QDateTime &now) { record(document, wordCount, now); }

    static constexpr const char *document = "/book/a.md";
};

TEST_F(WritingDayTest, TheDayEndsAtLocalMidnight)
{
    const QTimeZone zone(-5 * 3600);
    write(1000, at("2026-11-21 22:00:00", zone));
    write(1400, at("2026-11-21 23:59:59", zone));
    write(1500, at("2026-11-22 00:00:00", zone));
    write(1700, at("2026-11-22 00:30:00", zone));
    EXPECT_EQ(change("2026-11-21"), 700); // so far: the later saves are there, too
    EXPECT_EQ(change("2026-11-22"), 300);
    EXPECT_EQ(change("2026-11-23"), 0);
}

TEST_F(WritingDayTest, AClockThatWasAheadAddsNothingToToday)
{
    write(1000, at("2026-11-21 10:00:00"));
    write(1100, at("2031-01-01 10:00:00"));
    write(1150, at("2026-11-22 10:00:00"));
    EXPECT_EQ(change("2026-11-22"), 150);
    EXPECT_EQ(total("2026-11-22").counts.numberOfWords, 1150U);
}

TEST_F(WritingDayTest, AClockThatWasBehindLosesNothing)
{
    write(1000, at("2026-11-21 10:00:00"));
    write(1100, at("1970-01-01 00:00:30"));
    write(1150, at("2026-11-22 10:00:00"));
    EXPECT_EQ(change("2026-11-22"), 50);
    EXPECT_THAT(history(document), ElementsAre(1000, 1100, 1150));
}

TEST_F(WritingDayTest, ATravellersDayTakesUpWhereItsDateWasBefore)
{
    write(1000, at("2026-11-21 18:00:00", QTimeZone(9 * 3600)));
    write(1200, at("2026-11-22 09:00:00", QTimeZone(9 * 3600)));
    write(1300, at("2026-11-21 20:00:00", QTimeZone(-8 * 3600))); // later, and yesterday again
    write(1450, at("2026-11-22 08:00:00", QTimeZone(-8 * 3600)));
    EXPECT_EQ(change("2026-11-22"), 150);
}

TEST_F(WritingDayTest, TheHourThatTheClockRepeatsHasRowsOfItsOwn)
{
    const QTimeZone zone("Europe/Berlin");
    SKIP_WITHOUT_PACKAGE(zone.isValid(), "tzdata");
    const QDateTime before = at("2026-10-25 01:45:00", zone);
    write(1000, before.addSecs(-86400));
    write(1010, before.addSecs(45 * 60)); // 02:30 in summer time
    write(1020, before.addSecs(105 * 60)); // 02:30 in winter time
    write(1030, before.addSecs(22 * 3600));
    EXPECT_THAT(history(document), ElementsAre(1000, 1010, 1020, 1030));
    EXPECT_EQ(change("2026-10-25"), 30);
}

TEST_F(WritingDayTest, ALaptopThatSleptOverMidnightBeginsANewDay)
{
    write(1000, at("2026-11-20 23:50:00"));
    write(1100, at("2026-11-20 23:58:00"));
    write(1300, at("2026-11-22 08:15:00"));
    EXPECT_EQ(change("2026-11-22"), 200);
}

TEST_F(WritingDayTest, ASaveThatIsCountedLaterCountsForItsOwnDay)
{
    write(1000, at("2026-11-20 10:00:00"));
    const DocumentCount count{.path = document, .stats = words(1200), .saved = at("2026-11-21 23:00:00")};
    EXPECT_TRUE(m_store.record(count, at("2026-11-22 08:00:00")).hasValue());
    EXPECT_EQ(change("2026-11-22"), 0);
    EXPECT_EQ(total("2026-11-22").before.numberOfWords, 1200U);
}

TEST_F(WritingDayTest, AFileFromASyncProgramWithAnOldOrAFutureTimeCountsNow)
{
    write(1000, at("2026-11-21 10:00:00"));
    const QDateTime now = at("2026-11-22 08:00:00");
    for (const auto &[stats, saved] : {std::pair(words(1100), at("2026-01-01 00:00:00")),
             std::pair(words(1200), at("2027-01-01 00:00:00"))})
        EXPECT_TRUE(m_store
                        .record({.path = document, .stats = stats, .saved = saved},
                            now.addSecs(static_cast<qint64>(stats.numberOfWords)))
                        .hasValue());
    EXPECT_EQ(change("2026-11-22"), 200);
    EXPECT_THAT(history(document), ElementsAre(1000, 1100, 1200));
}
