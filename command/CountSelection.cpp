// SPDX-License-Identifier: MIT
#include "command/CountSelection.h"

#include "command/FileNames.h"

#include <QStringList>

#include <algorithm>

namespace {

using FurtherList = std::vector<FurtherStatistic>;

std::string_view viewOf(const QByteArray &name)
{
    return {name.constData(), static_cast<size_t>(name.size())};
}

QString printable(const QByteArray &name)
{
    return QString::fromUtf8(printableName(name));
}

QString refusalOfService(const QByteArray &name)
{
    return CommandText::tr("--service does not count %1; leave out one of them").arg(QString::fromUtf8(name));
}

QString allFurtherNames()
{
    QStringList names;
    for (const FurtherStatisticRow &row : furtherStatisticTable)
        names.append(QLatin1StringView(row.typedName.data(), static_cast<qsizetype>(row.typedName.size())));
    return names.join(u',');
}

} // namespace

Result<FurtherList, QString> furtherListOf(const QByteArray &names, bool isInService)
{
    FurtherList list;
    if (names == "none")
        return list;
    for (const QByteArray &name : names.split(',')) {
        const std::optional<FurtherStatistic> statistic = furtherStatisticNamed(viewOf(name));
        if (!statistic)
            return CommandText::tr("--also knows no '%1'; use none, or some of %2")
                .arg(printable(name), allFurtherNames());
        if (isInService && needsText(*statistic))
            return refusalOfService(name);
        if (std::find(list.begin(), list.end(), *statistic) == list.end())
            list.push_back(*statistic);
    }
    return list;
}

Result<CountColumns, QString> columnListOf(const QByteArray &names, bool isInService)
{
    CountColumns columns;
    for (const QByteArray &name : names.split(',')) {
        const std::optional<CountColumn> column = columnNamed(viewOf(name));
        if (!column)
            return CommandText::tr("--columns knows no '%1'; use some of %2")
                .arg(printable(name), allColumnNames());
        const auto *const further = std::get_if<FurtherStatistic>(&*column);
        if (isInService && further && needsText(*further))
            return refusalOfService(name);
        if (std::find(columns.begin(), columns.end(), *column) == columns.end())
            columns.push_back(*column);
    }
    return columns;
}

Result<SortKey, QString> sortKeyOf(const QByteArray &name)
{
    if (name == "name")
        return SortKey{};
    const std::optional<CountColumn> column = columnNamed(viewOf(name));
    if (!column)
        return CommandText::tr("--sort knows no '%1'; use name or one of %2")
            .arg(printable(name), allColumnNames());
    return SortKey{column};
}

Result<CountGoal, QString> goalOf(const QByteArray &text)
{
    const QByteArrayList words = text.simplified().split(' ');
    bool isNumber = false;
    CountGoal goal{.count = words[0].toULongLong(&isNumber)};
    const std::optional<CountColumn> column =
        words.size() == 2 ? columnNamed(viewOf(words[1])) : std::optional<CountColumn>(Statistic::Words);
    const auto *const statistic = column ? std::get_if<Statistic>(&*column) : nullptr;
    if (!isNumber || !statistic || words.size() > 2)
        return CommandText::tr("%1 is no goal; use a number, or one such as '5000 characters'")
            .arg(u'\'' + printable(text) + u'\'');
    goal.statistic = *statistic;
    return goal;
}
