// SPDX-License-Identifier: MIT
#include "desk/documents/CountQueue.h"

#include "presentation/WordCounterViewController.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int counters = 4; // connections to the service; it has its own queue behind them

} // namespace

CountQueue::CountQueue()
{
    for (int i = 0; i < counters; ++i) {
        auto counter = std::make_unique<Counter>();
        counter->panel = std::make_shared<WordCounterViewController>();
        counter->silence.setSingleShot(true);
        counter->silence.setInterval(maxSilence);
        connect(&counter->silence, &QTimer::timeout, this, [this, known = counter.get()] {
            known->panel->stopAsyncOperation();
            finish(*known, false);
        });
        m_counters.push_back(std::move(counter));
    }
}

CountQueue::~CountQueue() = default;

std::size_t CountQueue::size() const
{
    return m_waiting.size()
        + static_cast<std::size_t>(
            std::ranges::count_if(m_counters, [](const auto &counter) { return counter->job.has_value(); }));
}

void CountQueue::count(QObject &asker, Content content, Done done)
{
    const auto known =
        std::ranges::find_if(m_waiting, [&](const Job &job) { return job.asker.data() == &asker; });
    Job job{.asker = &asker, .content = std::move(content), .done = std::move(done)};
    if (known != m_waiting.end())
        *known = std::move(job);
    else
        m_waiting.push_back(std::move(job));
    startJobs();
}

void CountQueue::startJobs()
{
    for (const auto &counter : m_counters) {
        while (!counter->job && !m_waiting.empty()) {
            // A content of the same document that is still being counted must not overtake this one.
            const auto next = std::ranges::find_if(m_waiting, [this](const Job &job) {
                return std::ranges::none_of(m_counters, [&](const auto &other) {
                    return other->job && other->job->asker.data() == job.asker.data();
                });
            });
            if (next == m_waiting.end())
                return;
            Job job = std::move(*next);
            m_waiting.erase(next);
            if (job.asker)
                start(*counter, std::move(job));
        }
    }
}

void CountQueue::start(Counter &counter, Job job)
{
    counter.job = std::move(job);
    counter.silence.start();
    const auto completion = [queue = QPointer<CountQueue>(this), known = &counter] {
        // The panel may take the next document only after its completion has returned.
        if (queue)
            QMetaObject::invokeMethod(
                queue, [queue, known] { queue->finish(*known, true); }, Qt::QueuedConnection);
    };
    if (const auto *const text = std::get_if<AttributedString>(&counter.job->content))
        counter.panel->asyncUpdateStatsWithAttributedString(*text, completion);
    else
        counter.panel->asyncUpdateStatsDocXFileURL(std::get<QUrl>(counter.job->content), completion);
}

void CountQueue::finish(Counter &counter, bool isCounted)
{
    counter.silence.stop();
    const std::optional<Job> job = std::exchange(counter.job, std::nullopt);
    if (job && job->asker)
        job->done(
            isCounted ? std::optional(counter.panel->wordCounter()->statsRepresentation()) : std::nullopt);
    startJobs();
    Q_EMIT advanced();
}
