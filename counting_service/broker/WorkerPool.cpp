// SPDX-License-Identifier: MIT
#include "counting_service/broker/WorkerPool.h"

#include "counting_service/broker/ServiceLog.h"

#include <QThread>

#include <algorithm>
#include <utility>

namespace {

using State = WorkerProcess::State;

} // namespace

WorkerPool::WorkerPool(WorkerProgram program, int workers)
    : m_program(std::move(program))
    , m_mostBusy(static_cast<size_t>(workers))
{
}

WorkerPool::~WorkerPool() = default;

int WorkerPool::workersOfThisMachine()
{
    return std::clamp(QThread::idealThreadCount(), 1, mostWorkers);
}

void WorkerPool::setFontGeneration(quint64 generation)
{
    if (std::exchange(m_fontGeneration, generation) != generation)
        arrange();
}

void WorkerPool::add(CountJob job)
{
    if (m_failedStarts >= mostFailedStarts)
        m_failedStarts = 0; // whatever was wrong may be over
    m_queue.push_back(std::make_unique<CountJob>(std::move(job)));
    arrange();
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

size_t WorkerPool::jobCount() const
{
    const auto atWork = std::count_if(
        m_places.begin(), m_places.end(), [](const Place &place) { return place.job != nullptr; });
    return m_queue.size() + static_cast<size_t>(atWork);
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
        .ready = [this](WorkerProcess &, const SandboxReport &sandbox) { welcome(sandbox); },
        .answered = [this](WorkerProcess &worker,
                        const CountJob::Outcome &outcome) { takeAnswer(worker, outcome); },
        .ended = [this](WorkerProcess &worker, WorkerEnd end) { replace(worker, end); },
    };
}

void WorkerPool::arrange()
{
    dismissOutdatedWorkers();
    handOutJobs();
    startWorkers();
}

void WorkerPool::dismissOutdatedWorkers()
{
    for (const Place &place : m_places) {
        const bool isAtWork = place.worker->state() == State::Busy;
        if (place.fontGeneration != m_fontGeneration && !isAtWork)
            place.worker->end(WorkerEnd::Dismissed);
    }
}

void WorkerPool::handOutJobs()
{
    while (!m_queue.empty() && countOf(State::Busy) < m_mostBusy) {
        Place *place = placeFor(*m_queue.front());
        if (!place)
            return;
        const CountJob &job = *m_queue.front();
        const bool isTaken = place->worker->count(
            job.kind, static_cast<quint64>(job.document.size()), job.rules, job.document.descriptor());
        if (!isTaken)
            continue; // it has just ended, which is none of the document's doing
        place->job = std::move(m_queue.front());
        m_queue.pop_front();
    }
}

// A document over which a worker has ended gets a fresh one, since what the worker had counted before may
// have had its part in it.
WorkerPool::Place *WorkerPool::placeFor(const CountJob &job)
{
    Place *used = nullptr;
    for (Place &place : m_places) {
        if (place.worker->state() != State::Idle)
            continue;
        if (job.failures == 0 || !place.worker->hasWorked())
            return &place;
        used = &place;
    }
    if (used)
        used->worker->end(WorkerEnd::Dismissed);
    return nullptr;
}

void WorkerPool::startWorkers()
{
    size_t living = m_places.size() - countOf(State::Ending);
    while (living < wantedWorkers() && m_failedStarts < mostFailedStarts) {
        if (std::unique_ptr<WorkerProcess> worker = WorkerProcess::start(m_program, callbacks())) {
            m_places.push_back({std::move(worker), m_fontGeneration});
            ++living;
        } else {
            noteFailedStart();
        }
    }
}

// One for each document that may be counted now, and a spare one. That one waits until the first answer is
// out: before, it would only hinder the worker that others wait for.
size_t WorkerPool::wantedWorkers() const
{
    const size_t needed = std::min(jobCount(), m_mostBusy);
    return m_hasAnswered ? needed + 1 : std::max<size_t>(needed, 1);
}

void WorkerPool::noteFailedStart()
{
    if (++m_failedStarts < mostFailedStarts)
        return;
    countingServiceLog().error(u"No worker stays alive until it has counted something");
    const auto given = std::exchange(m_queue, {});
    for (const std::unique_ptr<CountJob> &job : given)
        job->answer(CountFailure(CountFailure::Cause::NoWorker));
}

void WorkerPool::welcome(const SandboxReport &sandbox)
{
    if (!m_queue.empty())
        m_failedStarts = 0;
    if (std::exchange(m_sandbox, sandbox) != sandbox)
        countingServiceLog().info(u"The workers' sandbox: {}", {publicly(sandboxDescription(sandbox))});
    arrange();
}

void WorkerPool::takeAnswer(WorkerProcess &worker, const CountJob::Outcome &outcome)
{
    m_hasAnswered = true;
    m_failedStarts = 0;
    const std::unique_ptr<CountJob> job = std::move(placeOf(worker).job);
    if (job->document.size() > largestWithoutReplacement)
        worker.end(WorkerEnd::Dismissed);
    arrange();
    job->answer(outcome);
}

void WorkerPool::replace(WorkerProcess &worker, WorkerEnd end)
{
    Place &place = placeOf(worker);
    std::unique_ptr<CountJob> job = std::move(place.job);
    const bool isFailedStart = !worker.hasWorked() && end != WorkerEnd::Dismissed;
    place.worker.release()->deleteLater(); // it is its own function that called
    m_places.erase(m_places.begin() + (&place - m_places.data()));
    if (isFailedStart)
        noteFailedStart();
    if (job)
        tryAgain(std::move(job), end);
    arrange();
}

void WorkerPool::tryAgain(std::unique_ptr<CountJob> job, WorkerEnd end)
{
    if (end == WorkerEnd::KilledFromOutside)
        ++job->interruptions;
    else
        ++job->failures;
    if (job->failures < mostFailures && job->interruptions < mostInterruptions)
        m_queue.push_front(std::move(job));
    else
        job->answer(CountFailure(CountFailure::Cause::WorkerFailed));
}
