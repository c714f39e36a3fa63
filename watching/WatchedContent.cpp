// SPDX-License-Identifier: MIT
#include "watching/WatchedContent.h"

#include "preferences/QBYUserDefaultsController.h"

#include <algorithm>

namespace {

/// Whether any later change of the file gives it another state. An absent file is created then.
bool isSettled(const std::optional<FileState> &state, std::chrono::nanoseconds timeOfDay)
{
    return !state
        || std::chrono::nanoseconds(std::max(state->modified, state->changed))
            + WatchedContent::stampGranularity
        <= timeOfDay;
}

} // namespace

WatchedContent::Look WatchedContent::look(const QByteArray &path) const
{
    return {.document = fileStateAt(path),
        .preferences = fileStateAt(QBYUserDefaultsController::sharedUserDefaults().path()),
        .time = m_clock.now(),
        .timeOfDay = m_clock.timeOfDay()};
}

bool WatchedContent::hasSamePreferences(const Look &look) const
{
    return look.preferences == m_given.preferences && isSettled(m_given.preferences, m_given.timeOfDay);
}

bool WatchedContent::isUnchanged(const Look &look) const
{
    return m_isCounted && look.document && look.document == m_seen.document
        && isSettled(m_seen.document, m_seen.timeOfDay) && look.time - m_seen.time < maxTrust
        && hasSamePreferences(look);
}

std::optional<ContentHash> WatchedContent::knownHash(const Look &look) const
{
    return m_text || (m_isCounted && hasSamePreferences(look)) ? m_hash : std::nullopt;
}

std::optional<AttributedString> WatchedContent::update(const Look &look, const ChangedDocument &document)
{
    const bool isNew = document.text.has_value();
    if (!isNew && document.hash != m_hash)
        return std::nullopt; // what was known has been forgotten meanwhile
    m_seen = look;
    if (!isNew && m_isCounted)
        return std::nullopt;
    // The same text under the same preferences keeps its number: it may be counted at this moment.
    if (isNew || !hasSamePreferences(look)) {
        m_given = look;
        ++m_number;
    }
    if (isNew) {
        m_hash = document.hash;
        m_text = document.text;
    }
    m_isCounted = false;
    return m_text;
}

void WatchedContent::forget()
{
    m_hash.reset();
    m_text.reset();
    m_isCounted = false;
    ++m_number;
}

void WatchedContent::setCounted(quint64 number)
{
    if (number != m_number)
        return;
    m_isCounted = true;
    m_text.reset();
}
