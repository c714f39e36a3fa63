// SPDX-License-Identifier: MIT
#include "counting_service/broker/WorkerPool.h"

#include "counting_service/broker/ServiceLog.h"

#include <QThread>

#include <algorithm>
#include <utility>

namespace {

using State = WorkerProcess::State;

void logSandbox(const SandboxReport &sandbox)
{
    const LogArgument description = publicly(sandboxDescription(sandbox));
    if (!sandbox.isSufficient())
        countingServiceLog().error(
            u"No document is counted, as the workers cannot be confined: {}", {description});
    else if (sandbox.landlockVersion == 0)
        countingServiceLog().notice(
            u"The workers are confined by the system call filter alone: {}", {description});
    else
        countingServiceLog().info(u"Sandbox of the workers: {}", {description});
}

bool isLarge(const CountJob &job)
{
    return job.document.size() > WorkerPool::maxSmallSize;
}

} // namespace

WorkerPool::WorkerPool(WorkerProgram program, int workers)
    : m_program(std::move(program))
    , m_maxLarge(static_cast<size_t>(workers))
    , m_maxBusy(m_maxLarge + 1)
{
}

WorkerPool::~WorkerPool() = default;

int WorkerPool::defaultWorkerCount()
{
    return std::clamp(QThread::idealThreadCount(), 1, maxWorkers);
}

void WorkerPool::setFontGeneration(quint64 generation)
{
    if (std::exchange(m_fontGeneration, generation) != generation)
        schedule();
}

void WorkerPool::add(CountJob job)
{
    if (m_failedStarts >= maxFailedStarts)
        m_failedStarts = 0; // the cause may have disappeared
    enqueue(std::make_unique<CountJob>(std::move(job)));
    schedule();
}

void WorkerPool::drop(quint64 number)
{
    m_small.erase(number);
    m_large.erase(number);
    for (Place &place : m_places) {
        if (!place.job || place.job->number != number)
            continue;
        place.job.reset();
        place.worker->end(WorkerEnd::Dismissed);
    }
    schedule();
}

std::vector<pid_t> WorkerPool::workers() const
{
    std::vector<pid_t> processes;
    for (const Place &place : m_places) {
        if (place.worker->state() != State::Ending)
            processes.push_back(place.worker->processIdentifier());
    }
    return processes;
}

size_t WorkerPool::busyWithLarge() const
{
    return static_cast<size_t>(std::count_if(m_places.begin(), m_places.end(),
        [](const Place &place) { return place.job && isLarge(*place.job); }));
}

void WorkerPool::enqueue(std::unique_ptr<CountJob> job)
{
    const quint64 number = job->number;
    Queue &queue = isLarge(*job) ? m_large : m_small;
    queue.emplace(number, std::move(job));
}

size_t WorkerPool::countOf(State state) const
{
    return static_cast<size_t>(std::count_if(m_places.begin(), m_places.end(),
        [state](const Place &place) { return place.worker->state() == state; }));
}

WorkerPool::Place &WorkerPool::placeOf(const WorkerProcess &worker)
{
    return *std::find_if(
        m_places.begin(), m_places.end(), [&](const Place &place) { return place.worker.get() == &worker; });
}

WorkerProcess::Callbacks WorkerPool::callbacks()
{
    return {
        .onReady = [this](WorkerProcess &, const SandboxReport &sandbox) { takeGreeting(sandbox); },
        .onAnswer = [this](WorkerProcess &worker,
                        const CountJob::Outcome &outcome) { takeAnswer(worker, outcome); },
        .onEnd = [this](WorkerProcess &worker, WorkerEnd end) { replace(worker, end); },
    };
}

void WorkerPool::schedule()
{
    dismissOutdatedWorkers();
    assignJobs();
    startWorkers();
}

void WorkerPool::dismissOutdatedWorkers()
{
    for (const Place &place : m_places) {
        const bool isBusy = place.worker->state() == State::Busy;
        if (place.fontGeneration != m_fontGeneration && !isBusy)
            place.worker->end(WorkerEnd::Dismissed);
    }
}

void WorkerPool::assignJobs()
{
    while (Queue *const queue = nextQueue()) {
        const CountJob &job = *queue->begin()->second;
        Place *place = placeFor(job);
        if (!place)
            return;
        const bool isTaken = place->worker->count({.kind = job.kind,
                                                      .charset = job.charset,
                                                      .length = static_cast<quint64>(job.document.size()),
                                                      .rules = job.rules},
            job.document.descriptor());
        if (!isTaken)
            continue; // the worker has just ended, not because of the document
        place->job = std::move(queue->extract(queue->begin()).mapped());
    }
}

WorkerPool::Queue *WorkerPool::nextQueue()
{
    if (countOf(State::Busy) == m_maxBusy)
        return nullptr;
    const bool mayTakeLarge = !m_large.empty() && busyWithLarge() < m_maxLarge;
    if (!m_small.empty() && (!mayTakeLarge || m_small.begin()->first < m_large.begin()->first))
        return &m_small;
    return mayTakeLarge ? &m_large : nullptr;
}

// After a failure a document gets a worker that has counted nothing yet, because an earlier document may have
// damaged the old one.
WorkerPool::Place *WorkerPool::placeFor(const CountJob &job)
{
    Place *used = nullptr;
    for (Place &place : m_places) {
        if (place.worker->state() != State::Idle)
            continue;
        if (job.failures == 0 || !place.worker->hasCounted())
            return &place;
        used = &place;
    }
    if (used)
        used->worker->end(WorkerEnd::Dismissed);
    return nullptr;
}

void WorkerPool::startWorkers()
{
    size_t running = m_places.size() - countOf(State::Ending);
    while (running < wantedWorkers() && m_failedStarts < maxFailedStarts) {
        if (std::unique_ptr<WorkerProcess> worker = WorkerProcess::start(m_program, callbacks())) {
            m_places.push_back({std::move(worker), m_fontGeneration});
            ++running;
        } else {
            countFailedStart();
        }
    }
}

// One for each document that can be counted now, and a spare one for the next. A small first document has
// none until it is counted, so that the start of the spare does not slow it down.
size_t WorkerPool::wantedWorkers() const
{
    const size_t large = m_large.size() + busyWithLarge();
    const size_t small = m_small.size() + countOf(State::Busy) - busyWithLarge();
    const size_t needed = small + std::min(large, m_maxLarge);
    const bool needsSpare = m_hasAnswered || large > 0 || needed == 0;
    return std::min(needsSpare ? needed + 1 : needed, m_maxBusy);
}

void WorkerPool::countFailedStart()
{
    if (++m_failedStarts < maxFailedStarts)
        return;
    countingServiceLog().error(
        u"Workers keep ending before their first count; giving up until the next document");
    Queue jobs = std::exchange(m_small, {});
    jobs.merge(m_large);
    for (const auto &[number, job] : jobs)
        job->answer(CountFailure(CountFailure::Cause::NoWorker));
}

void WorkerPool::takeGreeting(const SandboxReport &sandbox)
{
    if (!m_small.empty() || !m_large.empty())
        m_failedStarts = 0;
    if (std::exchange(m_sandbox, sandbox) != sandbox)
        logSandbox(sandbox);
    schedule();
}

void WorkerPool::takeAnswer(WorkerProcess &worker, const CountJob::Outcome &outcome)
{
    m_hasAnswered = true;
    m_failedStarts = 0;
    const std::unique_ptr<CountJob> job = std::move(placeOf(worker).job);
    if (job->document.size() > maxSizeWithoutReplacement)
        worker.end(WorkerEnd::Dismissed);
    schedule();
    job->answer(outcome);
}

void WorkerPool::replace(WorkerProcess &worker, WorkerEnd end)
{
    Place &place = placeOf(worker);
    std::unique_ptr<CountJob> job = std::move(place.job);
    const bool isFailedStart = !worker.hasCounted() && end != WorkerEnd::Dismissed;
    place.worker.release()->deleteLater(); // called from one of its own functions
    m_places.erase(m_places.begin() + (&place - m_places.data()));
    if (isFailedStart)
        countFailedStart();
    if (job)
        retry(std::move(job), end);
    schedule();
}

void WorkerPool::retry(std::unique_ptr<CountJob> job, WorkerEnd end)
{
    // Another worker would need as much.
    if (end == WorkerEnd::OutOfProcessorTime)
        return job->answer(CountFailure(DocumentError(DocumentError::Cause::TooComplex, job->kind)));
    if (end == WorkerEnd::KilledFromOutside)
        ++job->interruptions;
    else
        ++job->failures;
    if (job->failures < maxFailures && job->interruptions < maxInterruptions)
        enqueue(std::move(job));
    else
        job->answer(CountFailure(CountFailure::Cause::WorkerFailed));
}
