// SPDX-License-Identifier: MIT
// CountReport prints counts in one of the forms of "quillbay count", each row as soon as it is known.
// Thread: main.  Owner: the count command.
#pragma once

#include "command/CountArguments.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QByteArray>

#include <memory>

class CountReport {
public:
    /// expectedSize: how many bytes all files have together, which bounds the width of the table's columns.
    static std::unique_ptr<CountReport> make(CountForm form, qint64 expectedSize);

    CountReport() = default;
    CountReport(const CountReport &) = delete;
    CountReport &operator=(const CountReport &) = delete;
    virtual ~CountReport() = default;

    // Each gives the text to print, line end included; it may be empty.
    [[nodiscard]] virtual QByteArray header() const { return {}; }
    [[nodiscard]] virtual QByteArray row(
        const QByteArray &fileName, const QBYWordCounterStats &stats) const = 0;
    [[nodiscard]] virtual QByteArray total(const QBYWordCounterStats &) const { return {}; }
};
