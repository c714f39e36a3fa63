// SPDX-License-Identifier: MIT
#include "writing_progress/PlanTable.h"

#include "writing_progress/GoalProgress.h"

#include <algorithm>

namespace {

QString nameOf(Statistic statistic)
{
    return QString::fromLatin1(statisticTable.at(static_cast<std::size_t>(statistic)).name);
}

std::optional<Statistic> statisticNamed(const QString &name)
{
    const auto found =
        std::ranges::find_if(goalStatistics, [&](Statistic statistic) { return nameOf(statistic) == name; });
    return found == goalStatistics.end() ? std::nullopt : std::optional(*found);
}

bool isPossible(qint64 amount)
{
    return amount > 0 && amount <= static_cast<qint64>(maxGoal);
}

/// Absent for what was written by hand and means nothing.
std::optional<Goal> goalOf(const DatabaseStatement &statement)
{
    const std::optional<Statistic> statistic = statisticNamed(statement.text(1));
    if (!statistic || !isPossible(statement.integer(2)))
        return std::nullopt;
    const QDate deadline = QDate::fromString(statement.text(4), Qt::ISODate);
    return Goal{.statistic = *statistic,
        .amount = static_cast<quint64>(statement.integer(2)),
        .span = statement.text(3) == QLatin1StringView("day") ? Goal::Span::Day : Goal::Span::Total,
        .deadline = deadline.isValid() ? std::optional(deadline) : std::nullopt,
        .countsAddedOnly = statement.integer(5) != 0};
}

std::optional<Limit> limitOf(const DatabaseStatement &statement)
{
    const std::optional<Statistic> statistic = statisticNamed(statement.text(6));
    if (!statistic || !isPossible(statement.integer(7)))
        return std::nullopt;
    return Limit{.statistic = *statistic, .amount = static_cast<quint64>(statement.integer(7))};
}

} // namespace

QByteArray PlanTable::schema()
{
    return "CREATE TABLE plan (path BLOB PRIMARY KEY NOT NULL, goal_statistic TEXT, goal_amount INTEGER,"
           " goal_span TEXT, goal_deadline TEXT, goal_counts_added_only INTEGER, limit_statistic TEXT,"
           " limit_amount INTEGER, goal_reported TEXT, limit_reported TEXT) STRICT, WITHOUT ROWID";
}

PlanTable::Failure PlanTable::read(Plans &plans) const
{
    DatabaseStatement statement =
        m_file.prepare("SELECT path, goal_statistic, goal_amount, goal_span, goal_deadline,"
                       " goal_counts_added_only, limit_statistic, limit_amount FROM plan");
    return m_file.forEachRow(statement,
        [&] { plans[statement.bytes(0)] = {.goal = goalOf(statement), .limit = limitOf(statement)}; });
}

PlanTable::Failure PlanTable::set(const QByteArray &path, const Plan &plan) const
{
    DatabaseStatement removal = m_file.prepare("DELETE FROM plan WHERE path = ?1");
    if (Failure failure = m_file.execute(removal.bindBytes(1, path)); failure || plan == Plan())
        return failure;
    DatabaseStatement statement =
        m_file.prepare("INSERT INTO plan (path, goal_statistic, goal_amount, goal_span, goal_deadline,"
                       " goal_counts_added_only, limit_statistic, limit_amount)"
                       " VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)");
    statement.bindBytes(1, path);
    if (plan.goal) {
        statement.bind(2, nameOf(plan.goal->statistic))
            .bind(3, static_cast<qint64>(plan.goal->amount))
            .bind(4, plan.goal->span == Goal::Span::Day ? QStringLiteral("day") : QStringLiteral("total"))
            .bind(6, qint64{plan.goal->countsAddedOnly});
        if (plan.goal->deadline)
            statement.bind(5, plan.goal->deadline->toString(Qt::ISODate));
    }
    if (plan.limit)
        statement.bind(7, nameOf(plan.limit->statistic)).bind(8, static_cast<qint64>(plan.limit->amount));
    return m_file.execute(statement);
}

PlanTable::Failure PlanTable::note(
    const QByteArray &path, const char *column, const QString &value, bool &isNew) const
{
    const QByteArray name(column);
    DatabaseStatement statement = m_file.prepare(
        "UPDATE plan SET " + name + " = ?2 WHERE path = ?1 AND " + name + " IS NOT ?2 RETURNING path");
    return m_file.forEachRow(statement.bindBytes(1, path).bind(2, value), [&isNew] { isNew = true; });
}

PlanTable::Failure PlanTable::noteMilestones(
    const QByteArray &path, const DayTotal &total, std::vector<Milestone> &milestones) const
{
    Plans plans;
    if (Failure failure = read(plans); failure || !plans.contains(path))
        return failure;
    const Plan &plan = plans.at(path);
    bool isGoalNew = false;
    bool isLimitNew = false;
    if (plan.goal && progressOf(*plan.goal, total).isReached()) {
        const QString occasion =
            plan.goal->span == Goal::Span::Day ? total.day.toString(Qt::ISODate) : QStringLiteral("total");
        if (Failure failure = note(path, "goal_reported", occasion, isGoalNew))
            return failure;
    }
    if (plan.limit && isPassed(*plan.limit, total.counts)) {
        if (Failure failure = note(path, "limit_reported", QStringLiteral("total"), isLimitNew))
            return failure;
    }
    if (isGoalNew)
        milestones.push_back({Milestone::Kind::GoalReached, path, plan});
    if (isLimitNew)
        milestones.push_back({Milestone::Kind::LimitPassed, path, plan});
    return {};
}
