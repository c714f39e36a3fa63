// SPDX-License-Identifier: MIT
#include "platform/file_coordination/ChangePolicy.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

FileSighting sighting(quint64 inode, qint64 size, qint64 modified = 0)
{
    FileSighting seen;
    seen.state = FileState{1, inode, size, modified, modified};
    return seen;
}

FileSighting nothing(const std::optional<QByteArray> &whereabouts = std::nullopt)
{
    FileSighting seen;
    seen.whereabouts = whereabouts;
    if (whereabouts)
        seen.stateThere = FileState{1, 7, 10, 0, 99};
    return seen;
}

std::optional<FileNews::Kind> kindOf(const ChangePolicy::Verdict &verdict)
{
    return verdict.news ? std::optional(verdict.news->kind) : std::nullopt;
}

} // namespace

class ChangePolicyTest : public ::testing::Test {
protected:
    const FileSighting m_before = sighting(7, 10);
    ChangePolicy m_policy{m_before.state};
};

TEST_F(ChangePolicyTest, TellsNothingWhereNothingHasChanged)
{
    const ChangePolicy::Verdict verdict = m_policy.look(m_before, 0ms);
    EXPECT_FALSE(verdict.news);
    EXPECT_FALSE(verdict.lookAgain);
}

TEST_F(ChangePolicyTest, TellsAFinishedWriteAtOnce)
{
    m_policy.note(FileEvent::Written, 0ms);
    m_policy.note(FileEvent::Closed, 0ms);
    EXPECT_EQ(kindOf(m_policy.look(sighting(7, 12), 0ms)), FileNews::Kind::Changed);
    EXPECT_FALSE(m_policy.look(sighting(7, 12), 0ms).news);
}

TEST_F(ChangePolicyTest, TellsAWriteThatLeftTheStateAsItWas)
{
    m_policy.note(FileEvent::Written, 0ms);
    m_policy.note(FileEvent::Closed, 0ms);
    EXPECT_EQ(kindOf(m_policy.look(m_before, 0ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, TellsAFileMovedOntoTheNameAtOnce)
{
    m_policy.note(FileEvent::Replaced, 0ms);
    EXPECT_EQ(kindOf(m_policy.look(sighting(8, 10), 0ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, WaitsUntilAnUnfinishedWriteHasBeenQuiet)
{
    m_policy.note(FileEvent::Written, 0ms);
    EXPECT_EQ(m_policy.look(sighting(7, 12), 0ms).lookAgain, 150ms);
    m_policy.note(FileEvent::Written, 100ms);
    EXPECT_EQ(m_policy.look(sighting(7, 14), 100ms).lookAgain, 250ms);
    EXPECT_FALSE(m_policy.look(sighting(7, 14), 249ms).news);
    EXPECT_EQ(kindOf(m_policy.look(sighting(7, 14), 250ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, ALockDelaysAChangeUntilItsWriterHasBeenQuiet)
{
    FileSighting locked = sighting(8, 10);
    locked.isLocked = [] { return true; };
    m_policy.note(FileEvent::Replaced, 0ms);
    EXPECT_EQ(m_policy.look(locked, 0ms).lookAgain, 300ms);
    m_policy.note(FileEvent::Closed, 200ms);
    EXPECT_EQ(m_policy.look(locked, 300ms).lookAgain, 500ms);
    EXPECT_FALSE(m_policy.isQuiet(500ms));
    EXPECT_EQ(kindOf(m_policy.look(locked, 500ms)), FileNews::Kind::Changed);
    EXPECT_TRUE(m_policy.isQuiet(500ms));
}

TEST_F(ChangePolicyTest, AsksForALockOnlyBeforeItTells)
{
    FileSighting seen = sighting(7, 12);
    int asked = 0;
    seen.isLocked = [&] { return ++asked == 0; };
    m_policy.note(FileEvent::Written, 0ms);
    m_policy.look(seen, 0ms);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(kindOf(m_policy.look(seen, 150ms)), FileNews::Kind::Changed);
    EXPECT_EQ(asked, 1);
}

TEST_F(ChangePolicyTest, AWriteAfterTheClosingIsUnfinishedAgain)
{
    m_policy.note(FileEvent::Written, 0ms);
    m_policy.note(FileEvent::Closed, 0ms);
    m_policy.note(FileEvent::Written, 0ms);
    EXPECT_FALSE(m_policy.look(sighting(7, 12), 0ms).news);
}

TEST_F(ChangePolicyTest, TellsOfAWriterThatNeverPausesAfterTwoSeconds)
{
    for (Clock::Time now = 0ms; now < 2000ms; now += 50ms) {
        m_policy.note(FileEvent::Written, now);
        ASSERT_FALSE(m_policy.look(sighting(7, 12), now).news) << now.count();
    }
    m_policy.note(FileEvent::Written, 2000ms);
    EXPECT_EQ(kindOf(m_policy.look(sighting(7, 12), 2000ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, WaitsForTheContentsOfAnEmptyFile)
{
    m_policy.note(FileEvent::Written, 0ms);
    m_policy.note(FileEvent::Closed, 0ms);
    EXPECT_EQ(m_policy.look(sighting(7, 0), 0ms).lookAgain, 150ms);
    m_policy.note(FileEvent::Written, 20ms);
    m_policy.note(FileEvent::Closed, 20ms);
    EXPECT_EQ(kindOf(m_policy.look(sighting(7, 5), 20ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, TellsOfAFileThatStaysEmpty)
{
    m_policy.note(FileEvent::Written, 0ms);
    m_policy.note(FileEvent::Closed, 0ms);
    m_policy.look(sighting(7, 0), 0ms);
    EXPECT_FALSE(m_policy.look(sighting(7, 0), 149ms).news);
    EXPECT_EQ(kindOf(m_policy.look(sighting(7, 0), 150ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, AClosingWithoutAWriteIsNoChange)
{
    m_policy.note(FileEvent::Closed, 0ms);
    EXPECT_FALSE(m_policy.look(m_before, 0ms).news);
}

TEST_F(ChangePolicyTest, AClosingTellsOfAWriteThroughMappedMemory)
{
    m_policy.note(FileEvent::Closed, 0ms);
    EXPECT_EQ(kindOf(m_policy.look(sighting(7, 10, 5), 0ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, WithoutEventsAStateThatStaysIsAChange)
{
    EXPECT_EQ(m_policy.look(sighting(7, 12), 1000ms).lookAgain, 1150ms);
    EXPECT_EQ(m_policy.look(sighting(7, 14), 1150ms).lookAgain, 1300ms); // still growing
    EXPECT_EQ(kindOf(m_policy.look(sighting(7, 14), 1300ms)), FileNews::Kind::Changed);
    EXPECT_FALSE(m_policy.look(sighting(7, 14), 3300ms).lookAgain);
}

TEST_F(ChangePolicyTest, ManyChangesOfABurstBecomeTheFirstAndOneMore)
{
    int told = 0;
    std::optional<Clock::Time> lookAgain;
    for (Clock::Time now = 0ms; now < 100ms; now += 10ms) {
        m_policy.note(FileEvent::Replaced, now);
        const ChangePolicy::Verdict verdict = m_policy.look(sighting(8, 10), now);
        told += verdict.news.has_value();
        lookAgain = verdict.lookAgain;
    }
    EXPECT_EQ(told, 1);
    ASSERT_EQ(lookAgain, 100ms);
    EXPECT_EQ(kindOf(m_policy.look(sighting(8, 10), 100ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, AfterLostEventsItTellsAChange)
{
    m_policy.note(FileEvent::Unknown, 0ms);
    EXPECT_FALSE(m_policy.look(m_before, 0ms).news);
    EXPECT_EQ(kindOf(m_policy.look(m_before, 150ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, AnotherFileUnderTheNameIsAChangeWhereverTheOldOneIs)
{
    m_policy.note(FileEvent::Gone, 0ms);
    EXPECT_EQ(m_policy.look(nothing("/f~"), 0ms).lookAgain, 500ms);
    m_policy.note(FileEvent::Created, 300ms);
    m_policy.note(FileEvent::Written, 300ms);
    m_policy.note(FileEvent::Closed, 300ms);
    EXPECT_EQ(kindOf(m_policy.look(sighting(9, 12), 300ms)), FileNews::Kind::Changed);
}

TEST_F(ChangePolicyTest, AFileWithAnotherPathAfterTheGraceHasMoved)
{
    m_policy.note(FileEvent::Gone, 0ms);
    m_policy.look(nothing("/g"), 0ms);
    EXPECT_FALSE(m_policy.look(nothing("/g"), 499ms).news);
    const ChangePolicy::Verdict verdict = m_policy.look(nothing("/g"), 500ms);
    ASSERT_EQ(kindOf(verdict), FileNews::Kind::Moved);
    EXPECT_EQ(verdict.news->path, QByteArray("/g"));
    EXPECT_FALSE(verdict.news->hasChangedToo);
}

TEST_F(ChangePolicyTest, AMovedFileThatWasWrittenMeanwhileHasChangedToo)
{
    m_policy.note(FileEvent::Gone, 0ms);
    m_policy.look(nothing("/g"), 0ms);
    m_policy.note(FileEvent::Written, 10ms);
    EXPECT_TRUE(m_policy.look(nothing("/g"), 500ms).news->hasChangedToo);
}

TEST_F(ChangePolicyTest, AFileWithoutAPathAfterTheGraceIsDeleted)
{
    m_policy.note(FileEvent::Gone, 0ms);
    m_policy.look(nothing(), 0ms);
    EXPECT_EQ(kindOf(m_policy.look(nothing(), 500ms)), FileNews::Kind::Deleted);
}

TEST_F(ChangePolicyTest, TheGraceBeginsAnewAfterTheNameWasBack)
{
    m_policy.look(nothing(), 0ms);
    m_policy.look(m_before, 400ms);
    EXPECT_EQ(m_policy.look(nothing(), 600ms).lookAgain, 1100ms);
}

TEST(ChangePolicyWithoutAFile, WaitsForOneToComeAndTellsAChange)
{
    ChangePolicy policy{std::nullopt};
    EXPECT_FALSE(policy.look(nothing(), 10'000ms).news);
    policy.note(FileEvent::Replaced, 20'000ms);
    EXPECT_EQ(kindOf(policy.look(sighting(7, 10), 20'000ms)), FileNews::Kind::Changed);
}
