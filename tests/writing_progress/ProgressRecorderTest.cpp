// SPDX-License-Identifier: MIT
#include "writing_progress/ProgressRecorder.h"

#include "tests/writing_progress/ProgressTest.h"

class ProgressRecorderTest : public ProgressTest {
protected:
    ProgressRecorderTest()
    {
        SessionBus::start();
        m_server.emplace(testProgram(QStringLiteral("notification_server")));
        m_server->start({});
        EXPECT_EQ(m_server->readLine(), QByteArray("ready"));
    }

    void recordWords(quint64 count) { m_recorder.record({.path = "/book/a.md", .stats = words(count)}); }
    void waitUntilRecorded()
    {
        bool isDone = false;
        m_recorder.whenRecorded([&isDone] { isDone = true; });
        EXPECT_TRUE(waitUntil([&isDone] { return isDone; }));
    }

    std::optional<ChildProcess> m_server; // started once there is a bus
    ProgressRecorder m_recorder;
};

TEST_F(ProgressRecorderTest, TheUserIsNotifiedOfAGoalAndOfALimit)
{
    add({"/book/a.md"});
    EXPECT_FALSE(m_store.setPlan("/book/a.md", {.goal = Goal{.amount = 10}, .limit = Limit{.amount = 20}}));
    for (const quint64 count : {9, 10, 11, 20, 21, 22})
        recordWords(count);
    EXPECT_EQ(m_server->readLine(),
        QByteArray("Quillbay|com.quillbay.Quillbay|Goal reached|a.md: has reached its goal of 10 words."));
    EXPECT_EQ(m_server->readLine(),
        QByteArray("Quillbay|com.quillbay.Quillbay|Limit passed|a.md: has more than 20 words."));
    waitUntilRecorded();
}

TEST_F(ProgressRecorderTest, AStoreThatCannotBeUsedIsLoggedOnce)
{
    RecordingLogSink log;
    ASSERT_TRUE(QDir().mkpath(QFile::decodeName(m_store.path()))); // a folder in its place
    recordWords(1);
    recordWords(2);
    waitUntilRecorded();
    EXPECT_LE(log.messages().filter(QStringLiteral("cannot be stored")).size(), 1);
}
