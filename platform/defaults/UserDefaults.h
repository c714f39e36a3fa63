// SPDX-License-Identifier: MIT
// UserDefaults is a suite of key-value pairs on disk that all processes of the user share.
// Thread: any.  Owner: anyone; several objects and processes may have the same suite open.
#pragma once

#include "platform/defaults/DefaultsValue.h"
#include "platform/defaults/SuiteDatabase.h"

#include <QString>

#include <chrono>
#include <mutex>
#include <optional>
#include <vector>

/// A suite is a small SQLite database, "quillbay/<suite name>.sqlite3" in the user's configuration folder. It
/// is opened at the first access; reading creates neither file nor folder. There is no cache: a getter
/// returns what was written last, by any process. A setter returns when the value is on disk.
///
/// A value that cannot be read is absent, a failed write leaves the old values, and the standard log gets one
/// line until the fault is over. A file that is not a usable suite (damaged, not a database, another
/// program's) reads as empty; the next write first renames it to "<file>.broken-<time>-<number>".
class UserDefaults {
public:
    static constexpr qsizetype maxKeyLength = 256; ///< UTF-16 code units
    static constexpr qsizetype maxTextLength = 65'536; ///< UTF-16 code units
    static constexpr std::chrono::milliseconds defaultTimeout{5000};

    /// suiteName: not empty, usable as a file name. timeout: the maximum wait for other processes that keep
    /// the suite locked; after it has expired once, accesses wait 20 ms until one succeeds.
    explicit UserDefaults(const QString &suiteName, std::chrono::milliseconds timeout = defaultTimeout);
    UserDefaults(const UserDefaults &) = delete;
    UserDefaults &operator=(const UserDefaults &) = delete;

    /// Of the database, which may not exist. Bytes in any encoding.
    [[nodiscard]] const QByteArray &path() const { return m_database.path(); }

    /// The value as it was written, or a fallback value; absent if there is neither, and for a key that is
    /// too long. A fault if the suite cannot be read and there is no fallback value: the key may have a
    /// value.
    [[nodiscard]] Result<std::optional<DefaultsValue>, SuiteFault> readObjectForKey(const QString &key) const;
    /// The same, absent also after a fault.
    [[nodiscard]] std::optional<DefaultsValue> objectForKey(const QString &key) const;
    /// False for an absent value; others as boolValue() says.
    [[nodiscard]] bool boolForKey(const QString &key) const;
    /// 0 for an absent value; others as integerValue() says.
    [[nodiscard]] qint64 integerForKey(const QString &key) const;

    /// What the getters of this object return for keys that have no value on disk or cannot be read.
    void setFallbackValues(std::vector<DefaultsEntry> values);
    [[nodiscard]] bool hasFallbackValues() const;

    /// Why the last write failed, for people; absent if it did not.
    [[nodiscard]] std::optional<QString> writeFault() const;

    // Setters return whether the value is on disk. Infinite numbers, NaN, and keys and texts beyond the
    // limits are refused with a line in the log. Lone surrogates in a text are stored as U+FFFD.

    bool setObject(const DefaultsValue &value, const QString &forKey);

    /// Writes all entries, in order, in one transaction: other processes see all of them or none.
    bool setObjects(const std::vector<DefaultsEntry> &entries);
    /// The same, unless the guard's value reads true: then nothing is written, and that is a success. No
    /// other process writes between the check of the guard and the end of the transaction.
    bool setObjectsUnless(const QString &guard, const std::vector<DefaultsEntry> &entries);

private:
    // A fault of one kind of access, from its first occurrence until that access succeeds.
    struct Episode {
        const char16_t *message;
        QString reason{}; // empty if there is no fault
        bool hasTimedOut = false;
    };

    bool write(const std::vector<DefaultsEntry> &entries, const std::optional<QString> &guard);
    void logPutAside(const SuiteFault &fault, const QByteArray &newName) const;
    [[nodiscard]] std::optional<DefaultsValue> fallbackValueOf(const QString &key) const;
    [[nodiscard]] bool canBeStored(const DefaultsEntry &entry) const;
    void recordOutcome(Episode &episode, const std::optional<SuiteFault> &fault) const;
    [[nodiscard]] std::chrono::milliseconds timeout(const Episode &episode) const;

    const QString m_suiteName;
    const std::chrono::milliseconds m_timeout;

    mutable std::mutex m_mutex; // guards all below
    mutable SuiteDatabase m_database;
    mutable Episode m_reading{u"Preference suite {} cannot be read: {}"};
    Episode m_writing{u"Preference suite {} cannot be written: {}"};
    std::vector<DefaultsEntry> m_fallbackValues;
};
