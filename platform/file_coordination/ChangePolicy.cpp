// SPDX-License-Identifier: MIT
#include "platform/file_coordination/ChangePolicy.h"

#include <algorithm>

ChangePolicy::ChangePolicy(const std::optional<FileState> &known)
    : m_known(known)
    , m_lastSeen(known)
{
}

void ChangePolicy::note(FileEvent event, Clock::Time now)
{
    m_lastActivity = now;
    switch (event) {
    case FileEvent::Written:
    case FileEvent::Created:
    case FileEvent::Unknown:
        m_isWritten = true;
        m_isFinished = false;
        break;
    case FileEvent::Replaced:
        m_isWritten = true;
        m_isFinished = true;
        break;
    case FileEvent::Closed:
        m_isFinished = true;
        break;
    case FileEvent::Gone:
    case FileEvent::FolderMoved:
        break;
    }
}

ChangePolicy::Verdict ChangePolicy::look(const FileSighting &seen, Clock::Time now)
{
    if (!seen.state)
        return lookWithoutFile(seen, now);
    m_missingSince.reset();
    if (seen.state != m_lastSeen)
        m_lastActivity = now;
    m_lastSeen = seen.state;
    // Writing through mapped memory has no event but the final closing, and shows only in the times. Most
    // files that are closed unchanged were just opened for writing.
    if (!m_isWritten && m_known == seen.state) {
        m_isFinished = false;
        return {};
    }
    if (!m_changedSince)
        m_changedSince = now;
    // An empty file will usually get its contents soon.
    const bool isWhole = m_isFinished && seen.state->size > 0;
    const Clock::Time settled = std::min(m_lastActivity + quiet, *m_changedSince + maxDelay);
    if (!isWhole && now < settled)
        return {std::nullopt, settled};
    if (m_lastReport && now < *m_lastReport + burst)
        return {std::nullopt, *m_lastReport + burst};
    const Clock::Time lockDeadline = std::min(m_lastActivity + lockTimeout, *m_changedSince + maxLockDelay);
    if (now < lockDeadline && seen.isLocked && seen.isLocked())
        return {std::nullopt, lockDeadline};
    m_known = seen.state;
    m_isWritten = false;
    m_isFinished = false;
    m_changedSince.reset();
    m_lastReport = now;
    return {FileNews{FileNews::Kind::Changed, {}}, std::nullopt};
}

bool ChangePolicy::isQuiet(Clock::Time now) const
{
    return !m_changedSince && now >= m_lastActivity + lockTimeout;
}

ChangePolicy::Verdict ChangePolicy::lookWithoutFile(const FileSighting &seen, Clock::Time now)
{
    // There never was a file; it may still appear.
    if (!m_known)
        return {};
    if (!m_missingSince)
        m_missingSince = now;
    if (now < *m_missingSince + grace)
        return {std::nullopt, *m_missingSince + grace};
    if (!seen.whereabouts)
        return {FileNews{FileNews::Kind::Deleted, {}}, std::nullopt};
    const bool hasChangedToo =
        m_isWritten || !seen.stateThere || !haveSameContents(*seen.stateThere, *m_known);
    return {FileNews{FileNews::Kind::Moved, *seen.whereabouts, hasChangedToo}, std::nullopt};
}
