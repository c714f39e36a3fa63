// SPDX-License-Identifier: MIT
#include "platform/file_coordination/CoordinatedAccess.h"

#include "platform/base/FileURL.h"
#include "platform/file_coordination/FilePresentations.h"
#include "platform/file_coordination/WriterLock.h"

#include <QScopedValueRollback>

#include <utility>

namespace {

constexpr std::chrono::milliseconds betweenLooks{20};
// Longer than the grace: a presenter must hear that the file has moved before it finds nothing to read.
constexpr std::chrono::milliseconds patienceWithMissing = ChangePolicy::grace + 5 * betweenLooks;
// Whatever the obstacles are, in all.
constexpr std::chrono::seconds longestWait{10};
constexpr int mostReads = 3; // of a file that changes while it is read; its next change is told anyway

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
    return readInTurn(url, path, accessor);
}

std::optional<CoordinationError> CoordinatedAccess::readInTurn(
    const QUrl &url, const QByteArray &path, const FileCoordinator::Accessor &accessor)
{
    m_read = {};
    m_read.path = path;
    for (int reads = 0; reads < mostReads && !m_isAbandoned;) {
        const Obstacle obstacle = waitForTurn(path);
        if (obstacle == Obstacle::Lock)
            return refuseForLock();
        if (m_isAbandoned)
            return std::nullopt;
        m_read.before = fileStateAt(path);
        m_read.isToBeRepeated = false;
        m_read.isWaitedFor = obstacle == Obstacle::Missing;
        m_wasEmpty = m_read.before && m_read.before->size == 0;
        accessor(url);
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
    return m_read.isToBeRepeated;
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

/// The obstacle that has outlasted the patience with it.
CoordinatedAccess::Obstacle CoordinatedAccess::waitForTurn(const QByteArray &path)
{
    const Clock::Time start = m_clock.now();
    Obstacle last = Obstacle::None;
    Clock::Time since = start; // when the obstacle came up
    for (;;) {
        const Obstacle obstacle = obstacleAt(path);
        const Clock::Time now = m_clock.now();
        if (std::exchange(last, obstacle) != obstacle)
            since = now; // several saves in a row: each may take the name away for a moment
        if (obstacle == Obstacle::None || now - since >= patienceWith(obstacle) || now - start >= longestWait)
            return obstacle;
        if (const auto presentation = FilePresentations::instance().of(m_presenter))
            presentation->look();
        if (m_isAbandoned)
            return Obstacle::None;
        m_clock.pause(betweenLooks);
        if (m_isAbandoned)
            return Obstacle::None;
    }
}

CoordinatedAccess::Obstacle CoordinatedAccess::obstacleAt(const QByteArray &path) const
{
    const std::optional<FileState> state = fileStateAt(path);
    if (!state)
        return Obstacle::Missing;
    if (isLockedByWriter(path))
        return Obstacle::Lock;
    return state->size == 0 && !m_wasEmpty ? Obstacle::Empty : Obstacle::None;
}

std::chrono::milliseconds CoordinatedAccess::patienceWith(Obstacle obstacle)
{
    switch (obstacle) {
    case Obstacle::None:
        return std::chrono::milliseconds(0);
    case Obstacle::Missing:
        return patienceWithMissing;
    case Obstacle::Empty:
        return ChangePolicy::quiet;
    case Obstacle::Lock:
        break;
    }
    return FileCoordinator::patience;
}

bool CoordinatedAccess::waitFor(const Relinquishment &relinquishment)
{
    const Clock::Time start = m_clock.now();
    while (!relinquishment.isComplete() && m_clock.now() - start < FileCoordinator::patience)
        m_clock.pause(betweenLooks);
    return relinquishment.isComplete();
}

std::optional<CoordinationError> CoordinatedAccess::refuseForLock()
{
    if (const auto presentation = FilePresentations::instance().of(m_presenter))
        presentation->tellChangeOnceUnlocked();
    return CoordinationError{CoordinationError::Cause::LockedByWriter};
}
