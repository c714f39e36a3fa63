// SPDX-License-Identifier: MIT
// "quillbay goal": sets, prints and removes the goal and the limit of a document or a folder.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/ProgressAccess.h"
#include "platform/system/StandardOutput.h"
#include "writing_progress/ProgressText.h"

namespace {

/// Wrong combinations, with their message; empty if all is right.
QString misuseOfGoal(const CommandWords &words)
{
    const bool isForDay = words.switches.contains("day");
    const bool isLimit = words.switches.contains("limit");
    const bool removes = words.switches.contains("remove");
    const bool hasAmount = words.operands.size() == 2;
    if (words.operands.isEmpty())
        return CommandText::tr("no file given");
    if (words.operands.size() > 2)
        return CommandText::tr("one file and one number at a time");
    if (removes && hasAmount)
        return CommandText::tr("--remove takes no number");
    if (!hasAmount && (isForDay || words.switches.contains("by") || words.switches.contains("of")))
        return CommandText::tr("no number given");
    if (isLimit && (isForDay || words.switches.contains("by")))
        return CommandText::tr("a limit has neither --day nor --by");
    if (isForDay && words.switches.contains("by"))
        return CommandText::tr("--day and --by cannot be combined");
    if (words.switches.contains("added-only") && !isForDay)
        return CommandText::tr("--added-only needs --day");
    return {};
}

QString printablePath(const QByteArray &path)
{
    return QString::fromUtf8(printableName(path));
}

int printPlan(const QByteArray &path, const Plan &plan)
{
    QStringList lines;
    if (plan.goal)
        lines.append(CommandText::tr("Goal: %1").arg(goalText(*plan.goal)));
    if (plan.limit)
        lines.append(CommandText::tr("Limit: %1").arg(limitText(*plan.limit)));
    if (lines.isEmpty())
        lines.append(CommandText::tr("%1 has neither a goal nor a limit.").arg(printablePath(path)));
    return printText(lines.join(u'\n').toUtf8() + '\n');
}

int reportWrongValue(const QString &message)
{
    return reportWrongUsage("goal", message);
}

} // namespace

int runGoalCommand(const CommandWords &words)
{
    if (const QString misuse = misuseOfGoal(words); !misuse.isEmpty())
        return reportWrongUsage("goal", misuse);
    ProgressStore store;
    const auto plans = store.plans();
    if (!plans)
        return reportStoreFault(store, plans.error());
    const QByteArray path = pathOfName(words.operands.first());
    const auto found = plans.value().find(path);
    Plan plan = found == plans.value().end() ? Plan() : found->second;
    const bool isLimit = words.switches.contains("limit");
    if (words.switches.contains("remove")) {
        if (isLimit)
            plan.limit.reset();
        else
            plan.goal.reset();
        return statusOf(store, store.setPlan(path, plan));
    }
    if (words.operands.size() == 1)
        return printPlan(path, plan);
    bool isNumber = false;
    const quint64 amount = words.operands.last().toULongLong(&isNumber);
    if (!isNumber || amount == 0 || amount > maxGoal)
        return reportWrongValue(CommandText::tr("'%1' is not a number from 1 to %2")
                                    .arg(printablePath(words.operands.last()))
                                    .arg(maxGoal));
    const std::optional<Statistic> statistic = goalStatisticNamed(words.valueOf("of").value_or("words"));
    if (!statistic)
        return reportWrongValue(CommandText::tr("--of takes words, characters, all-characters or lines"));
    if (isLimit) {
        plan.limit = Limit{.statistic = *statistic, .amount = amount};
        return statusOf(store, store.setPlan(path, plan));
    }
    plan.goal = Goal{.statistic = *statistic,
        .amount = amount,
        .span = words.switches.contains("day") ? Goal::Span::Day : Goal::Span::Total,
        .countsAddedOnly = words.switches.contains("added-only")};
    if (const std::optional<QByteArray> date = words.valueOf("by")) {
        plan.goal->deadline = QDate::fromString(QString::fromLatin1(*date), Qt::ISODate);
        if (!plan.goal->deadline->isValid())
            return reportWrongValue(
                CommandText::tr("'%1' is not a date such as 2026-11-30").arg(printablePath(*date)));
    }
    return statusOf(store, store.setPlan(path, plan));
}
