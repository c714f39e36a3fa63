// SPDX-License-Identifier: MIT
// Saves at random moments, with the real counting service, whose processes are killed at random: in the end
// the label shows the counts of the file. QUILLBAY_SOAK_SAVES sets the number of saves (default: 40),
// QUILLBAY_SOAK_SEED the random seed.
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/views/FakeDesktop.h"
#include "tests/presentation/StatsPanel.h"
#include "watching/windows/WatchTextFileMenuBarController.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QSaveFile>

#include <csignal>
#include <random>

namespace {

class CountSoak : public CountingServiceTest {
protected:
    CountSoak()
    {
        preferOnly(everyStatistic);
        m_watcher->watchWithTextFileURL(QUrl::fromLocalFile(m_path));
        m_activity.setActive(false); // starts polling
    }

    int randomNumber(int min, int max) { return std::uniform_int_distribution(min, max)(m_random); }

    /// Processes events for a random time of up to so many milliseconds.
    void waitAtRandom(int maxTime)
    {
        for (const QDeadlineTimer end(randomNumber(0, maxTime)); !end.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1);
        if (randomNumber(0, 1))
            m_clock.advance(std::chrono::milliseconds(randomNumber(0, 400)));
    }

    void save()
    {
        m_words = randomNumber(0, 9) ? randomNumber(0, 500) : randomNumber(5'000, 20'000);
        const QByteArray text = QByteArray("word ").repeated(m_words);
        if (randomNumber(0, 1)) {
            QSaveFile file(m_path);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(text);
            ASSERT_TRUE(file.commit());
        } else {
            QFile file(m_path);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(text);
        }
    }

    void killSomebody()
    {
        const pid_t broker = service();
        if (!broker)
            return;
        const std::vector<SeenProcess> workers = childrenOf(broker);
        const bool isWorker = !workers.empty() && randomNumber(0, 1);
        const pid_t victim = isWorker
            ? workers.at(static_cast<size_t>(randomNumber(0, static_cast<int>(workers.size()) - 1)))
                  .identifier
            : broker;
        ++(isWorker ? m_killedWorkers : m_killedBrokers);
        ::kill(victim, SIGKILL);
    }

    [[nodiscard]] bool isCounting() const { return statistics().isAsyncCountOperationInProgress(); }
    [[nodiscard]] WordCounterViewController &statistics() const
    {
        return *m_watcher->watchTextFileViewControllerForPopover()->wordCounterViewController();
    }

    /// One to three saves and perhaps one killed process, at random moments; one poll after the last save the
    /// label shows the file's count.
    int round()
    {
        const int saves = randomNumber(1, 3);
        const int killAfter = randomNumber(0, 2) ? -1 : randomNumber(0, saves - 1);
        for (int i = 0; i < saves; ++i) {
            waitAtRandom(12);
            save();
            if (i == killAfter) {
                m_clock.advance(std::chrono::milliseconds(200));
                waitAtRandom(8);
                killSomebody();
            }
        }
        EXPECT_TRUE(waitUntil([this] { return !isCounting(); }));
        m_clock.advance(WatchTextFileModel::pollInterval);
        EXPECT_TRUE(waitUntil([this] { return !isCounting(); }));
        EXPECT_EQ(
            statistics().wordCountTextField()->stringValue(), QStringLiteral("•Words: %1").arg(m_words));
        return saves;
    }

    const unsigned m_seed = qEnvironmentVariableIsSet("QUILLBAY_SOAK_SEED")
        ? static_cast<unsigned>(qEnvironmentVariableIntValue("QUILLBAY_SOAK_SEED"))
        : std::random_device()();
    std::mt19937 m_random{m_seed};
    const QString m_path = writeFile(QStringLiteral("novel.txt"), "One two three.");
    int m_words = 0;
    int m_killedBrokers = 0;
    int m_killedWorkers = 0;
    FakeDesktop m_desktop;
    FakeClock m_clock;
    ApplicationActivity m_activity{true};
    std::shared_ptr<WatchTextFileMenuBarController> m_watcher =
        WatchTextFileMenuBarController::initWithoutMenuItem({m_desktop, m_activity, nullptr, m_clock});
};

} // namespace

TEST_F(CountSoak, TheLabelShowsTheFileOnePollAfterTheLastSave)
{
    const int wanted = std::max(qEnvironmentVariableIntValue("QUILLBAY_SOAK_SAVES"), 40);
    int saves = 0;
    while (saves < wanted && !HasFailure())
        saves += round();
    EXPECT_TRUE(m_desktop.notes.isEmpty()) << m_desktop.notes.join(u' ').toStdString();
    EXPECT_GT(m_killedBrokers + m_killedWorkers, 0);
    std::printf("seed %u: %d saves, %d brokers and %d workers killed\n", m_seed, saves, m_killedBrokers,
        m_killedWorkers);
}
