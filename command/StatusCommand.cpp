// SPDX-License-Identifier: MIT
// "quillbay status": the documents of the list, what today brought, and how far their goals are.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/CountColumn.h"
#include "command/FileNames.h"
#include "command/FirstLaunchStep.h"
#include "command/NamedDocument.h"
#include "command/ProgressAccess.h"
#include "platform/system/StandardOutput.h"
#include "text_statistics/WordCounterModel.h"
#include "writing_progress/CountStamp.h"
#include "writing_progress/ProgressText.h"

#include <QFileInfo>

#include <algorithm>
#include <new>
#include <utility>

namespace {

/// A document or a folder with all that is known of it.
struct StatusRow {
    QByteArray path;
    DayTotal today;
    Plan plan;
    bool isCounted = false;
};

Result<QBYWordCounterStats, QString> countDocument(const QByteArray &path, WordCounterModel &model)
{
    try {
        const Result<AttributedString, DocumentError> text = loadNamedDocument(path);
        if (!text)
            return causeText(text.error());
        model.setAttributedStringToCount(text.value());
        return model.statsRepresentation();
    } catch (const std::bad_alloc &) {
        return causeText(FileError{FileError::Cause::NotEnoughMemory});
    }
}

/// Counts what has changed since it was counted last. Returns the exit status.
int countChangedDocuments(ProgressStore &store, const std::vector<ListedDocument> &documents)
{
    constexpr std::size_t maxUnrecorded = 100; // a write to disk takes longer than most counts
    int status = 0;
    WordCounterModel model;
    std::vector<DocumentCount> counts;
    const auto record = [&]() -> int {
        const auto recorded = store.recordAll(std::exchange(counts, {}), QDateTime::currentDateTime());
        return recorded ? 0 : reportStoreFault(store, recorded.error());
    };
    for (const ListedDocument &document : documents) {
        const QByteArray stamp = countStamp(document.path);
        if (!stamp.isEmpty() && stamp == document.stamp)
            continue;
        const QDateTime saved = QFileInfo(QFile::decodeName(document.path)).lastModified();
        const Result<QBYWordCounterStats, QString> stats = countDocument(document.path, model);
        if (!stats) {
            reportDocumentFailure(document.path, stats.error());
            status = 1;
            continue;
        }
        counts.push_back({.path = document.path, .stats = stats.value(), .saved = saved, .stamp = stamp});
        if (counts.size() >= maxUnrecorded && record() != 0)
            return 1;
    }
    return counts.empty() ? status : std::max(status, record());
}

QByteArray jsonOfStats(const QBYWordCounterStats &stats)
{
    QByteArrayList members;
    for (const StatisticRow &row : statisticTable)
        members.append(QByteArray("\"") + row.name + "\":" + QByteArray::number(stats.*row.count));
    return '{' + members.join(',') + '}';
}

QByteArray jsonOfChange(const DayTotal &today)
{
    QByteArrayList members;
    for (const StatisticRow &row : statisticTable)
        members.append(QByteArray("\"") + row.name + "\":" + QByteArray::number(today.change(row.statistic)));
    return '{' + members.join(',') + '}';
}

QByteArray jsonOfGoal(const Goal &goal, const DayTotal &today)
{
    const GoalProgress progress = progressOf(goal, today);
    QByteArray json = QByteArray("{\"statistic\":\"") + machineNameOf(goal.statistic) + "\",\"amount\":"
        + QByteArray::number(goal.amount) + ",\"span\":\"" + (goal.span == Goal::Span::Day ? "day" : "total")
        + "\",\"done\":" + QByteArray::number(progress.done) + ",\"remaining\":"
        + QByteArray::number(progress.remaining()) + ",\"percent\":" + QByteArray::number(progress.percent());
    if (goal.deadline)
        json += ",\"deadline\":\"" + goal.deadline->toString(Qt::ISODate).toLatin1() + '"';
    if (progress.amountPerDay)
        json += ",\"amountPerDay\":" + QByteArray::number(*progress.amountPerDay);
    if (goal.span == Goal::Span::Day)
        json += QByteArray(",\"countsAddedOnly\":") + (goal.countsAddedOnly ? "true" : "false");
    return json + '}';
}

/// counts and changes are absent for a document that was never counted.
QByteArray jsonOf(const StatusRow &row)
{
    QByteArray json = '{' + jsonFileMembers(row.path);
    if (row.isCounted)
        json += ",\"counts\":" + jsonOfStats(row.today.counts) + ",\"today\":" + jsonOfChange(row.today)
            + ",\"addedToday\":" + jsonOfStats(row.today.added);
    if (row.isCounted && row.plan.goal)
        json += ",\"goal\":" + jsonOfGoal(*row.plan.goal, row.today);
    if (row.isCounted && row.plan.limit)
        json += QByteArray(",\"limit\":{\"statistic\":\"") + machineNameOf(row.plan.limit->statistic)
            + "\",\"amount\":" + QByteArray::number(row.plan.limit->amount)
            + ",\"isPassed\":" + (isPassed(*row.plan.limit, row.today.counts) ? "true}" : "false}");
    return json + '}';
}

QByteArray statusAsJson(
    const std::vector<StatusRow> &documents, const std::vector<StatusRow> &folders, const DayTotal &total)
{
    const auto list = [](const std::vector<StatusRow> &rows) {
        QByteArrayList members;
        for (const StatusRow &row : rows)
            members.append(jsonOf(row));
        return '[' + members.join(',') + ']';
    };
    return "{\"documents\":" + list(documents) + ",\"folders\":" + list(folders)
        + ",\"total\":{\"counts\":" + jsonOfStats(total.counts) + ",\"today\":" + jsonOfChange(total)
        + ",\"addedToday\":" + jsonOfStats(total.added) + "}}\n";
}

QByteArray statusLine(const QString &words, const QString &today, const QString &name, const QString &state)
{
    constexpr int numberWidth = 10;
    const QString line =
        words.rightJustified(numberWidth) + today.rightJustified(numberWidth) + QStringLiteral("  ") + name;
    return (state.isEmpty() ? line : line + QStringLiteral("  (") + state + u')').toUtf8() + '\n';
}

QString stateOf(const StatusRow &row)
{
    QStringList states;
    if (!row.isCounted)
        states.append(CommandText::tr("not counted yet"));
    if (row.isCounted && row.plan.goal)
        states.append(progressText(*row.plan.goal, progressOf(*row.plan.goal, row.today)));
    if (row.isCounted && row.plan.limit && isPassed(*row.plan.limit, row.today.counts))
        states.append(CommandText::tr("more than %1")
                          .arg(amountText(row.plan.limit->statistic, row.plan.limit->amount)));
    return states.join(QStringLiteral("; "));
}

QByteArray statusLine(const StatusRow &row)
{
    return statusLine(QString::number(row.today.counts.numberOfWords),
        QString::number(row.today.change(Statistic::Words)), QString::fromUtf8(printableName(row.path)),
        stateOf(row));
}

QByteArray statusAsTable(
    const std::vector<StatusRow> &documents, const std::vector<StatusRow> &folders, const DayTotal &total)
{
    QByteArray text =
        statusLine(CommandText::tr("Words"), CommandText::tr("Today"), CommandText::tr("File"), {});
    for (const StatusRow &row : documents)
        text += statusLine(row);
    for (const StatusRow &row : folders)
        text += statusLine(row);
    if (documents.size() > 1)
        text += statusLine(QString::number(total.counts.numberOfWords),
            QString::number(total.change(Statistic::Words)), CommandText::tr("total"), {});
    return text;
}

} // namespace

int runStatusCommand(const CommandWords &words)
{
    if (!words.operands.isEmpty())
        return reportWrongUsage("status", CommandText::tr("takes no file"));
    ProgressStore store;
    const auto listed = store.documents();
    reportBrokenFile(store);
    if (!listed)
        return reportStoreFault(store, listed.error());
    if (listed.value().empty() && !words.switches.contains("json")) {
        reportError(CommandText::tr("no documents; add some with 'quillbay documents FILE…'"));
        return 0;
    }
    if (!listed.value().empty())
        runFirstLaunchStep();
    const int status = countChangedDocuments(store, listed.value());
    const QDate today = QDate::currentDate();
    const auto totals = store.totalsOfDay(today);
    const auto plans = store.plans();
    if (!totals || !plans)
        return reportStoreFault(store, totals ? plans.error() : totals.error());
    std::vector<StatusRow> documents;
    std::map<QByteArray, StatusRow> folders;
    DayTotal total{.day = today, .before = {}, .counts = {}, .added = {}};
    for (const auto &[path, plan] : plans.value())
        folders[path] = {.path = path, .today = total, .plan = plan};
    for (const ListedDocument &document : listed.value()) {
        const auto counted = totals.value().find(document.identifier);
        StatusRow row{.path = document.path, .today = total, .plan = {}};
        row.isCounted = counted != totals.value().end();
        if (row.isCounted)
            row.today = counted->second;
        if (const auto plan = folders.extract(document.path))
            row.plan = plan.mapped().plan;
        documents.push_back(row);
    }
    for (const StatusRow &row : documents) {
        total += row.today;
        if (const auto folder = folders.find(folderOf(row.path)); folder != folders.end()) {
            folder->second.today += row.today;
            folder->second.isCounted = folder->second.isCounted || row.isCounted;
        }
    }
    std::vector<StatusRow> projects;
    projects.reserve(folders.size());
    for (const auto &[path, folder] : folders)
        projects.push_back(folder);
    const int printed =
        printText(words.switches.contains("json") ? statusAsJson(documents, projects, total)
                                                  : statusAsTable(documents, projects, total));
    return std::max(status, printed);
}
