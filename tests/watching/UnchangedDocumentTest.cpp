// SPDX-License-Identifier: MIT
// Polls of a document whose content has been counted.
#include "platform/file_coordination/FileState.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/watching/WatchedFileTest.h"
#include "watching/WatchedContent.h"

#include <QFile>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

class UnchangedDocumentTest : public WatchedFileTest {
protected:
    UnchangedDocumentTest() { m_activity.setActive(false); }

    /// The messages of as many polls, each counted at once.
    QStringList poll(int times = 1)
    {
        m_delegate.whenTold = [this] { m_model->contentWasCounted(m_model->contentNumber()); };
        for (int i = 0; i < times; ++i)
            pass(2s);
        m_delegate.whenTold = nullptr;
        return m_delegate.takeMessages();
    }
    /// The messages of one poll, whose count is dropped.
    QStringList pollUncounted()
    {
        m_model->_nsTimerForceRead();
        return m_delegate.takeMessages();
    }
    const std::unique_ptr<WatchTextFileModel> m_model = watch(m_path);
};

TEST_F(UnchangedDocumentTest, ACountedContentIsReportedOnce)
{
    EXPECT_THAT(poll(10), ElementsAre(QStringLiteral("text before")));
    writeFile(QStringLiteral("f.txt"), "after");
    EXPECT_THAT(poll(10), ElementsAre(QStringLiteral("text after")));
}

TEST_F(UnchangedDocumentTest, ADroppedCountIsHealedByTheNextPoll)
{
    EXPECT_THAT(pollUncounted(), ElementsAre(QStringLiteral("text before")));
    const quint64 first = m_model->contentNumber();
    writeFile(QStringLiteral("f.txt"), "after");
    EXPECT_THAT(pollUncounted(), ElementsAre(QStringLiteral("text after")));
    m_model->contentWasCounted(first); // the panel was counting this when it dropped the second
    EXPECT_THAT(pollUncounted(), ElementsAre(QStringLiteral("text after")));
    EXPECT_THAT(poll(), ElementsAre(QStringLiteral("text after")));
    EXPECT_THAT(poll(), IsEmpty());
}

TEST_F(UnchangedDocumentTest, APollDuringACountDoesNotMakeItWorthless)
{
    EXPECT_THAT(pollUncounted(), ElementsAre(QStringLiteral("text before")));
    const quint64 first = m_model->contentNumber();
    EXPECT_THAT(pollUncounted(), ElementsAre(QStringLiteral("text before")));
    m_model->contentWasCounted(first);
    EXPECT_THAT(pollUncounted(), IsEmpty());
}

TEST_F(UnchangedDocumentTest, APollOfUnchangedStampsReadsNothingForHalfAMinute)
{
    QFile file(m_path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    uchar *const page = file.map(0, file.size());
    ASSERT_NE(page, nullptr);
    // The first write into a clean page gives the file a new time stamp, the next one does not. The system
    // may write the page out in between.
    const QByteArray path = QFile::encodeName(m_path);
    std::optional<FileState> before;
    for (uchar letter = 'A'; letter <= 'Z' && before != fileStateAt(path); ++letter) {
        page[0] = letter;
        poll(3);
        EXPECT_THAT(poll(), IsEmpty());
        before = fileStateAt(path);
        page[0] = '-';
    }
    EXPECT_THAT(poll(), IsEmpty());
    EXPECT_THAT(poll(15), ElementsAre(QStringLiteral("text -efore")));
}

TEST_F(UnchangedDocumentTest, AStampIsTrustedOnceItIsOlderThanItsGranularity)
{
    const QByteArray path = QFile::encodeName(m_path);
    WatchedContent content(m_clock);
    const auto read = [&] {
        const WatchedContent::Look look = content.look(path);
        content.update(look, loadIfChanged(path, content.knownHash(look)).value());
        content.setCounted(content.number());
        return content.isUnchanged(content.look(path));
    };
    EXPECT_FALSE(read());
    pass(2s);
    EXPECT_FALSE(content.isUnchanged(content.look(path)));
    EXPECT_TRUE(read());
}

TEST_F(UnchangedDocumentTest, OtherPreferencesAreCountedWithTheNextPoll)
{
    poll(3);
    EXPECT_THAT(poll(), IsEmpty());
    QBYUserDefaultsController::setMinNumberOfSentencesForParagraphCount(7);
    EXPECT_FALSE(poll().isEmpty());
    poll(3);
    EXPECT_THAT(poll(), IsEmpty());
}

TEST_F(UnchangedDocumentTest, AnotherDocumentWithTheSameContentIsReported)
{
    poll(3);
    const QString copy = writeFile(QStringLiteral("g.txt"), "before");
    m_model->setTextFileURLToWatch(QUrl::fromLocalFile(copy), true);
    m_model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("text before")));
}
