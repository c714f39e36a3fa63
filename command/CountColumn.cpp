// SPDX-License-Identifier: MIT
#include "command/CountColumn.h"

#include "command/CommandWords.h"

#include <QStringList>

#include <array>

namespace {

struct Names {
    std::string_view typed;
    const char *title;
};

/// By Statistic.
constexpr std::array<Names, statisticCount> statisticNames{{
    {"words", QT_TRANSLATE_NOOP("command", "Words")},
    {"characters", QT_TRANSLATE_NOOP("command", "Characters")},
    {"all-characters", QT_TRANSLATE_NOOP("command", "+Whitespace")},
    {"sentences", QT_TRANSLATE_NOOP("command", "Sentences")},
    {"lines", QT_TRANSLATE_NOOP("command", "Lines")},
    {"hard-line-breaks", QT_TRANSLATE_NOOP("command", "Hard breaks")},
    {"paragraphs", QT_TRANSLATE_NOOP("command", "Paragraphs")},
    {"indents", QT_TRANSLATE_NOOP("command", "Indented")},
}};

/// By FurtherStatistic.
constexpr std::array<const char *, furtherStatisticCount> furtherTitles{QT_TRANSLATE_NOOP("command", "Pages"),
    QT_TRANSLATE_NOOP("command", "Standard pages"), QT_TRANSLATE_NOOP("command", "Reading"),
    QT_TRANSLATE_NOOP("command", "Speaking"), QT_TRANSLATE_NOOP("command", "Graphemes")};

quint64 countOf(Statistic statistic, const FileCounts &counts)
{
    return counts.stats.*statisticTable.at(static_cast<std::size_t>(statistic)).count;
}

bool isTime(FurtherStatistic statistic)
{
    return statistic == FurtherStatistic::ReadingTime || statistic == FurtherStatistic::SpeakingTime;
}

QByteArray clockText(quint64 seconds)
{
    const auto twoDigits = [](quint64 number) { return QByteArray::number(number).rightJustified(2, '0'); };
    const quint64 minutes = seconds / 60;
    const QByteArray start = minutes < 60 ? QByteArray::number(minutes)
                                          : QByteArray::number(minutes / 60) + ':' + twoDigits(minutes % 60);
    return start + ':' + twoDigits(seconds % 60);
}

} // namespace

FileCounts &FileCounts::operator+=(const FileCounts &other)
{
    stats += other.stats;
    further += other.further;
    return *this;
}

CountColumns columnsFor(const FurtherRules &rules)
{
    CountColumns columns;
    for (const StatisticRow &row : statisticTable)
        columns.emplace_back(row.statistic);
    columns.insert(columns.end(), rules.shown.begin(), rules.shown.end());
    return columns;
}

std::string_view typedNameOf(Statistic statistic)
{
    return statisticNames.at(static_cast<std::size_t>(statistic)).typed;
}

std::optional<CountColumn> columnNamed(std::string_view typedName)
{
    for (const StatisticRow &row : statisticTable) {
        if (typedNameOf(row.statistic) == typedName)
            return row.statistic;
    }
    const std::optional<FurtherStatistic> further = furtherStatisticNamed(typedName);
    return further ? std::optional<CountColumn>(*further) : std::nullopt;
}

QString allColumnNames()
{
    QStringList names;
    const auto add = [&names](std::string_view name) {
        names.append(QLatin1StringView(name.data(), static_cast<qsizetype>(name.size())));
    };
    for (const Names &row : statisticNames)
        add(row.typed);
    for (const FurtherStatisticRow &row : furtherStatisticTable)
        add(row.typedName);
    return names.join(u',');
}

double valueOf(CountColumn column, const FileCounts &counts, const FurtherRules &rules)
{
    if (const auto *const statistic = std::get_if<Statistic>(&column))
        return static_cast<double>(countOf(*statistic, counts));
    return furtherCount(std::get<FurtherStatistic>(column), counts.stats, counts.further, rules);
}

QString titleOf(CountColumn column)
{
    if (const auto *const statistic = std::get_if<Statistic>(&column))
        return CommandText::tr(statisticNames.at(static_cast<std::size_t>(*statistic)).title);
    const auto index = static_cast<std::size_t>(std::get<FurtherStatistic>(column));
    return CommandText::tr(furtherTitles.at(index));
}

const char *machineNameOf(CountColumn column)
{
    if (const auto *const statistic = std::get_if<Statistic>(&column))
        return statisticTable.at(static_cast<std::size_t>(*statistic)).name;
    return furtherStatisticTable.at(static_cast<std::size_t>(std::get<FurtherStatistic>(column))).name;
}

QByteArray tableText(CountColumn column, const FileCounts &counts, const FurtherRules &rules)
{
    const auto *const further = std::get_if<FurtherStatistic>(&column);
    if (!further || !isTime(*further))
        return machineText(column, counts, rules);
    return clockText(static_cast<quint64>(furtherCount(*further, counts.stats, counts.further, rules)));
}

QByteArray machineText(CountColumn column, const FileCounts &counts, const FurtherRules &rules)
{
    if (const auto *const statistic = std::get_if<Statistic>(&column))
        return QByteArray::number(countOf(*statistic, counts));
    const auto further = std::get<FurtherStatistic>(column);
    const int decimals = further == FurtherStatistic::StandardPages ? 2 : 0;
    return QByteArray::number(furtherCount(further, counts.stats, counts.further, rules), 'f', decimals);
}
