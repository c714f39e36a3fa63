// SPDX-License-Identifier: MIT
// How the broker handles workers that misbehave.
#include "counting_service/broker/WorkerPool.h"
#include "platform/system/Sanitizers.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/documents/loading/ReaderPrograms.h"

#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <set>

namespace {

class WorkerPoolTest : public QuillbayTest {
protected:
    struct Answer {
        quint64 number; ///< of the document
        int times = 0;
        std::optional<CountJob::Outcome> outcome;
    };

    static WorkerProgram program(const char *beginning = "greet")
    {
        return {.path = testProgram(QStringLiteral("fake_worker")).toUtf8(),
            .arguments = {beginning},
            .startTimeout = std::chrono::seconds(10),
            .baseTimeout = std::chrono::seconds(20)};
    }

    /// A pool with two workers at a time.
    static std::unique_ptr<WorkerPool> pool(const WorkerProgram &worker = program())
    {
        return std::make_unique<WorkerPool>(worker, 2);
    }

    std::shared_ptr<Answer> add(WorkerPool &pool, const QByteArray &document)
    {
        const auto answer = std::make_shared<Answer>(Answer{.number = m_answers.size(), .outcome = {}});
        m_answers.push_back(answer);
        pool.add({answer->number, DocumentKind::Rtfd, SealedMemory::copyOf(document).value(), RulesSnapshot(),
            [answer](const CountJob::Outcome &outcome) {
                ++answer->times;
                answer->outcome = outcome;
            }});
        return answer;
    }

    /// Runs until every document has its answer.
    void finish()
    {
        EXPECT_TRUE(waitUntil([this] {
            return std::all_of(
                m_answers.begin(), m_answers.end(), [](const auto &answer) { return answer->outcome; });
        }));
    }

    QBYWordCounterStats statsOf(const std::shared_ptr<Answer> &answer)
    {
        finish();
        EXPECT_EQ(answer->times, 1);
        EXPECT_TRUE(answer->outcome->hasValue()) << causeText(answer->outcome->error()).toStdString();
        return *answer->outcome ? answer->outcome->value() : QBYWordCounterStats();
    }

    std::optional<CountFailure> failureOf(const std::shared_ptr<Answer> &answer)
    {
        finish();
        EXPECT_EQ(answer->times, 1);
        if (answer->outcome->hasValue())
            return std::nullopt;
        return answer->outcome->error();
    }

    /// A document that makes its first worker misbehave.
    QByteArray once(const char *misdeed)
    {
        const QString file = world().root() + QStringLiteral("/first-%1").arg(++m_files);
        return "first " + QFile::encodeName(file) + ' ' + misdeed;
    }

    /// The worker that has got the document made by that call of once(), counted from 1; 0 if none has.
    [[nodiscard]] pid_t workerOf(int number) const
    {
        QFile file(world().root() + QStringLiteral("/first-%1").arg(number));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toInt() : 0;
    }

    static QByteArray keepSmall(const QByteArray &document) { return document; }
    static QByteArray makeLarge(const QByteArray &document)
    {
        return document + ' ' + QByteArray(WorkerPool::maxSmallSize, 'x');
    }

    std::vector<std::shared_ptr<Answer>> m_answers;
    int m_files = 0;
};

// Each ends the worker, or makes the broker end it.
constexpr const char *misdeeds[] = {"crash", "exit", "garbage", "long", "other", "hung-up", "memory"};

} // namespace

TEST_F(WorkerPoolTest, CountsManyDocumentsWithFewWorkers)
{
    const auto pool = this->pool();
    std::set<quint64> workers;
    for (qsizetype i = 0; i < 200; ++i)
        add(*pool, QByteArray(i, 'x'));
    for (size_t i = 0; i < 200; ++i) {
        const QBYWordCounterStats stats = statsOf(m_answers[i]);
        EXPECT_EQ(stats.numberOfWords, i);
        workers.insert(stats.numberOfCharacters);
    }
    EXPECT_LE(workers.size(), 3U);
    EXPECT_LE(pool->workers().size(), 3U);
}

TEST_F(WorkerPoolTest, KeepsASpareWorkerOnceItHasAnswered)
{
    const auto pool = this->pool();
    pool->setFontGeneration(1); // starts the first worker
    EXPECT_EQ(pool->workers().size(), 1U);
    statsOf(add(*pool, "count"));
    add(*pool, "hang");
    EXPECT_EQ(pool->workers().size(), 2U);
    add(*pool, "hang");
    EXPECT_EQ(pool->workers().size(), 3U);
    add(*pool, "hang");
    EXPECT_EQ(pool->workers().size(), 3U);
}

TEST_F(WorkerPoolTest, ASmallDocumentNeverWaitsForLargeOnes)
{
    const auto pool = this->pool();
    constexpr int largeDocuments = 20;
    for (int i = 0; i < largeDocuments; ++i)
        add(*pool, makeLarge(once("hang")));
    for (int i = 0; i < 3; ++i) {
        const auto small = add(*pool, "count");
        ASSERT_TRUE(waitUntil([&] { return small->outcome.has_value(); }));
        EXPECT_EQ(small->outcome->value().numberOfWords, 5U);
    }
    EXPECT_TRUE(waitUntil([&] { return workerOf(1) > 0 && workerOf(2) > 0; }));
    for (int i = 3; i <= largeDocuments; ++i)
        EXPECT_EQ(workerOf(i), 0) << i; // two at a time, in their order
    EXPECT_EQ(pool->workers().size(), 3U);
}

TEST_F(WorkerPoolTest, SmallDocumentsDoNotOvertakeALargeOneThatCouldBeCounted)
{
    const auto pool = this->pool();
    for (int i = 0; i < 3; ++i)
        add(*pool, once("hang"));
    ASSERT_TRUE(waitUntil([&] { return workerOf(1) > 0 && workerOf(2) > 0 && workerOf(3) > 0; }));
    add(*pool, makeLarge(once("hang")));
    add(*pool, once("hang"));
    ::kill(workerOf(1), SIGKILL); // the retry counts it
    EXPECT_TRUE(waitUntil([&] { return workerOf(4) > 0; }));
    EXPECT_EQ(workerOf(5), 0);
}

TEST_F(WorkerPoolTest, ADroppedDocumentHasNoAnswerAndItsWorkerIsKilled)
{
    const auto pool = this->pool();
    const auto dropped = add(*pool, once("hang"));
    ASSERT_TRUE(waitUntil([&] { return workerOf(1) > 0; }));
    const pid_t worker = workerOf(1);
    pool->drop(dropped->number);
    EXPECT_TRUE(waitUntil([&] { return !isRunning(worker); }));
    const auto next = add(*pool, "count");
    EXPECT_TRUE(waitUntil([&] { return next->outcome.has_value(); }));
    EXPECT_EQ(dropped->times, 0);
    EXPECT_NE(next->outcome->value().numberOfCharacters, static_cast<quint64>(worker));
}

TEST_F(WorkerPoolTest, ADocumentThatIsDroppedInTheQueueIsNeverCounted)
{
    const auto pool = this->pool();
    for (const auto &make : {&WorkerPoolTest::keepSmall, &WorkerPoolTest::makeLarge}) {
        std::vector<std::shared_ptr<Answer>> running;
        for (int i = 0; i < 3; ++i)
            running.push_back(add(*pool, make("hang")));
        const auto dropped = add(*pool, make("count"));
        const auto last = add(*pool, make("count"));
        pool->drop(dropped->number);
        for (const auto &answer : running)
            pool->drop(answer->number);
        EXPECT_TRUE(waitUntil([&] { return last->outcome.has_value(); }));
        EXPECT_EQ(dropped->times, 0);
    }
}

TEST_F(WorkerPoolTest, DroppingADocumentThatHasItsAnswerDoesNothing)
{
    const auto pool = this->pool();
    const auto first = add(*pool, "count");
    const quint64 worker = statsOf(first).numberOfCharacters;
    pool->drop(first->number);
    EXPECT_EQ(statsOf(add(*pool, "count")).numberOfCharacters, worker);
}

TEST_F(WorkerPoolTest, RetriesWithAFreshWorkerWhenOneFails)
{
    for (const char *misdeed : misdeeds) {
        const auto pool = this->pool();
        const quint64 first = statsOf(add(*pool, "count")).numberOfCharacters;
        const QBYWordCounterStats stats = statsOf(add(*pool, once(misdeed)));
        EXPECT_NE(stats.numberOfCharacters, first) << misdeed;
        EXPECT_EQ(stats.numberOfLines, 1U) << misdeed; // nothing counted before
    }
}

TEST_F(WorkerPoolTest, GivesUpADocumentThatFailsTwice)
{
    for (const char *misdeed : misdeeds) {
        const auto pool = this->pool();
        EXPECT_EQ(failureOf(add(*pool, misdeed)), CountFailure::Cause::WorkerFailed) << misdeed;
        EXPECT_EQ(statsOf(add(*pool, "count")).numberOfWords, 5U) << misdeed;
    }
}

TEST_F(WorkerPoolTest, LosesNoOtherDocumentWhenAWorkerFails)
{
    const auto pool = this->pool();
    std::vector<std::shared_ptr<Answer>> good;
    std::vector<std::shared_ptr<Answer>> bad;
    for (int i = 0; i < 10; ++i) {
        for (const char *misdeed : misdeeds) {
            good.push_back(add(*pool, "count " + QByteArray::number(i)));
            good.push_back(add(*pool, once(misdeed)));
            bad.push_back(add(*pool, misdeed));
        }
    }
    for (const auto &answer : good)
        EXPECT_GT(statsOf(answer).numberOfWords, 0U);
    for (const auto &answer : bad)
        EXPECT_EQ(failureOf(answer), CountFailure::Cause::WorkerFailed);
}

TEST_F(WorkerPoolTest, EndsAWorkerThatTimesOut)
{
    WorkerProgram strict = program();
    strict.baseTimeout = std::chrono::milliseconds(200);
    const auto pool = this->pool(strict);
    EXPECT_EQ(failureOf(add(*pool, "hang")), CountFailure::Cause::WorkerFailed);
    EXPECT_EQ(statsOf(add(*pool, once("hang"))).numberOfLines, 1U);
}

TEST_F(WorkerPoolTest, TheTimeoutGrowsWithTheDocument)
{
    WorkerProgram strict = program();
    strict.baseTimeout = std::chrono::milliseconds(100);
    strict.timeoutPerMebibyte = std::chrono::hours(1);
    const auto pool = this->pool(strict);
    const auto small = add(*pool, "hang");
    const auto large = add(*pool, "hang " + QByteArray(qsizetype{1024} * 1024, ' '));
    EXPECT_TRUE(waitUntil([&] { return small->outcome.has_value(); }));
    EXPECT_FALSE(large->outcome);
}

TEST_F(WorkerPoolTest, AHungWorkerCostsAShortDocumentFiveSeconds)
{
    using namespace std::chrono_literals;
    const WorkerProgram worker;
    EXPECT_EQ(worker.timeoutFor(0), 5s);
    EXPECT_LT(worker.timeoutFor(60), 6s);
    EXPECT_LT(worker.timeoutFor(20'000), 6s);
    EXPECT_EQ(worker.timeoutFor(1 << 20), 35s);
    EXPECT_GE(worker.timeoutFor(100ULL << 20), 1000s);
}

TEST_F(WorkerPoolTest, ADocumentThatTakesTooMuchProcessorTimeIsGivenUpWithItsFirstWorker)
{
    WorkerProgram strict = program();
    strict.readingTime = [](DocumentKind, qsizetype) { return std::chrono::seconds(0); };
    const auto pool = this->pool(strict);
    EXPECT_EQ(failureOf(add(*pool, once("spin"))),
        CountFailure(DocumentError(DocumentError::Cause::TooComplex, DocumentKind::Rtfd)));
}

TEST_F(WorkerPoolTest, TheProcessorTimeIsThatOfReadingUntilTheDocumentIsRead)
{
    WorkerProgram strict = program();
    strict.baseTimeout = std::chrono::seconds(1'000);
    strict.timeoutPerMebibyte = std::chrono::seconds(0);
    strict.readingTime = [](DocumentKind, qsizetype) { return std::chrono::seconds(100); };
    const auto pool = this->pool(strict);
    const auto hasLimit = [this](int worker, const char *seconds) {
        return waitUntil([&] {
            const pid_t process = workerOf(worker);
            const QByteArray limit = QByteArray("Max cpu time ") + seconds;
            return process != 0 && procFile(process, "limits").simplified().contains(limit);
        });
    };
    add(*pool, once("hang"));
    EXPECT_TRUE(hasLimit(1, "101 "));
    add(*pool, once("read-hang"));
    EXPECT_TRUE(hasLimit(2, "1001 "));
}

TEST_F(WorkerPoolTest, AnUnexpectedAnswerEndsTheWorkerAndLosesNothing)
{
    const auto pool = this->pool();
    std::set<quint64> workers;
    for (int i = 0; i < 20; ++i) {
        const auto twice = add(*pool, "twice");
        const auto next = add(*pool, "count and more");
        EXPECT_EQ(statsOf(twice).numberOfWords, 5U);
        EXPECT_EQ(statsOf(next).numberOfWords, 14U);
        workers.insert(statsOf(twice).numberOfCharacters);
    }
    EXPECT_EQ(workers.size(), 20U);
}

TEST_F(WorkerPoolTest, ClosesADescriptorThatAWorkerSends)
{
    const auto pool = this->pool();
    EXPECT_EQ(statsOf(add(*pool, "descriptor")).numberOfWords, 10U);
    EXPECT_EQ(statsOf(add(*pool, "descriptor")).numberOfWords, 10U);
    const qsizetype before = openDescriptors(::getpid());
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(statsOf(add(*pool, "descriptor")).numberOfWords, 10U);
    EXPECT_EQ(openDescriptors(::getpid()), before);
}

TEST_F(WorkerPoolTest, KeepsCountingWhenIdleWorkersAreKilled)
{
    const auto pool = this->pool();
    for (int i = 0; i < 30; ++i) {
        EXPECT_EQ(statsOf(add(*pool, "count")).numberOfWords, 5U);
        for (const pid_t worker : pool->workers())
            ::kill(worker, SIGKILL);
    }
}

TEST_F(WorkerPoolTest, RetriesADocumentWhoseWorkersAreKilled)
{
    const QString file = world().root() + QStringLiteral("/worker");
    const QByteArray document = "first " + QFile::encodeName(file) + " hang";
    for (int kills = 1; kills <= WorkerPool::maxInterruptions; ++kills) {
        const auto pool = this->pool();
        const auto answer = add(*pool, document);
        for (int i = 1; i <= kills; ++i) {
            ASSERT_TRUE(waitUntil([&] { return QFileInfo(file).size() > 0; }));
            const pid_t worker = readFile(file).toInt();
            if (i < kills)
                QFile::remove(file);
            ::kill(worker, SIGKILL);
        }
        if (kills < WorkerPool::maxInterruptions)
            EXPECT_EQ(statsOf(answer).numberOfWords, static_cast<quint64>(document.size()));
        else
            EXPECT_EQ(failureOf(answer), CountFailure::Cause::WorkerFailed);
        QFile::remove(file);
    }
}

TEST_F(WorkerPoolTest, GivesUpIfNoWorkerStarts)
{
    WorkerProgram missing = program();
    missing.path = "/no/such/program";
    for (const WorkerProgram &worker : {program("exit"), program("garbage"), missing}) {
        const auto pool = this->pool(worker);
        EXPECT_EQ(failureOf(add(*pool, "count")), CountFailure::Cause::NoWorker);
        EXPECT_EQ(failureOf(add(*pool, "count")), CountFailure::Cause::NoWorker);
    }
}

TEST_F(WorkerPoolTest, EndsAWorkerThatDoesNotGreet)
{
    WorkerProgram silent = program("hang");
    silent.startTimeout = std::chrono::milliseconds(20);
    const auto pool = this->pool(silent);
    EXPECT_EQ(failureOf(add(*pool, "count")), CountFailure::Cause::NoWorker);
}

TEST_F(WorkerPoolTest, WorkersWithOldFontsCountNoMore)
{
    const auto pool = this->pool();
    pool->setFontGeneration(1);
    const quint64 first = statsOf(add(*pool, "count")).numberOfCharacters;
    EXPECT_EQ(statsOf(add(*pool, "count")).numberOfCharacters, first);
    pool->setFontGeneration(2);
    EXPECT_EQ(statsOf(add(*pool, "count")).numberOfLines, 1U);
    EXPECT_TRUE(waitUntil([&] { return !isRunning(static_cast<pid_t>(first)); }));
}

TEST_F(WorkerPoolTest, AWorkerThatIsCountingWhenTheFontsChangeFinishes)
{
    const auto pool = this->pool();
    pool->setFontGeneration(1);
    const auto answer = add(*pool, once("hang"));
    const QString gate = world().root() + QStringLiteral("/first-1");
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(gate); }));
    const std::vector<pid_t> before = pool->workers();
    pool->setFontGeneration(2);
    EXPECT_TRUE(isRunning(before.front()));
    ::kill(before.front(), SIGKILL);
    EXPECT_EQ(statsOf(answer).numberOfLines, 1U);
}

TEST_F(WorkerPoolTest, AWorkerThatHasCountedALargeDocumentIsReplaced)
{
    const auto pool = this->pool();
    const auto workerThatCounts = [&](qsizetype length) {
        return static_cast<pid_t>(statsOf(add(*pool, QByteArray(length, 'x'))).numberOfCharacters);
    };
    const pid_t kept = workerThatCounts(WorkerPool::maxSizeWithoutReplacement);
    EXPECT_THAT(pool->workers(), testing::Contains(kept));
    const pid_t replaced = workerThatCounts(WorkerPool::maxSizeWithoutReplacement + 1);
    EXPECT_THAT(pool->workers(), testing::Not(testing::Contains(replaced)));
}

TEST_F(WorkerPoolTest, EndsAWorkerThatTakesTooMuchMemory)
{
    if (isSanitized)
        GTEST_SKIP() << "the sanitizers need the memory themselves";
    const auto pool = this->pool();
    EXPECT_EQ(failureOf(add(*pool, "eat")), CountFailure::Cause::WorkerFailed);
    EXPECT_EQ(statsOf(add(*pool, "count")).numberOfWords, 5U);
}

TEST_F(WorkerPoolTest, LeaksNeitherDescriptorsNorZombies)
{
    const size_t others = childrenOf(::getpid()).size(); // the bus of another test
    const auto pool = this->pool();
    statsOf(add(*pool, "count"));
    const auto isSettled = [&] { return childrenOf(::getpid()).size() == others + pool->workers().size(); };
    const auto descriptorsOfOthers = [&] {
        return openDescriptors(::getpid()) - 2 * static_cast<qsizetype>(pool->workers().size());
    };
    EXPECT_TRUE(waitUntil(isSettled));
    const qsizetype before = descriptorsOfOthers();
    for (int i = 0; i < 500; ++i)
        add(*pool,
            i % 10 == 0 ? once(misdeeds[static_cast<size_t>(i / 10) % std::size(misdeeds)])
                        : QByteArray("count"));
    finish();
    // A worker that has ended may leave before its descriptors do.
    EXPECT_TRUE(waitUntil([&] { return isSettled() && descriptorsOfOthers() == before; }))
        << descriptorsOfOthers() - before;
}

TEST_F(WorkerPoolTest, KillsItsWorkersWhenItIsDestroyed)
{
    const size_t others = childrenOf(::getpid()).size(); // the bus of another test
    auto pool = this->pool();
    statsOf(add(*pool, "count"));
    const std::vector<pid_t> workers = pool->workers();
    EXPECT_FALSE(workers.empty());
    pool.reset();
    for (const pid_t worker : workers)
        EXPECT_FALSE(isRunning(worker));
    EXPECT_EQ(childrenOf(::getpid()).size(), others);
}

TEST_F(WorkerPoolTest, TheLogNamesTheCauseAndNothingOfTheDocument)
{
    const RecordingLogSink log;
    const auto pool = this->pool();
    failureOf(add(*pool, "crash secretly"));
    const QString all = log.messages().join(u'\n');
    EXPECT_EQ(all.count(QStringLiteral("A worker crashed")), 2);
    EXPECT_FALSE(all.contains(QStringLiteral("secretly")));
}
