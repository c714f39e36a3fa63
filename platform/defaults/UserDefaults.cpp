// SPDX-License-Identifier: MIT
#include "platform/defaults/UserDefaults.h"

#include "platform/defaults/SuiteFolder.h"
#include "platform/logging/LogChannel.h"
#include "platform/system/SystemError.h"

#include <QFile>
#include <QStandardPaths>

#include <cerrno>

#include <algorithm>
#include <cmath>

namespace {

constexpr std::chrono::milliseconds timeoutAfterFirst(20);

QByteArray folderOfSuites()
{
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/quillbay"));
}

} // namespace

UserDefaults::UserDefaults(const QString &suiteName, std::chrono::milliseconds timeout)
    : m_suiteName(suiteName)
    , m_folder(folderOfSuites())
    , m_timeout(timeout)
    , m_database(m_folder + '/' + QFile::encodeName(suiteName) + ".sqlite3")
{
}

Result<std::optional<DefaultsValue>, SuiteFault> UserDefaults::readObjectForKey(const QString &key) const
{
    if (key.size() > maximalKeyLength)
        return std::optional<DefaultsValue>();
    const std::lock_guard guard(m_mutex);
    m_database.setTimeout(timeout(m_reading));
    auto value = m_database.read(key);
    note(m_reading, value ? std::nullopt : std::optional(value.error()));
    return value;
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

bool UserDefaults::setBool(bool value, const QString &forKey)
{
    return setObject(value, forKey);
}

bool UserDefaults::setInteger(qint64 value, const QString &forKey)
{
    return setObject(value, forKey);
}

bool UserDefaults::setDouble(double value, const QString &forKey)
{
    return setObject(value, forKey);
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
    const auto acceptable = [this](const DefaultsEntry &entry) { return isAcceptable(entry); };
    if (!std::all_of(entries.begin(), entries.end(), acceptable))
        return false;
    const std::lock_guard lock(m_mutex);
    const auto fault = writeUnderLock(entries, guard);
    note(m_writing, fault);
    return !fault;
}

std::optional<SuiteFault> UserDefaults::writeUnderLock(
    const std::vector<DefaultsEntry> &entries, const std::optional<QString> &guard)
{
    if (const int error = makeFolder(m_folder))
        return SuiteFault{SuiteFault::Kind::Other, systemErrorText(error)};
    const FolderLock lock(m_folder, timeout(m_writing));
    if (lock.error() == EWOULDBLOCK)
        return SuiteFault{SuiteFault::Kind::Busy, QStringLiteral("another process keeps it locked")};
    if (lock.error() != 0)
        return SuiteFault{SuiteFault::Kind::Other, systemErrorText(lock.error())};
    m_database.setTimeout(timeout(m_writing));
    auto fault = m_database.write(entries, guard);
    if (!fault || fault->kind != SuiteFault::Kind::Broken)
        return fault;
    // The write has just looked at what the path leads to, and nobody else may change that while the lock is
    // held: what is put aside is what was found broken.
    if (auto failure = putBrokenFileAside(*fault))
        return failure;
    return m_database.write(entries, guard);
}

std::optional<SuiteFault> UserDefaults::putBrokenFileAside(const SuiteFault &fault)
{
    const QByteArray path = putAside(m_database.path());
    if (path.isEmpty())
        return SuiteFault{
            SuiteFault::Kind::Other, fault.reason + QStringLiteral("; ") + systemErrorText(errno)};
    LogChannel::standard().notice(u"Preference suite {} could not be used: {}. It is kept as {}",
        {publicly(m_suiteName), publicly(fault.reason),
            publicly(QFile::decodeName(path.sliced(path.lastIndexOf('/') + 1)))});
    return std::nullopt;
}

bool UserDefaults::isAcceptable(const DefaultsEntry &entry) const
{
    QString reason;
    const auto *number = std::get_if<double>(&entry.value);
    const auto *text = std::get_if<QString>(&entry.value);
    if (entry.key.size() > maximalKeyLength)
        reason = QStringLiteral("its key is too long");
    else if (number && !std::isfinite(*number))
        reason = QStringLiteral("it is not a finite number");
    else if (text && text->size() > maximalTextLength)
        reason = QStringLiteral("it is too long");
    else
        return true;
    LogChannel::standard().error(u"Preference suite {} refuses a value for {}: {}",
        {publicly(m_suiteName), publicly(entry.key.left(maximalKeyLength)), publicly(reason)});
    return false;
}

void UserDefaults::note(Episode &episode, const std::optional<SuiteFault> &fault) const
{
    // What prevents both reading and writing is one fault.
    const Episode &other = &episode == &m_reading ? m_writing : m_reading;
    if (fault && episode.reason.isEmpty() && other.reason != fault->reason)
        LogChannel::standard().error(episode.message, {publicly(m_suiteName), publicly(fault->reason)});
    episode.reason = fault ? fault->reason : QString();
    episode.waitedInVain = fault && fault->kind == SuiteFault::Kind::Busy;
}

std::chrono::milliseconds UserDefaults::timeout(const Episode &episode) const
{
    return episode.waitedInVain ? std::min(m_timeout, timeoutAfterFirst) : m_timeout;
}
