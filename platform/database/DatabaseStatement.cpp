// SPDX-License-Identifier: MIT
#include "platform/database/DatabaseStatement.h"

#include <sqlite3.h>

void DatabaseStatement::Finalizer::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

DatabaseStatement::DatabaseStatement(sqlite3 *database, const QByteArray &text)
{
    sqlite3_stmt *statement = nullptr;
    note(sqlite3_prepare_v2(database, text.constData(), static_cast<int>(text.size()), &statement, nullptr));
    m_statement.reset(statement);
}

void DatabaseStatement::note(int code)
{
    if (m_code == SQLITE_OK)
        m_code = code;
}

DatabaseStatement &DatabaseStatement::bind(int index, qint64 value)
{
    note(sqlite3_bind_int64(m_statement.get(), index, value));
    return *this;
}

DatabaseStatement &DatabaseStatement::bind(int index, double value)
{
    note(sqlite3_bind_double(m_statement.get(), index, value));
    return *this;
}

DatabaseStatement &DatabaseStatement::bind(int index, const QString &value)
{
    const QByteArray text = value.toUtf8();
    note(sqlite3_bind_text64(m_statement.get(), index, text.constData(),
        static_cast<sqlite3_uint64>(text.size()), SQLITE_TRANSIENT, SQLITE_UTF8));
    return *this;
}

DatabaseStatement &DatabaseStatement::bindBytes(int index, const QByteArray &value)
{
    note(sqlite3_bind_blob64(m_statement.get(), index, value.constData(),
        static_cast<sqlite3_uint64>(value.size()), SQLITE_TRANSIENT));
    return *this;
}

DatabaseStatement::Outcome DatabaseStatement::step()
{
    if (m_code != SQLITE_OK || !m_statement)
        return Outcome::Failed;
    switch (const int code = sqlite3_step(m_statement.get())) {
    case SQLITE_ROW:
        return Outcome::Row;
    case SQLITE_DONE:
        return Outcome::End;
    default:
        note(code);
        return Outcome::Failed;
    }
}

void DatabaseStatement::reset()
{
    sqlite3_reset(m_statement.get());
}

DatabaseStatement::Kind DatabaseStatement::kind(int column) const
{
    switch (sqlite3_column_type(m_statement.get(), column)) {
    case SQLITE_INTEGER:
        return Kind::Integer;
    case SQLITE_FLOAT:
        return Kind::Real;
    case SQLITE_TEXT:
        return Kind::Text;
    default:
        return Kind::Other;
    }
}

qint64 DatabaseStatement::integer(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

double DatabaseStatement::real(int column) const
{
    return sqlite3_column_double(m_statement.get(), column);
}

QString DatabaseStatement::text(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_statement.get(), column));
    return QString::fromUtf8(text, sqlite3_column_bytes(m_statement.get(), column));
}

QByteArray DatabaseStatement::bytes(int column) const
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(m_statement.get(), column));
    return {bytes, sqlite3_column_bytes(m_statement.get(), column)};
}
