// SPDX-License-Identifier: MIT
// DatabaseFile is an SQLite file that several processes share, and reports what is wrong with it. What the
// tables mean is left to its user, and so is what to do about a fault.
// Thread: any, one at a time.  Owner: a store.
#pragma once

#include "platform/database/DatabaseStatement.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>
#include <sys/types.h>

struct sqlite3;

struct DatabaseFault {
    enum class Kind {
        Broken, ///< permanent: not a database, damaged, another program's
        Busy, ///< another process has locked it
        Other, ///< may be temporary: permissions, a full disk, a missing folder
    };
    Kind kind;
    QString reason; ///< for the log; names no file
};

/// What tells the databases of a store from others, and bounds them.
struct DatabaseForm {
    int applicationIdentifier; ///< in the header of the file
    QByteArrayList schema; ///< the statements that make the tables
    qint64 maxFileSize; ///< bytes
    int maxRowSize; ///< bytes
    bool isCheckedWhenOpened; ///< the whole file is; for small ones
};

/// Every access checks whether the open file is still the one at the path, and otherwise opens that one. The
/// file is closed after every fault.
class DatabaseFile {
public:
    using Failure = std::optional<DatabaseFault>;
    enum class Purpose { Reading, Writing };

    /// path: bytes in any encoding. Nothing is opened before the first access.
    DatabaseFile(QByteArray path, DatabaseForm form);
    DatabaseFile(const DatabaseFile &) = delete;
    DatabaseFile &operator=(const DatabaseFile &) = delete;
    ~DatabaseFile();

    [[nodiscard]] const QByteArray &path() const { return m_path; }

    /// How long later accesses wait for other processes.
    void setTimeout(std::chrono::milliseconds timeout);

    /// Calls the function, unless there is no file, which is not a fault. Never creates one.
    Failure read(const std::function<Failure()> &reading);

    /// Calls the function in a transaction; absent once everything is on disk. After a failure nothing is
    /// written. Creates the file if it is missing, but not its folder.
    Failure write(const std::function<Failure()> &writing);

    // Only while one of these functions is called.
    [[nodiscard]] DatabaseStatement prepare(const QByteArray &text) const { return {m_database, text}; }
    [[nodiscard]] Failure execute(const QByteArray &text) const;
    /// Steps the statement to its end, and calls the function at each row.
    [[nodiscard]] Failure forEachRow(
        DatabaseStatement &statement, const std::function<void()> &reading) const;
    /// Steps the statement to its end.
    [[nodiscard]] Failure execute(DatabaseStatement &statement) const;
    [[nodiscard]] DatabaseFault faultOf(const DatabaseStatement &statement) const;

private:
    enum class Content { Empty, Known, Foreign };

    [[nodiscard]] bool isOpen(dev_t device, ino_t inode, Purpose purpose) const;
    Failure ensureOpen(Purpose purpose);
    Failure openFile(Purpose purpose);
    Failure checkFile(Purpose purpose);
    Failure setLimits();
    void close();

    [[nodiscard]] Result<Content, DatabaseFault> content() const;
    [[nodiscard]] Failure checkIntegrity() const;
    Failure createTables();
    Failure writeInTransaction(const std::function<Failure()> &writing);
    [[nodiscard]] DatabaseFault faultOf(int code) const;

    QByteArray m_path;
    DatabaseForm m_form;
    std::chrono::milliseconds m_timeout{0};
    sqlite3 *m_database = nullptr;
    dev_t m_device = 0; // of the open file
    ino_t m_inode = 0;
};
