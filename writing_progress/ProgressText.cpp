// SPDX-License-Identifier: MIT
#include "writing_progress/ProgressText.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

class Text {
    Q_DECLARE_TR_FUNCTIONS(writing_progress)
};

QString numberText(quint64 number)
{
    return QLocale().toString(static_cast<qulonglong>(number));
}

QString dateText(QDate date)
{
    return QLocale().toString(date, QLocale::ShortFormat);
}

} // namespace

QString amountText(Statistic statistic, quint64 amount)
{
    const bool isOne = amount == 1;
    switch (statistic) {
    case Statistic::Words:
        return (isOne ? Text::tr("%1 word") : Text::tr("%1 words")).arg(numberText(amount));
    case Statistic::Characters:
        return (isOne ? Text::tr("%1 character") : Text::tr("%1 characters")).arg(numberText(amount));
    case Statistic::CharactersIncludingWhitespace:
        return (
            isOne ? Text::tr("%1 character with white space") : Text::tr("%1 characters with white space"))
            .arg(numberText(amount));
    default:
        return (isOne ? Text::tr("%1 line") : Text::tr("%1 lines")).arg(numberText(amount));
    }
}

QString goalText(const Goal &goal)
{
    const QString amount = amountText(goal.statistic, goal.amount);
    if (goal.span == Goal::Span::Day)
        return Text::tr("%1 a day").arg(amount);
    return goal.deadline ? Text::tr("%1 until %2").arg(amount, dateText(*goal.deadline)) : amount;
}

QString limitText(const Limit &limit)
{
    return Text::tr("At most %1").arg(amountText(limit.statistic, limit.amount));
}

QString progressText(const Goal &goal, const GoalProgress &progress)
{
    if (progress.isReached())
        return Text::tr("Reached");
    const QString remaining = amountText(goal.statistic, progress.remaining());
    if (goal.span == Goal::Span::Day)
        return Text::tr("%1 remaining today").arg(remaining);
    if (progress.isOverdue)
        return Text::tr("%1 remaining: it was due on %2").arg(remaining, dateText(*goal.deadline));
    if (progress.amountPerDay)
        return Text::tr("%1 remaining: %2 a day until %3")
            .arg(remaining, amountText(goal.statistic, *progress.amountPerDay), dateText(*goal.deadline));
    return Text::tr("%1 remaining").arg(remaining);
}

QString changeText(qint64 change)
{
    const QString digits =
        numberText(change < 0 ? 0 - static_cast<quint64>(change) : static_cast<quint64>(change));
    if (change == 0)
        return digits;
    return (change > 0 ? u'+' : u'\u2212') + digits;
}

QString milestoneText(const Milestone &milestone, const QString &name)
{
    if (milestone.kind == Milestone::Kind::LimitPassed)
        return Text::tr("%1: has more than %2.")
            .arg(name, amountText(milestone.plan.limit->statistic, milestone.plan.limit->amount));
    return Text::tr("%1: has reached its goal of %2.").arg(name, goalText(*milestone.plan.goal));
}
