// SPDX-License-Identifier: MIT
// SuiteDatabase stores the values of one suite in an SQLite file and reports what is wrong with that file;
// UserDefaults handles these faults.
// Thread: any, one at a time.  Owner: UserDefaults.
#pragma once

#include "platform/defaults/DefaultsValue.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>
#include <sys/types.h>
#include <vector>

struct sqlite3;

struct SuiteFault {
    enum class Kind {
        Broken, ///< permanent: not a database, damaged, another program's
        Busy, ///< another process has locked it
        Other, ///< may be temporary: permissions, a full disk, a missing folder
    };
    Kind kind;
    QString reason; ///< for the log; names no file
};

/// Every access checks whether the open file is still the one at the path, and otherwise opens that one. The
/// whole file is checked when it is opened; it is closed after every fault.
class SuiteDatabase {
public:
    /// path: bytes in any encoding. Nothing is opened before the first access.
    explicit SuiteDatabase(QByteArray path);
    SuiteDatabase(const SuiteDatabase &) = delete;
    SuiteDatabase &operator=(const SuiteDatabase &) = delete;
    ~SuiteDatabase();

    [[nodiscard]] const QByteArray &path() const { return m_path; }

    /// How long later accesses wait for other processes.
    void setTimeout(std::chrono::milliseconds timeout);

    /// Absent if there is no file, or no such key in it. Never creates a file.
    Result<std::optional<DefaultsValue>, SuiteFault> read(const QString &key);

    /// Writes all entries in order and in one transaction, or none; absent once everything is on disk.
    /// Creates the file if it is missing, but not its folder. If there is a guard and its value reads true
    /// inside the transaction, writes nothing, which is not a fault.
    std::optional<SuiteFault> write(
        const std::vector<DefaultsEntry> &entries, const std::optional<QString> &guard);

private:
    using Failure = std::optional<SuiteFault>;
    enum class Purpose { Reading, Writing };
    enum class Content { Empty, Suite, Foreign };

    [[nodiscard]] bool isOpen(dev_t device, ino_t inode, Purpose purpose) const;
    Failure ensureOpen(Purpose purpose);
    Failure openFile(Purpose purpose);
    Failure checkFile(Purpose purpose);
    Failure setLimits();
    void close();

    Result<Content, SuiteFault> content();
    Failure checkIntegrity();
    Failure createTable();
    Failure writeInTransaction(
        const std::vector<DefaultsEntry> &entries, const std::optional<QString> &guard);
    Result<std::optional<DefaultsValue>, SuiteFault> select(const QString &key);
    Failure store(const DefaultsEntry &entry);
    Failure execute(const QByteArray &text);
    [[nodiscard]] SuiteFault faultOf(int code) const;

    QByteArray m_path;
    std::chrono::milliseconds m_timeout{0};
    sqlite3 *m_database = nullptr;
    dev_t m_device = 0; // of the open file
    ino_t m_inode = 0;
};
