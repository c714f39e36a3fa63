// SPDX-License-Identifier: MIT
// SuiteDatabase keeps the values of one suite in an SQLite file and names what is wrong with that file; what
// to do about it is left to UserDefaults. Thread: one at a time.  Owner: UserDefaults.
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
        Broken, ///< this is no usable suite and never will be: not a database, damaged, another program's
        Busy, ///< another process holds it locked
        Other, ///< may pass: permissions, a full disk, a missing folder
    };
    Kind kind;
    QString reason; ///< for the log; names no file
};

/// Every access looks whether the path still leads to the file that is open, and opens what is there now. The
/// file is checked whole when it is opened, and closed after every fault.
class SuiteDatabase {
public:
    /// path: in the file system's bytes. Nothing is touched before the first access.
    explicit SuiteDatabase(QByteArray path);
    SuiteDatabase(const SuiteDatabase &) = delete;
    SuiteDatabase &operator=(const SuiteDatabase &) = delete;
    ~SuiteDatabase();

    [[nodiscard]] const QByteArray &path() const { return m_path; }

    /// How long the accesses to come wait for other processes.
    void setTimeout(std::chrono::milliseconds timeout);

    /// Absent where there is no file, or no such key in it. Never makes a file.
    Result<std::optional<DefaultsValue>, SuiteFault> read(const QString &key);

    /// Writes all entries in order and in one transaction, or none; returns what went wrong, absent where
    /// everything is on the disk. Makes the file where it is missing, but not its folder. With a guard,
    /// nothing is written, and that is no fault, where the guard's value reads true inside the transaction.
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
    Failure makeTable();
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
