// SPDX-License-Identifier: MIT
#include "writing_progress/CountStamp.h"

#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/QuillbayTest.h"

#include <QDateTime>

class CountStampTest : public QuillbayTest {
protected:
    static QByteArray write(const QByteArray &contents, int secondsAgo)
    {
        QFile file(writeFile(QStringLiteral("a.txt"), contents));
        EXPECT_TRUE(file.open(QFile::ReadWrite));
        file.setFileTime(
            QDateTime::currentDateTime().addSecs(-secondsAgo), QFileDevice::FileModificationTime);
        return QFile::encodeName(file.fileName());
    }
};

TEST_F(CountStampTest, AnUnchangedDocumentKeepsItsStamp)
{
    const QByteArray path = write("one two", 60);
    const QByteArray stamp = countStamp(path);
    EXPECT_FALSE(stamp.isEmpty());
    EXPECT_EQ(countStamp(path), stamp);
    EXPECT_NE(countStamp(write("one two three", 60)), stamp);
}

TEST_F(CountStampTest, OtherRulesGiveAnotherStamp)
{
    const QByteArray path = write("one two", 60);
    const QByteArray stamp = countStamp(path);
    QBYUserDefaultsController::setShouldEnforceTrailingPeriodForSentencesCount(true);
    EXPECT_NE(countStamp(path), stamp);
}

TEST_F(CountStampTest, ADocumentThatMayStillChangeUnnoticedHasNone)
{
    EXPECT_EQ(countStamp(write("one two", 0)), "");
    EXPECT_EQ(countStamp("/nonexistent"), "");
}
