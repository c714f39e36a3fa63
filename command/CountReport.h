// SPDX-License-Identifier: MIT
// CountReport formats the counts of "quillbay count" as a table, JSON or TSV, row by row; the command prints
// them.
// Thread: main.  Owner: the count command.
#pragma once

#include "command/CountArguments.h"
#include "text_statistics/CountingRules.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QByteArray>
#include <QByteArrayList>

#include <memory>

class CountReport {
public:
    /// expectedSize: of all files together, in bytes; gives the width of the table's columns.
    static std::unique_ptr<CountReport> make(CountFormat format, qint64 expectedSize);

    CountReport() = default;
    CountReport(const CountReport &) = delete;
    CountReport &operator=(const CountReport &) = delete;
    virtual ~CountReport() = default;

    // The text to print, including its line end; may be empty.
    [[nodiscard]] virtual QByteArray header() const { return {}; }
    [[nodiscard]] virtual QByteArray row(
        const QByteArray &fileName, const QBYWordCounterStats &stats) const = 0;
    [[nodiscard]] virtual QByteArray total(const QBYWordCounterStats &) const { return {}; }
};

/// The title of a statistic's column in the table, in ASCII.
QString titleOf(Statistic statistic);

/// The text of --explain-rules: a line with name and value for each rule. fontFiles: the files of the fonts
/// that the lines were measured with.
QByteArray explanationOfRules(const CountingRules &rules, const QByteArrayList &fontFiles);
/// The same as a JSON object on a line of its own; lengths in points.
QByteArray jsonOfRules(const CountingRules &rules, const QByteArrayList &fontFiles);
