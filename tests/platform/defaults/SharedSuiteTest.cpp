// SPDX-License-Identifier: MIT
// Several processes that use one suite.
#include "platform/defaults/UserDefaults.h"

#include "tests/harness/QuillbayTest.h"

#include <QDir>

#include <memory>
#include <random>

using ::testing::SizeIs;

class SharedSuiteTest : public QuillbayTest {
protected:
    static std::unique_ptr<ChildProcess> startedTalker()
    {
        auto talker = std::make_unique<ChildProcess>(testProgram(QStringLiteral("suite_talker")));
        talker->start({"suite"});
        EXPECT_EQ(talker->readLine(), QByteArray("ready"));
        return talker;
    }

    static QByteArray answerOf(ChildProcess &talker, const QByteArray &request)
    {
        talker.writeLine(request);
        return talker.readLine();
    }

    const QString m_key = QStringLiteral("key");
    RecordingLogSink m_log;
    UserDefaults m_defaults{QStringLiteral("suite"), std::chrono::seconds(30)};
};

TEST_F(SharedSuiteTest, AValueIsSeenByAnotherProcessAtItsVeryNextRead)
{
    const auto talker = startedTalker();
    for (int i = 0; i < 300; ++i) {
        const QByteArray mine = QByteArray::number(i);
        ASSERT_TRUE(m_defaults.setObject(QString::fromLatin1(mine), m_key));
        ASSERT_EQ(answerOf(*talker, "get key"), mine);
        ASSERT_EQ(answerOf(*talker, "set key x" + mine), QByteArray("done"));
        ASSERT_EQ(m_defaults.objectForKey(m_key), DefaultsValue(QString::fromLatin1("x" + mine)));
    }
}

TEST_F(SharedSuiteTest, TwoProcessesThatWriteAtOnceLoseNothing)
{
    constexpr int count = 300;
    const auto first = startedTalker();
    const auto second = startedTalker();
    first->writeLine("fill a 300");
    second->writeLine("fill b 300");
    EXPECT_EQ(first->readLine(), QByteArray("300"));
    EXPECT_EQ(second->readLine(), QByteArray("300"));
    for (int i = 0; i < count; ++i) {
        for (const char16_t prefix : {u'a', u'b'}) {
            const QString key = QChar(prefix) + QString::number(i);
            ASSERT_EQ(m_defaults.objectForKey(key), DefaultsValue(qint64(i))) << key.toStdString();
        }
    }
}

TEST_F(SharedSuiteTest, AnyNumberOfProcessesMayCreateTheSuiteAtOnce)
{
    std::vector<std::unique_ptr<ChildProcess>> talkers;
    for (int i = 0; i < 6; ++i)
        talkers.push_back(startedTalker());
    for (size_t i = 0; i < talkers.size(); ++i)
        talkers[i]->writeLine("set key" + QByteArray::number(i) + " here");
    for (const auto &talker : talkers)
        EXPECT_EQ(talker->readLine(), QByteArray("done"));
    for (size_t i = 0; i < talkers.size(); ++i)
        EXPECT_TRUE(m_defaults.objectForKey(QStringLiteral("key%1").arg(i))) << i;
}

TEST_F(SharedSuiteTest, ProcessesThatFindTheSuiteBrokenAtOncePutItAsideOnceAndLoseNothingWrittenSince)
{
    const QString folder = world().configuration() + QStringLiteral("/quillbay");
    std::vector<std::unique_ptr<ChildProcess>> talkers;
    for (int i = 0; i < 4; ++i)
        talkers.push_back(startedTalker());
    for (int round = 0; round < 20; ++round) {
        ASSERT_TRUE(QDir(folder).removeRecursively() && QDir().mkpath(folder));
        QFile broken(folder + QStringLiteral("/suite.sqlite3"));
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write(QByteArray(4096, '?')) == 4096);
        broken.close();
        for (size_t i = 0; i < talkers.size(); ++i)
            talkers[i]->writeLine("set key" + QByteArray::number(i) + " here");
        for (const auto &talker : talkers)
            ASSERT_EQ(talker->readLine(), QByteArray("done"));
        for (size_t i = 0; i < talkers.size(); ++i)
            ASSERT_TRUE(m_defaults.objectForKey(QStringLiteral("key%1").arg(i)))
                << "round " << round << ", " << i;
        ASSERT_THAT(QDir(folder).entryList({QStringLiteral("*.broken-*")}), SizeIs(1));
    }
}

TEST_F(SharedSuiteTest, KillingTheWriterAtAnyPointLosesNoAcknowledgedWriteAndBreaksNothing)
{
    const QByteArray seed = QByteArray::number(std::random_device()() >> 1);
    const auto outcome =
        ChildProcess(testProgram(QStringLiteral("suite_killer"))).run({"suite", "500", seed});
    EXPECT_EQ(outcome.exitStatus, 0) << "seed " << seed.constData() << ": " << outcome.output.constData();
    EXPECT_GT(outcome.output.toInt(), 100);
    EXPECT_EQ(outcome.errors, QByteArray());
}
