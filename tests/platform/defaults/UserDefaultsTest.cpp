// SPDX-License-Identifier: MIT
#include "platform/defaults/UserDefaults.h"

#include "tests/harness/QuillbayTest.h"

#include <QDir>

#include <sys/stat.h>
#include <unistd.h>

#include <cmath>
#include <limits>
#include <thread>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UserDefaultsTest : public QuillbayTest {
protected:
    static QString folder() { return world().configuration() + QStringLiteral("/quillbay"); }
    static QString file() { return folder() + QStringLiteral("/suite.sqlite3"); }

    const QString m_key = QStringLiteral("key");
    RecordingLogSink m_log;
    UserDefaults m_defaults{QStringLiteral("suite")};
};

TEST_F(UserDefaultsTest, AnAbsentValueReadsAsFalseZeroAndAbsent)
{
    EXPECT_FALSE(m_defaults.boolForKey(m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 0);
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(UserDefaultsTest, ReadingCreatesNeitherFileNorFolder)
{
    ASSERT_TRUE(QDir(world().configuration()).removeRecursively());
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    EXPECT_FALSE(QFile::exists(world().configuration()));
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(UserDefaultsTest, TheFirstWriteCreatesAFolderForTheUserOnly)
{
    ASSERT_TRUE(QDir(world().configuration()).removeRecursively());
    const mode_t previous = ::umask(0);
    EXPECT_TRUE(m_defaults.setObject(true, m_key));
    ::umask(previous);
    for (const QString &made : {world().configuration(), folder()}) {
        struct stat status { };
        ASSERT_EQ(::stat(QFile::encodeName(made).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, mode_t(0700)) << made.toStdString();
    }
    EXPECT_TRUE(m_defaults.boolForKey(m_key));
}

TEST_F(UserDefaultsTest, EveryKindOfValueIsReadAsItWasWritten)
{
    const std::vector<DefaultsValue> values{true, false, qint64{0}, qint64{1},
        std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max(), 0.0, 1.0, -0.1,
        std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min(), QString(),
        QStringLiteral("1"), QStringLiteral("A4 \u00e9 \U0001F600"), QString::fromUtf8("a\0b", 3)};
    for (const DefaultsValue &value : values) {
        EXPECT_TRUE(m_defaults.setObject(value, m_key));
        EXPECT_EQ(m_defaults.objectForKey(m_key), value) << "kind " << value.index();
        EXPECT_EQ(UserDefaults(QStringLiteral("suite")).objectForKey(m_key), value)
            << "kind " << value.index();
    }
}

TEST_F(UserDefaultsTest, SettersOfOneKindAndGettersOfAnotherConvert)
{
    m_defaults.setObject(qint64{3}, m_key);
    EXPECT_TRUE(m_defaults.boolForKey(m_key));
    m_defaults.setObject(-2.5, m_key);
    EXPECT_EQ(m_defaults.integerForKey(m_key), -2);
    m_defaults.setObject(QStringLiteral("12 pt"), m_key);
    EXPECT_EQ(m_defaults.integerForKey(m_key), 12);
    m_defaults.setObject(true, m_key);
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
}

TEST_F(UserDefaultsTest, KeysAreCaseSensitiveAndNotInterpreted)
{
    m_defaults.setObject(qint64{1}, QStringLiteral("Key"));
    m_defaults.setObject(qint64{2}, QStringLiteral("key"));
    m_defaults.setObject(qint64{3}, QStringLiteral("'; DROP TABLE preference; --"));
    EXPECT_EQ(m_defaults.integerForKey(QStringLiteral("Key")), 1);
    EXPECT_EQ(m_defaults.integerForKey(QStringLiteral("key")), 2);
    EXPECT_EQ(m_defaults.integerForKey(QStringLiteral("'; DROP TABLE preference; --")), 3);
    EXPECT_EQ(m_defaults.integerForKey(QStringLiteral("KEY")), 0);
}

TEST_F(UserDefaultsTest, SuitesAreSeparate)
{
    m_defaults.setObject(qint64{1}, m_key);
    EXPECT_EQ(UserDefaults(QStringLiteral("other")).objectForKey(m_key), std::nullopt);
}

TEST_F(UserDefaultsTest, NumbersThatAreNotFiniteAreRefusedAndTheOldValueStays)
{
    m_defaults.setObject(1.5, m_key);
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double number : {std::nan(""), infinity, -infinity})
        EXPECT_FALSE(m_defaults.setObject(number, m_key));
    EXPECT_EQ(m_defaults.objectForKey(m_key), DefaultsValue(1.5));
    EXPECT_EQ(m_log.messages(LogLevel::Error).size(), 3);
    EXPECT_EQ(m_log.messages().front(),
        QStringLiteral("Preference suite suite refuses a value for key: it is not a finite number"));
}

TEST_F(UserDefaultsTest, KeysAndTextsAreWrittenUpToTheirLimitsAndRefusedBeyond)
{
    const QString key(UserDefaults::maxKeyLength, QChar(u'\u20ac'));
    const QString text(UserDefaults::maxTextLength, QChar(u'\u20ac'));
    EXPECT_TRUE(m_defaults.setObject(text, key));
    EXPECT_EQ(m_defaults.objectForKey(key), DefaultsValue(text));
    EXPECT_THAT(m_log.messages(), IsEmpty());

    EXPECT_FALSE(m_defaults.setObject(text + u'x', key));
    EXPECT_FALSE(m_defaults.setObject(true, key + u'x'));
    EXPECT_EQ(m_defaults.objectForKey(key), DefaultsValue(text));
    EXPECT_EQ(m_defaults.objectForKey(key + u'x'), std::nullopt);
    EXPECT_EQ(m_log.messages(LogLevel::Error).size(), 2);
}

TEST_F(UserDefaultsTest, ABatchWithOneRefusedValueWritesNothing)
{
    EXPECT_FALSE(m_defaults.setObjects({{m_key, true}, {QStringLiteral("bad"), std::nan("")}}));
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
}

TEST_F(UserDefaultsTest, ABatchIsWrittenInOrder)
{
    EXPECT_TRUE(
        m_defaults.setObjects({{m_key, qint64(1)}, {QStringLiteral("other"), true}, {m_key, qint64(2)}}));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 2);
    EXPECT_TRUE(m_defaults.boolForKey(QStringLiteral("other")));
}

TEST_F(UserDefaultsTest, AGuardedBatchIsWrittenUntilItsGuardReadsTrue)
{
    const QString guard = QStringLiteral("guard");
    EXPECT_TRUE(m_defaults.setObjectsUnless(guard, {{m_key, qint64(1)}}));
    EXPECT_TRUE(m_defaults.setObjectsUnless(guard, {{m_key, qint64(2)}, {guard, true}}));
    EXPECT_TRUE(m_defaults.setObjectsUnless(guard, {{m_key, qint64(3)}}));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 2);
    EXPECT_TRUE(m_defaults.setObjects({{m_key, qint64(4)}}));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 4);
}

TEST_F(UserDefaultsTest, GettersAndSettersWorkFromManyThreadsAtOnce)
{
    constexpr int threads = 4;
    constexpr int writes = 25;
    std::vector<std::thread> running;
    for (int number = 0; number < threads; ++number) {
        running.emplace_back([this, number] {
            const QString mine = QStringLiteral("thread %1").arg(number);
            for (int i = 1; i <= writes; ++i) {
                EXPECT_TRUE(m_defaults.setObject(qint64{i}, mine));
                EXPECT_EQ(m_defaults.integerForKey(mine), i);
            }
        });
    }
    for (std::thread &thread : running)
        thread.join();
    for (int number = 0; number < threads; ++number)
        EXPECT_EQ(m_defaults.integerForKey(QStringLiteral("thread %1").arg(number)), writes);
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(UserDefaultsTest, AWriteLeavesNoJournalOrOtherFile)
{
    m_defaults.setObject(true, m_key);
    EXPECT_THAT(
        QDir(folder()).entryList(QDir::Files | QDir::Hidden), ElementsAre(QStringLiteral("suite.sqlite3")));
}
