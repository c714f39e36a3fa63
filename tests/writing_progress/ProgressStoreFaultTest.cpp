// SPDX-License-Identifier: MIT
// Killed writers, broken files and full disks.
#include "tests/writing_progress/ProgressTest.h"

#include <QProcess>

#include <csignal>
#include <sqlite3.h>
#include <sys/resource.h>

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ProgressStoreFaultTest : public ProgressTest {
protected:
    QString file() { return QFile::decodeName(m_store.path()); }
};

TEST_F(ProgressStoreFaultTest, AKilledWriterLosesNothingThatWasRecorded)
{
    for (int round = 1; round <= 12; ++round) {
        QFile::remove(file());
        QProcess writer;
        writer.start(
            QCoreApplication::applicationDirPath() + QStringLiteral("/history_writer"), QStringList());
        QByteArray lines;
        while (lines.count('\n') < round && writer.waitForReadyRead())
            lines += writer.readAll();
        ::kill(static_cast<pid_t>(writer.processId()), SIGKILL);
        writer.waitForFinished();
        lines += writer.readAll();
        const quint64 recorded = lines.trimmed().split('\n').last().toULongLong();
        const std::vector<quint64> found = history("/book/a.md");
        ASSERT_GE(found.size(), recorded);
        EXPECT_LE(found.size(), recorded + 1);
        EXPECT_EQ(found.back(), found.size());
        EXPECT_TRUE(m_store.brokenFile().isEmpty());
    }
}

TEST_F(ProgressStoreFaultTest, ABrokenFileIsPutAsideAndToldOnce)
{
    RecordingLogSink log;
    EXPECT_TRUE(ProgressStore().add({"/book/a.md"}).hasValue());
    QFile broken(file());
    ASSERT_TRUE(broken.open(QFile::WriteOnly));
    broken.write(QByteArray(8192, 'x'));
    broken.close();
    EXPECT_THAT(paths(), IsEmpty());
    EXPECT_THAT(m_store.brokenFile().toStdString(), HasSubstr("Documents.sqlite3.broken-"));
    add({"/book/a.md"});
    record("/book/a.md", 10, at("2026-11-22 10:00:00"));
    EXPECT_THAT(history("/book/a.md"), ElementsAre(10));
    EXPECT_EQ(log.messages().filter(QStringLiteral("could not be used")).size(), 1);
}

TEST_F(ProgressStoreFaultTest, DamageInsideTheFileLosesNoCountsFromThenOn)
{
    add({"/book/a.md"});
    for (int i = 0; i < 100; ++i)
        record("/book/a.md", static_cast<quint64>(i), at("2026-11-20 10:00:00").addSecs(60 * i));
    QFile broken(file());
    ASSERT_TRUE(broken.open(QFile::ReadWrite));
    broken.seek(4096);
    broken.write(QByteArray(static_cast<int>(broken.size()) - 4096, '\x7f'));
    broken.close();
    ProgressStore next; // which has nothing of it in memory
    const QDateTime now = at("2026-11-22 10:00:00");
    EXPECT_TRUE(next.record({.path = "/book/a.md", .stats = words(1)}, now).hasValue());
    EXPECT_FALSE(next.brokenFile().isEmpty());
    EXPECT_TRUE(next.add({"/book/a.md"}).hasValue());
    EXPECT_TRUE(next.record({.path = "/book/a.md", .stats = words(10)}, now).hasValue());
    EXPECT_THAT(history("/book/a.md"), ElementsAre(10));
}

TEST_F(ProgressStoreFaultTest, AFullDiskIsAFaultAndLeavesWhatWasRecorded)
{
    add({"/book/a.md"});
    record("/book/a.md", 10, at("2026-11-22 10:00:00"));
    const rlimit none{.rlim_cur = 0, .rlim_max = RLIM_INFINITY};
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &none);
    const auto outcome =
        m_store.record({.path = "/book/a.md", .stats = words(20)}, at("2026-11-22 11:00:00"));
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    ASSERT_FALSE(outcome.hasValue());
    EXPECT_EQ(outcome.error().kind, DatabaseFault::Kind::Other);
    EXPECT_THAT(history("/book/a.md"), ElementsAre(10));
    record("/book/a.md", 20, at("2026-11-22 11:00:00"));
    EXPECT_THAT(history("/book/a.md"), ElementsAre(10, 20));
}

TEST_F(ProgressStoreFaultTest, AStoreThatHasReachedItsSizeLosesItsOldestDaysAndStillRecords)
{
    constexpr qint64 size = 64 << 10;
    ProgressStore store(ProgressStore::defaultTimeout, size);
    ASSERT_TRUE(store.add({"/book/a.md"}).hasValue());
    const QDateTime start = at("2023-01-01 10:00:00");
    constexpr quint64 days = 150;
    for (quint64 i = 0; i < days * 10; ++i) {
        const QDateTime now =
            start.addDays(static_cast<qint64>(i / 10)).addSecs(static_cast<qint64>(i % 10) * 60);
        ASSERT_TRUE(store.record({.path = "/book/a.md", .stats = words(1'000'000 + i)}, now).hasValue()) << i;
    }
    EXPECT_LE(QFileInfo(file()).size(), size);
    const std::vector<RecordedCount> counts = store.history("/book/a.md").value();
    EXPECT_EQ(counts.back().stats, words(1'000'000 + days * 10 - 1));
    EXPECT_GT(counts.size(), days / 2);
}

TEST_F(ProgressStoreFaultTest, TheListIsBounded)
{
    QByteArrayList many;
    for (std::size_t i = 0; i < ProgressStore::maxDocuments + 5; ++i)
        many.append("/book/" + QByteArray::number(static_cast<qulonglong>(i)));
    const auto added = m_store.add(many);
    ASSERT_TRUE(added.hasValue());
    EXPECT_EQ(added.value(), static_cast<int>(ProgressStore::maxDocuments));
}

TEST_F(ProgressStoreFaultTest, WhatWasWrittenByHandIsHarmless)
{
    add({"/book/a.md"});
    sqlite3 *database = nullptr;
    ASSERT_EQ(sqlite3_open(m_store.path().constData(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database,
                  "INSERT INTO plan (path, goal_statistic, goal_amount) VALUES (x'2f62', 'sonnets', 5);"
                  "INSERT INTO plan (path, limit_statistic, limit_amount) VALUES (x'2f63', 'words', -5);"
                  "INSERT INTO history VALUES (1, 1, -1, 'yesterday', -1, -1, -1, -1, -1, -1, -1, -1);",
                  nullptr, nullptr, nullptr),
        SQLITE_OK);
    sqlite3_close(database);
    const ProgressStore::Plans plans = m_store.plans().value();
    EXPECT_EQ(plans.at("/b"), Plan());
    EXPECT_EQ(plans.at("/c"), Plan());
    record("/book/a.md", 10, at("2026-11-22 10:00:00"));
    EXPECT_EQ(history("/book/a.md").back(), 10U);
}
