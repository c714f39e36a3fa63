// SPDX-License-Identifier: MIT
// What a watcher records of the counts of its document.
#include "tests/watching/windows/WatcherTest.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RecordedCountTest : public WatcherTest {
protected:
    RecordedCountTest() { m_surroundings.progressRecorder = &m_recorder; }

    /// The words of the history, once everything is recorded.
    std::vector<quint64> recorded(const QString &path)
    {
        bool isDone = false;
        m_recorder.whenRecorded([&isDone] { isDone = true; });
        EXPECT_TRUE(waitUntil([&isDone] { return isDone; }));
        std::vector<quint64> words;
        const auto history = m_store.history(QFile::encodeName(path));
        for (const RecordedCount &count : history.value())
            words.push_back(count.stats.numberOfWords);
        return words;
    }

    ProgressStore m_store;
    ProgressRecorder m_recorder;
};

TEST_F(RecordedCountTest, EverySaveOfAListedDocumentIsRecorded)
{
    ASSERT_TRUE(m_store.add({QFile::encodeName(m_path)}).hasValue());
    serve({"answer 250 0 0 0 0 0 0 0", "answer 260 0 0 0 0 0 0 0"});
    Controller &watcher = watch(m_path);
    writeFile(QStringLiteral("novel.txt"), "One two three four.");
    pass();
    m_service->waitForRequests(2);
    waitForCount(watcher);
    EXPECT_THAT(recorded(m_path), ElementsAre(250, 260));
}

TEST_F(RecordedCountTest, TheHistoryFollowsARenamedDocument)
{
    ASSERT_TRUE(m_store.add({QFile::encodeName(m_path)}).hasValue());
    serve({"answer 250 0 0 0 0 0 0 0"});
    watch(m_path);
    const QString renamed = pathOf(QStringLiteral("book.txt"));
    ASSERT_TRUE(QFile::rename(m_path, renamed));
    pass();
    EXPECT_THAT(recorded(renamed), ElementsAre(250));
    EXPECT_THAT(recorded(m_path), IsEmpty());
}

TEST_F(RecordedCountTest, NothingIsStoredOfADocumentThatIsNotListed)
{
    serve({"answer 250 0 0 0 0 0 0 0"});
    watch(m_path);
    ASSERT_TRUE(QFile::rename(m_path, pathOf(QStringLiteral("book.txt"))));
    pass();
    EXPECT_THAT(recorded(m_path), IsEmpty());
    EXPECT_FALSE(QFile::exists(QFile::decodeName(m_store.path())));
}
