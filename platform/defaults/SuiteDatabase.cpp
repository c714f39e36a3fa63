// SPDX-License-Identifier: MIT
#include "platform/defaults/SuiteDatabase.h"

#include "platform/system/SystemError.h"

#include <cerrno>
#include <sqlite3.h>
#include <sys/stat.h>

#include <memory>
#include <utility>

namespace {

constexpr int applicationIdentifier = 0x51425944; // "QBYD", in the header of every suite's file
constexpr off_t maxFileSize = 16 << 20; // bytes; keeps the check of the whole file fast
constexpr off_t pageSize = 4096; // bytes; SQLite's default
constexpr int maxRowSize = 256 << 10; // bytes; well above the limits of UserDefaults

struct StatementDeleter {
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, StatementDeleter>;

Statement prepare(sqlite3 *database, const QByteArray &text)
{
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(database, text.constData(), static_cast<int>(text.size()), &statement, nullptr);
    return Statement(statement);
}

int bindText(const Statement &statement, int index, const QByteArray &text)
{
    return sqlite3_bind_text64(statement.get(), index, text.constData(),
        static_cast<sqlite3_uint64>(text.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
}

QString columnText(const Statement &statement, int column)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement.get(), column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement.get(), column));
}

// The column "type" tells booleans from integers, which SQLite does not, and helps human readers.
constexpr const char *typeNames[] = {"boolean", "integer", "real", "text"};
static_assert(std::size(typeNames) == std::variant_size_v<DefaultsValue>);

int bindValue(const Statement &statement, int index, const DefaultsValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        return bindText(statement, index, text->toUtf8());
    if (const auto *number = std::get_if<double>(&value))
        return sqlite3_bind_double(statement.get(), index, *number);
    return sqlite3_bind_int64(statement.get(), index, integerValue(value));
}

std::optional<DefaultsValue> storedValue(const Statement &statement)
{
    switch (sqlite3_column_type(statement.get(), 1)) {
    case SQLITE_INTEGER: {
        const qint64 integer = sqlite3_column_int64(statement.get(), 1);
        if (columnText(statement, 0) == QLatin1StringView(typeNames[0]))
            return integer != 0;
        return integer;
    }
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement.get(), 1);
    case SQLITE_TEXT:
        return columnText(statement, 1);
    default:
        return std::nullopt; // written by hand
    }
}

SuiteFault foreignFault()
{
    return {SuiteFault::Kind::Broken, QStringLiteral("it is another program's database")};
}

} // namespace

SuiteDatabase::SuiteDatabase(QByteArray path)
    : m_path(std::move(path))
{
}

SuiteDatabase::~SuiteDatabase()
{
    close();
}

void SuiteDatabase::close()
{
    sqlite3_close(std::exchange(m_database, nullptr)); // rolls back an open transaction
}

void SuiteDatabase::setTimeout(std::chrono::milliseconds timeout)
{
    m_timeout = timeout;
    if (m_database)
        sqlite3_busy_timeout(m_database, static_cast<int>(timeout.count()));
}

SuiteFault SuiteDatabase::faultOf(int code) const
{
    const auto kind = [code] {
        switch (code & 0xff) {
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
        case SQLITE_ERROR: // the statements are valid, so their table is missing or a different one
            return SuiteFault::Kind::Broken;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return SuiteFault::Kind::Busy;
        default:
            return SuiteFault::Kind::Other;
        }
    }();
    QString reason = QString::fromUtf8(sqlite3_errstr(code));
    const bool fromSystem = (code & 0xff) == SQLITE_IOERR || (code & 0xff) == SQLITE_CANTOPEN;
    if (const int error = fromSystem && m_database ? sqlite3_system_errno(m_database) : 0; error != 0)
        reason += QStringLiteral(" (%1)").arg(systemErrorText(error));
    return {kind, reason};
}

SuiteDatabase::Failure SuiteDatabase::execute(const QByteArray &text)
{
    const Statement statement = prepare(m_database, text);
    if (!statement)
        return faultOf(sqlite3_extended_errcode(m_database));
    int code = SQLITE_ROW;
    while (code == SQLITE_ROW)
        code = sqlite3_step(statement.get());
    return code == SQLITE_DONE ? std::nullopt : Failure(faultOf(code));
}

bool SuiteDatabase::isOpen(dev_t device, ino_t inode, Purpose purpose) const
{
    // A file that could only be read when it was opened may have become writable since.
    return m_database && m_device == device && m_inode == inode
        && (purpose == Purpose::Reading || sqlite3_db_readonly(m_database, "main") == 0);
}

SuiteDatabase::Failure SuiteDatabase::ensureOpen(Purpose purpose)
{
    // A file that is replaced while it is opened shows at the next check; nobody replaces it three times.
    for (int attempt = 0; attempt < 3; ++attempt) {
        struct stat status { };
        const bool exists = ::stat(m_path.constData(), &status) == 0;
        if (!exists && errno != ENOENT)
            return SuiteFault{SuiteFault::Kind::Other, systemErrorText(errno)};
        if (!exists && purpose == Purpose::Reading) {
            close();
            return {};
        }
        if (exists && isOpen(status.st_dev, status.st_ino, purpose))
            return {};
        close();
        if (exists && !S_ISREG(status.st_mode))
            return SuiteFault{SuiteFault::Kind::Broken, QStringLiteral("it is not a file")};
        if (exists && status.st_size > maxFileSize)
            return SuiteFault{SuiteFault::Kind::Broken, QStringLiteral("it is too large")};
        if (Failure failure = openFile(purpose))
            return failure;
        if (m_database) {
            const Failure failure = checkFile(purpose);
            return failure ? failure : setLimits();
        }
    }
    return SuiteFault{SuiteFault::Kind::Busy, QStringLiteral("its file is being replaced")};
}

// Leaves m_database null if the path no longer leads to the opened file.
SuiteDatabase::Failure SuiteDatabase::openFile(Purpose purpose)
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

SuiteDatabase::Failure SuiteDatabase::checkFile(Purpose purpose)
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
    case Content::Suite:
        break;
    }
    return checkIntegrity();
}

// Only after the check of the whole file, which would report a row that is too long as damage.
SuiteDatabase::Failure SuiteDatabase::setLimits()
{
    if (!m_database)
        return {};
    sqlite3_limit(m_database, SQLITE_LIMIT_LENGTH, maxRowSize);
    return execute("PRAGMA max_page_count = " + QByteArray::number(maxFileSize / pageSize));
}

Result<SuiteDatabase::Content, SuiteFault> SuiteDatabase::content()
{
    const Statement statement = prepare(
        m_database, "SELECT application_id, (SELECT count(*) FROM sqlite_schema) FROM pragma_application_id");
    if (!statement || sqlite3_step(statement.get()) != SQLITE_ROW)
        return faultOf(sqlite3_extended_errcode(m_database));
    if (sqlite3_column_int(statement.get(), 1) == 0)
        return Content::Empty;
    return sqlite3_column_int(statement.get(), 0) == applicationIdentifier ? Content::Suite
                                                                           : Content::Foreign;
}

SuiteDatabase::Failure SuiteDatabase::checkIntegrity()
{
    const Statement statement = prepare(m_database, "PRAGMA integrity_check(1)");
    if (!statement || sqlite3_step(statement.get()) != SQLITE_ROW)
        return faultOf(sqlite3_extended_errcode(m_database));
    if (columnText(statement, 0) != QStringLiteral("ok"))
        return SuiteFault{SuiteFault::Kind::Broken, QStringLiteral("it is damaged")};
    return {};
}

Result<std::optional<DefaultsValue>, SuiteFault> SuiteDatabase::read(const QString &key)
{
    Failure failure = ensureOpen(Purpose::Reading);
    if (failure) {
        close();
        return *failure;
    }
    if (!m_database)
        return std::optional<DefaultsValue>();
    auto value = select(key);
    if (!value)
        close();
    return value;
}

Result<std::optional<DefaultsValue>, SuiteFault> SuiteDatabase::select(const QString &key)
{
    const Statement statement = prepare(m_database, "SELECT type, value FROM preference WHERE key = ?1");
    if (!statement || bindText(statement, 1, key.toUtf8()) != SQLITE_OK)
        return faultOf(sqlite3_extended_errcode(m_database));
    switch (const int code = sqlite3_step(statement.get())) {
    case SQLITE_ROW:
        return storedValue(statement);
    case SQLITE_DONE:
        return std::optional<DefaultsValue>();
    default:
        return faultOf(code);
    }
}

std::optional<SuiteFault> SuiteDatabase::write(
    const std::vector<DefaultsEntry> &entries, const std::optional<QString> &guard)
{
    Failure failure = ensureOpen(Purpose::Writing);
    if (!failure)
        failure = writeInTransaction(entries, guard);
    if (failure)
        close();
    return failure;
}

SuiteDatabase::Failure SuiteDatabase::writeInTransaction(
    const std::vector<DefaultsEntry> &entries, const std::optional<QString> &guard)
{
    if (Failure failure = execute("BEGIN IMMEDIATE"))
        return failure;
    if (Failure failure = createTable())
        return failure;
    if (guard) {
        const auto value = select(*guard);
        if (!value)
            return value.error();
        if (value.value() && boolValue(*value.value()))
            return execute("ROLLBACK");
    }
    for (const DefaultsEntry &entry : entries) {
        if (Failure failure = store(entry))
            return failure;
    }
    return execute("COMMIT");
}

SuiteDatabase::Failure SuiteDatabase::createTable()
{
    const auto found = content();
    if (!found)
        return found.error();
    if (found.value() == Content::Foreign)
        return foreignFault();
    if (found.value() == Content::Suite)
        return {};
    if (Failure failure =
            execute("CREATE TABLE preference (key TEXT PRIMARY KEY NOT NULL, type TEXT NOT NULL,"
                    " value ANY NOT NULL) STRICT, WITHOUT ROWID"))
        return failure;
    return execute("PRAGMA application_id = " + QByteArray::number(applicationIdentifier));
}

SuiteDatabase::Failure SuiteDatabase::store(const DefaultsEntry &entry)
{
    const Statement statement =
        prepare(m_database, "INSERT OR REPLACE INTO preference (key, type, value) VALUES (?1, ?2, ?3)");
    if (!statement || bindText(statement, 1, entry.key.toUtf8()) != SQLITE_OK
        || bindText(statement, 2, typeNames[entry.value.index()]) != SQLITE_OK
        || bindValue(statement, 3, entry.value) != SQLITE_OK)
        return faultOf(sqlite3_extended_errcode(m_database));
    const int code = sqlite3_step(statement.get());
    return code == SQLITE_DONE ? Failure() : Failure(faultOf(code));
}
