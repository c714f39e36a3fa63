// SPDX-License-Identifier: MIT
// SuiteDatabase stores the values of one suite in an SQLite file and reports what is wrong with that file;
// UserDefaults handles these faults.
// Thread: any, one at a time.  Owner: UserDefaults.
#pragma once

#include "platform/database/DatabaseFile.h"
#include "platform/defaults/DefaultsValue.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>
#include <vector>

using SuiteFault = DatabaseFault;

/// The whole file is checked when it is opened.
class SuiteDatabase {
public:
    /// path: bytes in any encoding. Nothing is opened before the first access.
    explicit SuiteDatabase(QByteArray path);

    [[nodiscard]] const QByteArray &path() const { return m_file.path(); }
    [[nodiscard]] DatabaseFile &file() { return m_file; }

    /// How long later accesses wait for other processes.
    void setTimeout(std::chrono::milliseconds timeout) { m_file.setTimeout(timeout); }

    /// Absent if there is no file, or no such key in it. Never creates a file.
    Result<std::optional<DefaultsValue>, SuiteFault> read(const QString &key);

    /// Writes all entries in order and in one transaction, or none; absent once everything is on disk.
    /// Creates the file if it is missing, but not its folder. If there is a guard and its value reads true
    /// inside the transaction, writes nothing, which is not a fault.
    std::optional<SuiteFault> write(
        const std::vector<DefaultsEntry> &entries, const std::optional<QString> &guard);

private:
    DatabaseFile::Failure select(const QString &key, std::optional<DefaultsValue> &value);
    DatabaseFile::Failure store(const DefaultsEntry &entry);

    DatabaseFile m_file;
};
