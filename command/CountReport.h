// SPDX-License-Identifier: MIT
// CountReport formats the counts of "quillbay count" as a table, JSON or TSV, row by row; the command prints
// them.
// Thread: main.  Owner: the count command.
#pragma once

#include "command/CountArguments.h"
#include "command/CountColumn.h"

#include <QByteArray>

#include <memory>

class CountReport {
public:
    /// expectedSize: of all files together, in bytes; gives the width of the table's columns.
    static std::unique_ptr<CountReport> make(CountFormat format, qint64 expectedSize,
        CountColumns columns = columnsFor({}), FurtherRules rules = {});

    CountReport(CountColumns columns, FurtherRules rules)
        : m_columns(std::move(columns))
        , m_rules(std::move(rules))
    {
    }
    CountReport(const CountReport &) = delete;
    CountReport &operator=(const CountReport &) = delete;
    virtual ~CountReport() = default;

    // The text to print, including its line end; may be empty.
    [[nodiscard]] virtual QByteArray header() const { return {}; }
    [[nodiscard]] virtual QByteArray row(const QByteArray &fileName, const FileCounts &counts) const = 0;
    [[nodiscard]] virtual QByteArray total(const FileCounts &) const { return {}; }

protected:
    [[nodiscard]] const CountColumns &columns() const { return m_columns; }
    [[nodiscard]] const FurtherRules &rules() const { return m_rules; }

private:
    const CountColumns m_columns;
    const FurtherRules m_rules;
};
