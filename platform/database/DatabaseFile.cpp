// SPDX-License-Identifier: MIT
#include "platform/database/DatabaseFile.h"

#include "platform/system/SystemError.h"

#include <cerrno>
#include <sqlite3.h>
#include <sys/stat.h>

#include <utility>

namespace {

constexpr qint64 pageSize = 4096; // bytes; SQLite's default

DatabaseFault foreignFault()
{
    return {DatabaseFault::Kind::Broken, QStringLiteral("it is another program's database")};
}

} // namespace

DatabaseFile::DatabaseFile(QByteArray path, DatabaseForm form)
    : m_path(std::move(path))
    , m_form(std::move(form))
{
}

DatabaseFile::~DatabaseFile()
{
    close();
}

void DatabaseFile::close()
{
    sqlite3_close(std::exchange(m_database, nullptr)); // rolls back an open transaction
}

void DatabaseFile::setTimeout(std::chrono::milliseconds timeout)
{
    m_timeout = timeout;
    if (m_database)
        sqlite3_busy_timeout(m_database, static_cast<int>(timeout.count()));
}

DatabaseFault DatabaseFile::faultOf(int code) const
{
    const auto kind = [code] {
        switch (code & 0xff) {
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
        case SQLITE_ERROR: // the statements are valid, so their table is missing or a different one
            return DatabaseFault::Kind::Broken;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return DatabaseFault::Kind::Busy;
        default:
            return DatabaseFault::Kind::Other;
        }
    }();
    QString reason = QString::fromUtf8(sqlite3_errstr(code));
    const bool fromSystem = (code & 0xff) == SQLITE_IOERR || (code & 0xff) == SQLITE_CANTOPEN;
    if (const int error = fromSystem && m_database ? sqlite3_system_errno(m_database) : 0; error != 0)
        reason += QStringLiteral(" (%1)").arg(systemErrorText(error));
    return {kind, reason};
}

DatabaseFault DatabaseFile::faultOf(const DatabaseStatement &statement) const
{
    return faultOf(statement.code());
}

DatabaseFile::Failure DatabaseFile::execute(const QByteArray &text) const
{
    DatabaseStatement statement = prepare(text);
    return execute(statement);
}

DatabaseFile::Failure DatabaseFile::forEachRow(
    DatabaseStatement &statement, const std::function<void()> &reading) const
{
    while (true) {
        switch (statement.step()) {
        case DatabaseStatement::Outcome::Row:
            reading();
            break;
        case DatabaseStatement::Outcome::End:
            return {};
        case DatabaseStatement::Outcome::Failed:
            return faultOf(statement);
        }
    }
}

DatabaseFile::Failure DatabaseFile::execute(DatabaseStatement &statement) const
{
    return forEachRow(statement, [] {});
}

bool DatabaseFile::isOpen(dev_t device, ino_t inode, Purpose purpose) const
{
    // A file that could only be read when it was opened may have become writable since.
    return m_database && m_device == device && m_inode == inode
        && (purpose == Purpose::Reading || sqlite3_db_readonly(m_database, "main") == 0);
}

DatabaseFile::Failure DatabaseFile::ensureOpen(Purpose purpose)
{
    // A file that is replaced while it is opened shows at the next check; nobody replaces it three times.
    for (int attempt = 0; attempt < 3; ++attempt) {
        struct stat status { };
        const bool exists = ::stat(m_path.constData(), &status) == 0;
        if (!exists && errno != ENOENT)
            return DatabaseFault{DatabaseFault::Kind::Other, systemErrorText(errno)};
        if (!exists && purpose == Purpose::Reading) {
            close();
            return {};
        }
        if (exists && isOpen(status.st_dev, status.st_ino, purpose))
            return {};
        close();
        if (exists && !S_ISREG(status.st_mode))
            return DatabaseFault{DatabaseFault::Kind::Broken, QStringLiteral("it is not a file")};
        if (exists && status.st_size > m_form.maxFileSize)
            return DatabaseFault{DatabaseFault::Kind::Broken, QStringLiteral("it is too large")};
        if (Failure failure = openFile(purpose))
            return failure;
        if (m_database) {
            const Failure failure = checkFile(purpose);
            return failure ? failure : setLimits();
        }
    }
    return DatabaseFault{DatabaseFault::Kind::Busy, QStringLiteral("its file is being replaced")};
}

// Leaves m_database null if the path no longer leads to the opened file.
DatabaseFile::Failure DatabaseFile::openFile(Purpose purpose)
{
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE
        | (purpose == Purpose::Writing ? SQLITE_OPEN_CREATE : 0);
    const int code = sqlite3_open_v2(m_path.constData(), &m_database, flags, nullptr);
    if (code != SQLITE_OK)
        return faultOf(code);
    setTimeout(m_timeout);
    struct stat status { };
    int moved = 0;
    const bool exists = ::stat(m_path.constData(), &status) == 0;
    if (sqlite3_file_control(m_database, "main", SQLITE_FCNTL_HAS_MOVED, &moved) != SQLITE_OK || moved != 0
        || !exists) {
        close();
        return {};
    }
    m_device = status.st_dev;
    m_inode = status.st_ino;
    return {};
}

DatabaseFile::Failure DatabaseFile::checkFile(Purpose purpose)
{
    // EXTRA is FULL, and the end of a transaction also survives a loss of power.
    if (Failure failure = execute("PRAGMA synchronous = EXTRA"))
        return failure;
    const auto found = content();
    if (!found)
        return found.error();
    switch (found.value()) {
    case Content::Foreign:
        return foreignFault();
    case Content::Empty:
        if (purpose == Purpose::Reading)
            close(); // another process is about to fill it, so the next access checks again
        return {};
    case Content::Known:
        break;
    }
    return m_form.isCheckedWhenOpened ? checkIntegrity() : Failure();
}

// Only after the check of the whole file, which would report a row that is too long as damage.
DatabaseFile::Failure DatabaseFile::setLimits()
{
    if (!m_database)
        return {};
    sqlite3_limit(m_database, SQLITE_LIMIT_LENGTH, m_form.maxRowSize);
    return execute("PRAGMA max_page_count = " + QByteArray::number(m_form.maxFileSize / pageSize));
}

Result<DatabaseFile::Content, DatabaseFault> DatabaseFile::content() const
{
    DatabaseStatement statement =
        prepare("SELECT application_id, (SELECT count(*) FROM sqlite_schema) FROM pragma_application_id");
    if (statement.step() != DatabaseStatement::Outcome::Row)
        return faultOf(statement);
    if (statement.integer(1) == 0)
        return Content::Empty;
    return statement.integer(0) == m_form.applicationIdentifier ? Content::Known : Content::Foreign;
}

DatabaseFile::Failure DatabaseFile::checkIntegrity() const
{
    DatabaseStatement statement = prepare("PRAGMA integrity_check(1)");
    if (statement.step() != DatabaseStatement::Outcome::Row)
        return faultOf(statement);
    if (statement.text(0) != QStringLiteral("ok"))
        return DatabaseFault{DatabaseFault::Kind::Broken, QStringLiteral("it is damaged")};
    return {};
}

DatabaseFile::Failure DatabaseFile::read(const std::function<Failure()> &reading)
{
    Failure failure = ensureOpen(Purpose::Reading);
    if (!failure && m_database)
        failure = reading();
    if (failure)
        close();
    return failure;
}

DatabaseFile::Failure DatabaseFile::write(const std::function<Failure()> &writing)
{
    Failure failure = ensureOpen(Purpose::Writing);
    if (!failure)
        failure = writeInTransaction(writing);
    if (failure)
        close();
    return failure;
}

DatabaseFile::Failure DatabaseFile::writeInTransaction(const std::function<Failure()> &writing)
{
    if (Failure failure = execute("BEGIN IMMEDIATE"))
        return failure;
    if (Failure failure = createTables())
        return failure;
    if (Failure failure = writing())
        return failure;
    return execute("COMMIT");
}

DatabaseFile::Failure DatabaseFile::createTables()
{
    const auto found = content();
    if (!found)
        return found.error();
    if (found.value() == Content::Foreign)
        return foreignFault();
    if (found.value() == Content::Known)
        return {};
    for (const QByteArray &statement : m_form.schema) {
        if (Failure failure = execute(statement))
            return failure;
    }
    return execute("PRAGMA application_id = " + QByteArray::number(m_form.applicationIdentifier));
}
