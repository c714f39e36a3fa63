// SPDX-License-Identifier: MIT
#include "platform/defaults/UserDefaults.h"

#include "platform/database/DatabaseFolder.h"
#include "platform/logging/LogChannel.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>

namespace {

constexpr std::chrono::milliseconds timeoutAfterExpiry(20);

QByteArray folderOfSuites()
{
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/quillbay"));
}

} // namespace

UserDefaults::UserDefaults(const QString &suiteName, std::chrono::milliseconds timeout)
    : m_suiteName(suiteName)
    , m_timeout(timeout)
    , m_database(folderOfSuites() + '/' + QFile::encodeName(suiteName) + ".sqlite3")
{
}

Result<std::optional<DefaultsValue>, SuiteFault> UserDefaults::readObjectForKey(const QString &key) const
{
    if (key.size() > maxKeyLength)
        return std::optional<DefaultsValue>();
    const std::lock_guard guard(m_mutex);
    m_database.setTimeout(timeout(m_reading));
    auto value = m_database.read(key);
    recordOutcome(m_reading, value ? std::nullopt : std::optional(value.error()));
    if (value && value.value())
        return value;
    auto fallback = fallbackValueOf(key);
    return fallback ? Result<std::optional<DefaultsValue>, SuiteFault>(std::move(fallback)) : value;
}

std::optional<DefaultsValue> UserDefaults::fallbackValueOf(const QString &key) const
{
    const auto found = std::find_if(m_fallbackValues.begin(), m_fallbackValues.end(),
        [&key](const DefaultsEntry &entry) { return entry.key == key; });
    return found == m_fallbackValues.end() ? std::nullopt : std::optional(found->value);
}

void UserDefaults::setFallbackValues(std::vector<DefaultsEntry> values)
{
    const std::lock_guard guard(m_mutex);
    m_fallbackValues = std::move(values);
}

bool UserDefaults::hasFallbackValues() const
{
    const std::lock_guard guard(m_mutex);
    return !m_fallbackValues.empty();
}

std::optional<QString> UserDefaults::writeFault() const
{
    const std::lock_guard guard(m_mutex);
    return m_writing.reason.isEmpty() ? std::nullopt : std::optional(m_writing.reason);
}

std::optional<DefaultsValue> UserDefaults::objectForKey(const QString &key) const
{
    auto value = readObjectForKey(key);
    return value ? std::move(value).value() : std::nullopt;
}

bool UserDefaults::boolForKey(const QString &key) const
{
    const auto value = objectForKey(key);
    return value && boolValue(*value);
}

qint64 UserDefaults::integerForKey(const QString &key) const
{
    const auto value = objectForKey(key);
    return value ? integerValue(*value) : 0;
}

bool UserDefaults::setObject(const DefaultsValue &value, const QString &forKey)
{
    return setObjects({{forKey, value}});
}

bool UserDefaults::setObjects(const std::vector<DefaultsEntry> &entries)
{
    return write(entries, std::nullopt);
}

bool UserDefaults::setObjectsUnless(const QString &guard, const std::vector<DefaultsEntry> &entries)
{
    return write(entries, guard);
}

bool UserDefaults::write(const std::vector<DefaultsEntry> &entries, const std::optional<QString> &guard)
{
    const auto canStore = [this](const DefaultsEntry &entry) { return canBeStored(entry); };
    if (!std::all_of(entries.begin(), entries.end(), canStore))
        return false;
    const std::lock_guard lock(m_mutex);
    const auto fault = writeInFolder(
        m_database.file(), timeout(m_writing), [&] { return m_database.write(entries, guard); },
        [this](const SuiteFault &broken, const QByteArray &newName) { logPutAside(broken, newName); });
    recordOutcome(m_writing, fault);
    return !fault;
}

void UserDefaults::logPutAside(const SuiteFault &fault, const QByteArray &newName) const
{
    LogChannel::standard().notice(u"Preference suite {} could not be used: {}; renamed it to {}",
        {publicly(m_suiteName), publicly(fault.reason), publicly(QFile::decodeName(newName))});
}

bool UserDefaults::canBeStored(const DefaultsEntry &entry) const
{
    QString reason;
    const auto *number = std::get_if<double>(&entry.value);
    const auto *text = std::get_if<QString>(&entry.value);
    if (entry.key.size() > maxKeyLength)
        reason = QStringLiteral("its key is too long");
    else if (number && !std::isfinite(*number))
        reason = QStringLiteral("it is not a finite number");
    else if (text && text->size() > maxTextLength)
        reason = QStringLiteral("it is too long");
    else
        return true;
    LogChannel::standard().error(u"Preference suite {} refuses a value for {}: {}",
        {publicly(m_suiteName), publicly(entry.key.left(maxKeyLength)), publicly(reason)});
    return false;
}

void UserDefaults::recordOutcome(Episode &episode, const std::optional<SuiteFault> &fault) const
{
    // A fault of both reading and writing is logged once.
    const Episode &other = &episode == &m_reading ? m_writing : m_reading;
    if (fault && episode.reason.isEmpty() && other.reason != fault->reason)
        LogChannel::standard().error(episode.message, {publicly(m_suiteName), publicly(fault->reason)});
    episode.reason = fault ? fault->reason : QString();
    episode.hasTimedOut = fault && fault->kind == SuiteFault::Kind::Busy;
}

std::chrono::milliseconds UserDefaults::timeout(const Episode &episode) const
{
    return episode.hasTimedOut ? std::min(m_timeout, timeoutAfterExpiry) : m_timeout;
}
