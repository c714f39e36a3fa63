// SPDX-License-Identifier: MIT
// "quillbay history": what each day brought to a document.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/ProgressAccess.h"
#include "platform/system/StandardOutput.h"
#include "writing_progress/ProgressText.h"

#include <QLocale>

namespace {

QByteArray historyAsCsv(const std::vector<RecordedCount> &counts)
{
    QByteArray text = "time,day";
    for (const StatisticRow &row : statisticTable)
        text += QByteArray(",") + row.name;
    text += '\n';
    for (const RecordedCount &count : counts) {
        text +=
            count.time.toString(Qt::ISODate).toLatin1() + ',' + count.day.toString(Qt::ISODate).toLatin1();
        for (const StatisticRow &row : statisticTable)
            text += ',' + QByteArray::number(count.stats.*row.count);
        text += '\n';
    }
    return text;
}

QByteArray historyAsJson(const std::vector<RecordedCount> &counts)
{
    QByteArray text;
    for (const RecordedCount &count : counts) {
        text += "{\"time\":\"" + count.time.toString(Qt::ISODate).toLatin1() + "\",\"day\":\""
            + count.day.toString(Qt::ISODate).toLatin1() + '"';
        for (const StatisticRow &row : statisticTable)
            text += QByteArray(",\"") + row.name + "\":" + QByteArray::number(count.stats.*row.count);
        text += "}\n";
    }
    return text;
}

QByteArray historyAsTable(const std::vector<RecordedCount> &counts)
{
    constexpr int dayWidth = 12;
    constexpr int numberWidth = 10;
    QString text = CommandText::tr("Day").leftJustified(dayWidth)
        + CommandText::tr("Words").rightJustified(numberWidth)
        + CommandText::tr("Change").rightJustified(numberWidth)
        + CommandText::tr("Added").rightJustified(numberWidth) + u'\n';
    for (const DayTotal &total : dayTotals(counts))
        text += total.day.toString(Qt::ISODate).leftJustified(dayWidth)
            + QString::number(total.counts.numberOfWords).rightJustified(numberWidth)
            + QString::number(total.change(Statistic::Words)).rightJustified(numberWidth)
            + QString::number(total.added.numberOfWords).rightJustified(numberWidth) + u'\n';
    return text.toUtf8();
}

/// Wrong combinations, with their message; empty if all is right.
QString misuseOfHistory(const CommandWords &words)
{
    const QByteArray keep = words.valueOf("keep").value_or(QByteArray());
    if (words.switches.contains("keep")) {
        if (keep != "on" && keep != "off")
            return CommandText::tr("--keep takes on or off");
        return words.operands.isEmpty() ? QString() : CommandText::tr("--keep takes no file");
    }
    if (words.operands.size() != 1)
        return words.operands.isEmpty() ? CommandText::tr("no file given")
                                        : CommandText::tr("one file at a time");
    if (words.switches.contains("csv") && words.switches.contains("json"))
        return CommandText::tr("--csv and --json cannot be combined");
    return {};
}

} // namespace

int runHistoryCommand(const CommandWords &words)
{
    if (const QString misuse = misuseOfHistory(words); !misuse.isEmpty())
        return reportWrongUsage("history", misuse);
    ProgressStore store;
    if (const std::optional<QByteArray> keep = words.valueOf("keep"))
        return statusOf(store, store.setKeepsHistory(*keep == "on"));
    const QByteArray path = pathOfName(words.operands.first());
    if (words.switches.contains("forget"))
        return statusOf(store, store.forgetHistory({path}));
    const auto counts = store.history(path);
    reportBrokenFile(store);
    if (!counts)
        return reportStoreFault(store, counts.error());
    if (counts.value().empty()) {
        reportError(
            CommandText::tr("%1: has no history; add it with 'quillbay documents', then save it while its "
                            "window is open or run 'quillbay status'")
                .arg(QString::fromUtf8(printableName(words.operands.first()))));
        return 1;
    }
    if (words.switches.contains("csv"))
        return printText(historyAsCsv(counts.value()));
    return printText(
        words.switches.contains("json") ? historyAsJson(counts.value()) : historyAsTable(counts.value()));
}
