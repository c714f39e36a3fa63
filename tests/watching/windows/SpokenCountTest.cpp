// SPDX-License-Identifier: MIT
// When a watcher speaks the word count of its document.
#include "tests/watching/windows/WatcherTest.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SpokenCountTest : public WatcherTest {
protected:
    SpokenCountTest() { speakInto(m_notes); }

    /// Saves the document again and waits for its count.
    void save(Controller &watcher)
    {
        const size_t before = m_service->requests().size();
        writeFile(QStringLiteral("novel.txt"), QByteArray("word ").repeated(++m_saves));
        pass();
        m_service->waitForRequests(before + 1);
        waitForCount(watcher);
    }

    /// Every phrase so far, once there are so many: phrases arrive after their counts, in any order.
    [[nodiscard]] QStringList spoken(qsizetype number) const
    {
        const auto phrases = [this] {
            QStringList lines = QString::fromUtf8(readFile(m_notes)).split(u'\n');
            lines.removeAll(QString());
            return lines;
        };
        EXPECT_TRUE(
            waitUntil([&] { return QFile::exists(m_notes) && phrases().size() >= number; }) || number == 0);
        return phrases();
    }

    const QString m_notes = pathOf(QStringLiteral("spoken"));
    int m_saves = 0;
};

TEST_F(SpokenCountTest, ACountIsSpokenOnceUntilItChanges)
{
    serve({"answer 250 0 0 0 0 0 0 0", "answer 250 9 9 9 9 9 9 9", "answer 251 0 0 0 0 0 0 0"});
    Controller &watcher = watch(m_path);
    EXPECT_THAT(spoken(1), ElementsAre(QStringLiteral("1:two hundred fifty words")));
    EXPECT_EQ(watcher.lastCalledOutWordCount(), 250U);
    save(watcher);
    save(watcher);
    EXPECT_THAT(spoken(2),
        ElementsAre(
            QStringLiteral("1:two hundred fifty words"), QStringLiteral("1:two hundred fifty-one words")));
}

TEST_F(SpokenCountTest, AnEmptyDocumentIsNeverAnnouncedAtFirst)
{
    serve({"answer 0 0 0 0 0 0 0 0", "answer 0 0 0 0 0 0 0 0", "answer 1 0 0 0 0 0 0 0"});
    Controller &watcher = watch(m_path);
    save(watcher);
    save(watcher);
    EXPECT_THAT(spoken(1), ElementsAre(QStringLiteral("1:one words")));
}

TEST_F(SpokenCountTest, AnEmptiedDocumentIsNotSpokenButRemembered)
{
    serve({"answer 5 0 0 0 0 0 0 0", "answer 0 0 0 0 0 0 0 0", "answer 5 0 0 0 0 0 0 0"});
    Controller &watcher = watch(m_path);
    EXPECT_THAT(spoken(1), ElementsAre(QStringLiteral("1:five words")));
    save(watcher);
    EXPECT_EQ(watcher.lastCalledOutWordCount(), 0U);
    save(watcher);
    EXPECT_THAT(spoken(2), ElementsAre(QStringLiteral("1:five words"), QStringLiteral("1:five words")));
}

TEST_F(SpokenCountTest, WithoutThePreferenceNothingIsSpokenNorRemembered)
{
    serve({"answer 5 0 0 0 0 0 0 0", "answer 6 0 0 0 0 0 0 0", "answer 5 0 0 0 0 0 0 0",
        "answer 5 0 0 0 0 0 0 0"});
    Controller &watcher = watch(m_path);
    EXPECT_THAT(spoken(1), ElementsAre(QStringLiteral("1:five words")));
    QBYUserDefaultsController::setSayWordCountOutLoudOnSaveInWatchFileMode(false);
    save(watcher);
    EXPECT_EQ(watcher.lastCalledOutWordCount(), 5U);
    QBYUserDefaultsController::setSayWordCountOutLoudOnSaveInWatchFileMode(true);
    save(watcher);
    EXPECT_EQ(watcher.lastCalledOutWordCount(), 5U);
    EXPECT_EQ(spoken(1).size(), 1);
}

TEST_F(SpokenCountTest, TheCountOfAWordDocumentIsSpoken)
{
    serve({"answer 7 0 0 0 0 0 0 0"});
    watch(writeFile(QStringLiteral("novel.docx"), "PK"));
    EXPECT_THAT(spoken(1), ElementsAre(QStringLiteral("1:seven words")));
}

TEST_F(SpokenCountTest, ACommandThatCannotBeStartedIsReportedOnceAndTheCountsStay)
{
    m_surroundings.speechLaunchPath = QStringLiteral("/nonexistent/say");
    serve({"answer 7 0 0 0 0 0 0 0", "answer 8 0 0 0 0 0 0 0"});
    Controller &watcher = watch(m_path);
    ASSERT_EQ(m_desktop.notes.size(), 1);
    EXPECT_TRUE(
        m_desktop.notes.front().startsWith(QStringLiteral("error: /nonexistent/say cannot be started")))
        << m_desktop.notes.front().toStdString();
    EXPECT_EQ(wordsOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("•Words: 7"));
    EXPECT_EQ(watcher.lastCalledOutWordCount(), 7U);
    save(watcher);
    EXPECT_EQ(watcher.lastCalledOutWordCount(), 8U);
    EXPECT_EQ(m_desktop.notes.size(), 1) << "reported once, not at each save";
}
