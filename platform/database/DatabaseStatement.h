// SPDX-License-Identifier: MIT
// DatabaseStatement is one SQL statement with its values and the row that it has found.
// Thread: that of its DatabaseFile.  Owner: a function; ends before the file is closed.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

class DatabaseStatement {
public:
    enum class Outcome { Row, End, Failed };
    enum class Kind { Integer, Real, Text, Other };

    /// An invalid statement, every step() of which fails, if the text cannot be compiled.
    DatabaseStatement(sqlite3 *database, const QByteArray &text);

    /// Values for ?1, ?2 and so on.
    DatabaseStatement &bind(int index, qint64 value);
    DatabaseStatement &bind(int index, double value);
    DatabaseStatement &bind(int index, const QString &value); ///< lone surrogates become U+FFFD
    DatabaseStatement &bindBytes(int index, const QByteArray &value);

    /// Failed also if a value could not be bound.
    Outcome step();
    /// Makes the statement ready for other values.
    void reset();
    /// SQLite's code of the last failure.
    [[nodiscard]] int code() const { return m_code; }

    // Of the current row; columns count from 0.
    [[nodiscard]] Kind kind(int column) const;
    [[nodiscard]] qint64 integer(int column) const;
    [[nodiscard]] double real(int column) const;
    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] QByteArray bytes(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt *statement) const;
    };

    void note(int code);

    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
    int m_code = 0;
};
