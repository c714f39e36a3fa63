// SPDX-License-Identifier: MIT
#include "platform/file_coordination/CoordinatedAccess.h"

#include "platform/file_coordination/FilePresentations.h"
#include "platform/file_coordination/WriterLock.h"
#include "platform/system/FileURL.h"

#include <QScopedValueRollback>

#include <utility>

namespace {

constexpr std::chrono::milliseconds betweenLooks{20};
// Longer than the grace: a presenter must hear that the file has moved before it finds nothing to read.
constexpr std::chrono::milliseconds timeoutForMissing = ChangePolicy::grace + 5 * betweenLooks;
// Whatever the obstacles are, in all.
constexpr std::chrono::seconds maxWait{10};
constexpr int maxReads = 3; // of a file that changes while it is read; its next change is told anyway

bool isUnchanged(const std::optional<FileState> &before, const std::optional<FileState> &after)
{
    return before && after ? haveSameContents(*before, *after) : !before && !after;
}

} // namespace

std::optional<CoordinationError> CoordinatedAccess::read(
    const QUrl &url, const FileCoordinator::Accessor &accessor)
{
    if (m_isUnderWay)
        return std::nullopt;
    const QScopedValueRollback underWay(m_isUnderWay, true);
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
        if (isToEndUnread(obstacle))
            return std::nullopt;
        m_read.before = fileStateAt(path);
        m_read.isToBeRepeated = false;
        m_read.isWaitedFor = obstacle == Obstacle::Missing;
        m_wasEmpty = m_read.before && m_read.before->size == 0;
        accessor(url);
        if (m_read.isLeftToWriter)
            return CoordinationError{CoordinationError::Cause::LockedByWriter};
        if (m_read.isToBeRepeated) {
            m_clock.pause(betweenLooks);
            continue;
        }
        if (isUnchanged(m_read.before, fileStateAt(path)))
            return std::nullopt;
        ++reads;
    }
    return std::nullopt;
}

bool CoordinatedAccess::triesAgain()
{
    if (m_isAbandoned || !m_isUnderWay)
        return false;
    if (!m_read.failingSince)
        m_read.failingSince = m_clock.now();
    // A name may also go between the look that grants the turn and the reading; that one is still to be
    // waited for.
    const bool isMissing = m_read.isWaitedFor && !fileStateAt(m_read.path);
    m_read.isToBeRepeated = !isMissing && m_clock.now() - *m_read.failingSince < ChangePolicy::grace;
    if (m_read.isToBeRepeated)
        return true;
    const auto followed = presentation();
    m_read.isLeftToWriter = followed && isLockedByWriter(m_read.path);
    if (m_read.isLeftToWriter)
        followed->tellChangeOnceUnlocked();
    return m_read.isLeftToWriter;
}

std::optional<CoordinationError> CoordinatedAccess::write(
    const QUrl &url, const FileCoordinator::Accessor &accessor)
{
    if (m_isUnderWay)
        return std::nullopt;
    const QScopedValueRollback underWay(m_isUnderWay, true);
    const Relinquishment relinquishment(pathOfFileURL(url), Relinquishment::Party::Writer, m_presenter);
    if (!waitFor(relinquishment))
        return CoordinationError{CoordinationError::Cause::NotRelinquished};
    if (!m_isAbandoned)
        accessor(url);
    return std::nullopt;
}

/// The obstacle that has outlasted the timeout for it, or is not to be waited for here.
CoordinatedAccess::Obstacle CoordinatedAccess::waitForTurn(const QByteArray &path)
{
    const Clock::Time start = m_clock.now();
    std::pair<Obstacle, std::optional<FileState>> last{Obstacle::None, {}};
    Clock::Time since = start; // when the obstacle came up, or the file behind it changed
    for (;;) {
        const std::optional<FileState> state = fileStateAt(path);
        const Obstacle obstacle = obstacleAt(path, state);
        const Clock::Time now = m_clock.now();
        if (std::exchange(last, {obstacle, state}) != std::pair(obstacle, state))
            since = now; // several saves in a row: each may take the name away for a moment
        if (obstacle == Obstacle::None || now - since >= timeoutFor(obstacle) || now - start >= maxWait)
            return obstacle;
        // To wait for a writer in here would delay the accesses to other files that are waited for further
        // out: a wait that is served from the events of another one ends before it.
        const auto followed = presentation();
        if (followed && obstacle == Obstacle::Lock)
            return obstacle;
        if (followed)
            followed->look();
        if (m_isAbandoned)
            return Obstacle::None;
        m_clock.pause(betweenLooks);
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

/// Whether it was abandoned, or is left to the change that will be told once the writer is quiet.
bool CoordinatedAccess::isToEndUnread(Obstacle obstacle) const
{
    const auto followed = m_isAbandoned || obstacle != Obstacle::Lock ? nullptr : presentation();
    const bool isLeftToChange = followed && !followed->mayBeReadWhileLocked(); // tells what is due
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
        m_clock.pause(betweenLooks);
    return relinquishment.isComplete();
}

/// That of the presenter on whose behalf the file is accessed; null where there is none.
std::shared_ptr<FilePresentation> CoordinatedAccess::presentation() const
{
    return FilePresentations::instance().of(m_presenter);
}
