// SPDX-License-Identifier: MIT
// Many files in one command.
#include "command/ParallelCount.h"

#include "tests/command/CommandTest.h"

#include <atomic>

namespace {

QByteArrayList numbers(qsizetype count)
{
    QByteArrayList names;
    for (qsizetype i = 0; i < count; ++i)
        names.append(QByteArray::number(i));
    return names;
}

ParallelCount::Outcome numberOf(const QByteArray &name)
{
    return FileCounts{{.numberOfWords = name.toULongLong()}, {}};
}

class ParallelCountTest : public CommandTest { };

} // namespace

TEST_F(ParallelCountTest, ReturnsTheCountsInTheOrderOfTheFiles)
{
    const QByteArrayList names = numbers(5000);
    ProgressLine progress(names.size());
    ParallelCount counts(names, 4, [] {
        return [](const QByteArray &name, ParallelCount::Position &) -> ParallelCount::Outcome {
            if (name.endsWith('7'))
                return QString::fromLatin1(name);
            return numberOf(name);
        };
    });
    for (const QByteArray &name : names) {
        const ParallelCount::Outcome outcome = counts.next(progress);
        if (name.endsWith('7'))
            EXPECT_EQ(outcome.error(), QString::fromLatin1(name));
        else
            EXPECT_EQ(outcome.value().stats.numberOfWords, name.toULongLong());
    }
}

TEST_F(ParallelCountTest, EachThreadHasACounterOfItsOwnAndIsNotFarAhead)
{
    std::atomic<int> counters = 0;
    std::atomic<qsizetype> started = 0;
    const QByteArrayList names = numbers(3 * ParallelCount::maxAhead);
    ProgressLine progress(names.size());
    ParallelCount counts(names, 3, [&] {
        ++counters;
        return [&](const QByteArray &name, ParallelCount::Position &) {
            ++started;
            return numberOf(name);
        };
    });
    for (qsizetype returned = 1; returned <= names.size(); ++returned) {
        (void)counts.next(progress);
        EXPECT_LE(started, returned + ParallelCount::maxAhead);
    }
    EXPECT_LE(counters, 3);
    EXPECT_EQ(started, names.size());
}

TEST_F(ParallelCountTest, FilesThatNobodyWaitsForAreNotCounted)
{
    std::atomic<qsizetype> started = 0;
    {
        const ParallelCount counts(numbers(100 * ParallelCount::maxAhead), 2, [&] {
            return [&](const QByteArray &name, ParallelCount::Position &) {
                ++started;
                return numberOf(name);
            };
        });
    }
    EXPECT_LE(started, ParallelCount::maxAhead);
}

TEST_F(ParallelCountTest, ManyFilesHaveTheCountsOfEachAlone)
{
    QByteArrayList names;
    for (int i = 0; i < 100; ++i) {
        const QByteArray name = QByteArray::number(i * 7919 % 100) + ".txt";
        names.append(i % 10 == 3 ? "missing/" + name
                                 : file(name.constData(),
                                     QByteArray("A few words, and a line. Or two?\n").repeated(i * 13 % 60)));
    }
    const ChildProcess::Outcome all = count(QByteArrayList{"--json"} + names);
    EXPECT_EQ(all.exitStatus, 1);
    for (int i = 0; i < names.size(); i += 9) {
        const ChildProcess::Outcome one = count({"--json", names[i]});
        EXPECT_THAT(all.output + all.errors, ::testing::HasSubstr((one.output + one.errors).toStdString()));
    }
    // The rows have the order of the names.
    qsizetype row = 0;
    const QByteArrayList rows = all.output.trimmed().split('\n');
    for (const QByteArray &name : names) {
        if (!name.startsWith("missing")) {
            EXPECT_TRUE(rows.value(row++).startsWith("{\"file\":\"" + name + '"')) << name.constData();
        }
    }
    EXPECT_EQ(row, rows.size());
    EXPECT_EQ(all.errors.count("no such file"), 10);
}
