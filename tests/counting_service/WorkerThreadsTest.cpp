// SPDX-License-Identifier: MIT
#include "platform/system/Processors.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "text_statistics/PieceCounters.h"

#include <QDir>

#include <algorithm>

namespace {

/// Whether the process has as many threads as it may use, each without new privileges and with a filter of
/// system calls.
bool isConfined(pid_t process)
{
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(process));
    const QStringList threads = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return threads.size() == std::min(availableProcessors(), PieceCounters::maxThreads)
        && std::all_of(threads.begin(), threads.end(), [&](const QString &thread) {
               QFile file(tasks.filePath(thread) + QStringLiteral("/status"));
               const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
               return status.contains("\nSeccomp:\t2\n") && status.contains("\nNoNewPrivs:\t1\n");
           });
}

} // namespace

using WorkerThreadsTest = CountingServiceTest;

TEST_F(WorkerThreadsTest, AreAsManyAsThereAreProcessorsAndAllConfined)
{
    const QString text = QStringLiteral("word, ").repeated(50) + QChar(u'\n');
    const auto repeats = static_cast<int>(PieceCounters::minLengthForThreads / text.size() + 1);
    EXPECT_EQ(count(message(flatRtfd(text.repeated(repeats)))).numberOfWords, 50U * repeats);
    // Another worker may just have been started.
    EXPECT_TRUE(waitUntil([this] {
        std::vector<SeenProcess> workers = childrenOf(service());
        std::erase_if(workers, [](const SeenProcess &child) { return child.isZombie; });
        return !workers.empty() && std::all_of(workers.begin(), workers.end(), [](const SeenProcess &worker) {
            return isConfined(worker.identifier);
        });
    }));
}
