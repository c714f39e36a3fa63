// SPDX-License-Identifier: MIT
#include "platform/file_coordination/CoordinatedAccess.h"

#include "platform/system/FileURL.h"

#include <QScopedValueRollback>

#include <utility>

namespace {

constexpr std::chrono::milliseconds lookInterval{20};
// Longer than the grace period: a presenter must learn that the file was moved before it finds nothing to
// read.
constexpr std::chrono::milliseconds timeoutForMissing = ChangePolicy::grace + 5 * lookInterval;
// For all obstacles together.
constexpr std::chrono::seconds maxWait{10};
constexpr int maxReads = 3; // of a file that changes while it is read; its next change is reported anyway

bool isUnchanged(const std::optional<FileState> &before, const std::optional<FileState> &after)
{
    return before && after ? haveSameContents(*before, *after) : !before && !after;
}

} // namespace

Relinquishment::Relinquishment(const QByteArray &path, Party party, const FilePresenter *except)
{
    for (const std::shared_ptr<FilePresentation> &presentation : FilePresentations::instance().at(path)) {
        if (presentation->presenter() == except || presentation->hasEnded())
            continue;
        m_presentations.push_back(presentation);
        presentation->lend();
        const auto block = [answers = m_answers](const FilePresenter::Reacquirer &reacquirer) {
            ++answers->count;
            if (answers->isOver)
                reacquirer();
            else
                answers->reacquirers.push_back(reacquirer);
        };
        if (party == Party::Reader)
            presentation->presenter()->relinquishPresentedItemToReader(block);
        else
            presentation->presenter()->relinquishPresentedItemToWriter(block);
    }
}

Relinquishment::~Relinquishment()
{
    m_answers->isOver = true;
    for (const FilePresenter::Reacquirer &reacquirer : m_answers->reacquirers)
        reacquirer();
    for (const std::shared_ptr<FilePresentation> &presentation : m_presentations)
        presentation->takeBack();
}

bool Relinquishment::isComplete() const
{
    return m_answers->count >= m_presentations.size();
}

std::optional<CoordinationError> CoordinatedAccess::read(
    const QUrl &url, const FileCoordinator::Accessor &accessor)
{
    if (m_isRunning)
        return std::nullopt;
    const QScopedValueRollback running(m_isRunning, true);
    const QByteArray path = pathOfFileURL(url);
    const Relinquishment relinquishment(path, Relinquishment::Party::Reader, m_presenter);
    if (!waitFor(relinquishment))
        return CoordinationError{CoordinationError::Cause::NotRelinquished};
    const std::optional<CoordinationError> error = readInTurn(url, path, accessor);
    if (const auto followed = presentation())
        followed->lookAfterReading();
    return error;
}

std::optional<CoordinationError> CoordinatedAccess::readInTurn(
    const QUrl &url, const QByteArray &path, const FileCoordinator::Accessor &accessor)
{
    m_read = {};
    m_read.path = path;
    for (int reads = 0; reads < maxReads && !m_isAbandoned;) {
        const Obstacle obstacle = waitForTurn(path);
        if (mustEndUnread(obstacle))
            return std::nullopt;
        m_read.before = fileStateAt(path);
        m_read.mustRepeat = false;
        m_read.hasWaitedForFile = obstacle == Obstacle::Missing;
        m_wasEmpty = m_read.before && m_read.before->size == 0;
        accessor(url);
        if (m_read.isLeftToWriter)
            return CoordinationError{CoordinationError::Cause::LockedByWriter};
        if (m_read.mustRepeat) {
            m_clock.pause(lookInterval);
            continue;
        }
        if (isUnchanged(m_read.before, fileStateAt(path)))
            return std::nullopt;
        ++reads;
    }
    return std::nullopt;
}

bool CoordinatedAccess::willRetry()
{
    if (m_isAbandoned || !m_isRunning)
        return false;
    if (!m_read.failingSince)
        m_read.failingSince = m_clock.now();
    // The file may also disappear between the look that grants the turn and the read; then it is worth
    // waiting.
    const bool isMissing = m_read.hasWaitedForFile && !fileStateAt(m_read.path);
    m_read.mustRepeat = !isMissing && m_clock.now() - *m_read.failingSince < ChangePolicy::grace;
    if (m_read.mustRepeat)
        return true;
    const auto followed = presentation();
    m_read.isLeftToWriter = followed && isLockedByWriter(m_read.path);
    if (m_read.isLeftToWriter)
        followed->reportChangeOnceUnlocked();
    return m_read.isLeftToWriter;
}

std::optional<CoordinationError> CoordinatedAccess::write(
    const QUrl &url, const FileCoordinator::Accessor &accessor)
{
    if (m_isRunning)
        return std::nullopt;
    const QScopedValueRollback running(m_isRunning, true);
    const Relinquishment relinquishment(pathOfFileURL(url), Relinquishment::Party::Writer, m_presenter);
    if (!waitFor(relinquishment))
        return CoordinationError{CoordinationError::Cause::NotRelinquished};
    if (!m_isAbandoned)
        accessor(url);
    return std::nullopt;
}

/// The obstacle that is left after its timeout, or that is not waited for here.
CoordinatedAccess::Obstacle CoordinatedAccess::waitForTurn(const QByteArray &path)
{
    const Clock::Time start = m_clock.now();
    std::pair<Obstacle, std::optional<FileState>> last{Obstacle::None, {}};
    Clock::Time since = start; // the start of the obstacle, or the last change of the file
    for (;;) {
        const std::optional<FileState> state = fileStateAt(path);
        const Obstacle obstacle = obstacleAt(path, state);
        const Clock::Time now = m_clock.now();
        if (std::exchange(last, {obstacle, state}) != std::pair(obstacle, state))
            since = now; // several saves in a row: each may remove the name for a moment
        if (obstacle == Obstacle::None || now - since >= timeoutFor(obstacle) || now - start >= maxWait)
            return obstacle;
        // Waiting for a writer here would delay the accesses to other files: this call may run in the event
        // loop of another access, which cannot continue before this one returns.
        const auto followed = presentation();
        if (followed && obstacle == Obstacle::Lock)
            return obstacle;
        if (followed)
            followed->look();
        if (m_isAbandoned)
            return Obstacle::None;
        m_clock.pause(lookInterval);
        if (m_isAbandoned)
            return Obstacle::None;
    }
}

CoordinatedAccess::Obstacle CoordinatedAccess::obstacleAt(
    const QByteArray &path, const std::optional<FileState> &state) const
{
    if (!state)
        return Obstacle::Missing;
    if (isLockedByWriter(path))
        return Obstacle::Lock;
    return state->size == 0 && !m_wasEmpty ? Obstacle::Empty : Obstacle::None;
}

/// Whether it was abandoned, or a change will be reported once the writer is quiet.
bool CoordinatedAccess::mustEndUnread(Obstacle obstacle) const
{
    const auto followed = m_isAbandoned || obstacle != Obstacle::Lock ? nullptr : presentation();
    const bool isLeftToChange = followed && !followed->mayBeReadWhileLocked(); // may report a change
    return m_isAbandoned || isLeftToChange;
}

std::chrono::milliseconds CoordinatedAccess::timeoutFor(Obstacle obstacle)
{
    switch (obstacle) {
    case Obstacle::None:
        return std::chrono::milliseconds(0);
    case Obstacle::Missing:
        return timeoutForMissing;
    case Obstacle::Empty:
        return ChangePolicy::quiet;
    case Obstacle::Lock:
        break;
    }
    return ChangePolicy::lockTimeout;
}

bool CoordinatedAccess::waitFor(const Relinquishment &relinquishment)
{
    const Clock::Time start = m_clock.now();
    while (!relinquishment.isComplete() && m_clock.now() - start < FileCoordinator::timeout)
        m_clock.pause(lookInterval);
    return relinquishment.isComplete();
}

/// That of the presenter on whose behalf the file is accessed; null if there is none.
std::shared_ptr<FilePresentation> CoordinatedAccess::presentation() const
{
    return FilePresentations::instance().of(m_presenter);
}
