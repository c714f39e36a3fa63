// SPDX-License-Identifier: MIT
#include "platform/defaults/SuiteDatabase.h"

#include <utility>

namespace {

DatabaseForm suiteForm()
{
    return {.applicationIdentifier = 0x51425944, // "QBYD"
        .schema = {"CREATE TABLE preference (key TEXT PRIMARY KEY NOT NULL, type TEXT NOT NULL,"
                   " value ANY NOT NULL) STRICT, WITHOUT ROWID"},
        .maxFileSize = 16 << 20, // keeps the check of the whole file fast
        .maxRowSize = 256 << 10, // well above the limits of UserDefaults
        .isCheckedWhenOpened = true};
}

// The column "type" tells booleans from integers, which SQLite does not, and helps human readers.
constexpr const char *typeNames[] = {"boolean", "integer", "real", "text"};
static_assert(std::size(typeNames) == std::variant_size_v<DefaultsValue>);

void bindValue(DatabaseStatement &statement, int index, const DefaultsValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        statement.bind(index, *text);
    else if (const auto *number = std::get_if<double>(&value))
        statement.bind(index, *number);
    else
        statement.bind(index, integerValue(value));
}

std::optional<DefaultsValue> storedValue(const DatabaseStatement &statement)
{
    switch (statement.kind(1)) {
    case DatabaseStatement::Kind::Integer: {
        const qint64 integer = statement.integer(1);
        if (statement.text(0) == QLatin1StringView(typeNames[0]))
            return integer != 0;
        return integer;
    }
    case DatabaseStatement::Kind::Real:
        return statement.real(1);
    case DatabaseStatement::Kind::Text:
        return statement.text(1);
    case DatabaseStatement::Kind::Other:
        break; // written by hand
    }
    return std::nullopt;
}

} // namespace

SuiteDatabase::SuiteDatabase(QByteArray path)
    : m_file(std::move(path), suiteForm())
{
}

Result<std::optional<DefaultsValue>, SuiteFault> SuiteDatabase::read(const QString &key)
{
    std::optional<DefaultsValue> value;
    const auto fault = m_file.read([&] { return select(key, value); });
    return fault ? Result<std::optional<DefaultsValue>, SuiteFault>(*fault) : value;
}

DatabaseFile::Failure SuiteDatabase::select(const QString &key, std::optional<DefaultsValue> &value)
{
    DatabaseStatement statement = m_file.prepare("SELECT type, value FROM preference WHERE key = ?1");
    return m_file.forEachRow(statement.bind(1, key), [&] { value = storedValue(statement); });
}

std::optional<SuiteFault> SuiteDatabase::write(
    const std::vector<DefaultsEntry> &entries, const std::optional<QString> &guard)
{
    return m_file.write([&]() -> DatabaseFile::Failure {
        std::optional<DefaultsValue> value;
        if (guard) {
            if (auto failure = select(*guard, value))
                return failure;
        }
        if (value && boolValue(*value))
            return {};
        for (const DefaultsEntry &entry : entries) {
            if (auto failure = store(entry))
                return failure;
        }
        return {};
    });
}

DatabaseFile::Failure SuiteDatabase::store(const DefaultsEntry &entry)
{
    DatabaseStatement statement =
        m_file.prepare("INSERT OR REPLACE INTO preference (key, type, value) VALUES (?1, ?2, ?3)");
    statement.bind(1, entry.key).bind(2, QString::fromLatin1(typeNames[entry.value.index()]));
    bindValue(statement, 3, entry.value);
    return m_file.execute(statement);
}
