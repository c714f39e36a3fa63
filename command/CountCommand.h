// SPDX-License-Identifier: MIT
// CountCommand is "quillbay count": it counts files one after the other, through the statistics model or in
// the counting service, and prints the counts. A file that cannot be counted is told on standard error, and
// the others are still counted. Thread: main.  Owner: main().
#pragma once

#include "command/CountArguments.h"
#include "command/CountReport.h"
#include "command/ProgressLine.h"
#include "command/ServiceCounter.h"
#include "platform/system/Result.h"
#include "text_statistics/WordCounterModel.h"

#include <QByteArrayList>

#include <utility>

class CountCommand {
public:
    explicit CountCommand(CountArguments arguments)
        : m_arguments(std::move(arguments))
    {
    }

    /// The exit status: 0, or 1 if a file was not counted or the counts could not be printed.
    int run();

private:
    [[nodiscard]] QByteArrayList inputNames();
    void countAll(const QByteArrayList &names);
    void explainRules(const QByteArrayList &names);
    std::optional<QBYWordCounterStats> count(const QByteArray &name, ProgressLine &progress);
    Result<QBYWordCounterStats, QString> countHere(const QByteArray &name, ProgressLine &progress);
    Result<QBYWordCounterStats, QString> countInService(const QByteArray &name, ProgressLine &progress);
    void fail(const QByteArray &name, const QString &cause);
    static void print(const QByteArray &text);

    const CountArguments m_arguments;
    WordCounterModel m_model;
    std::optional<ServiceCounter> m_service; // made when first needed
    bool m_hasFailed = false;
};
