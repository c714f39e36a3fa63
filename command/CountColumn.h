// SPDX-License-Identifier: MIT
// CountColumn is a column of "quillbay count": one of the eight statistics or one of the further counts, with
// the names by which users, programs and readers know it.
// Thread: any; values.
#pragma once

#include "text_statistics/FurtherStats.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

/// The counts of one file, or of all.
struct FileCounts {
    QBYWordCounterStats stats;
    FurtherStats further;

    FileCounts &operator+=(const FileCounts &other);
};

using CountColumn = std::variant<Statistic, FurtherStatistic>;
using CountColumns = std::vector<CountColumn>;

/// The eight statistics and what the rules show, in this order.
CountColumns columnsFor(const FurtherRules &rules);

/// As users type it: "all-characters".
std::string_view typedNameOf(Statistic statistic);

/// The column of that typed name; absent for a name that is none.
std::optional<CountColumn> columnNamed(std::string_view typedName);
/// The typed names of all columns, separated by commas.
QString allColumnNames();

/// The number in a column; times in seconds.
double valueOf(CountColumn column, const FileCounts &counts, const FurtherRules &rules);

/// The title of a column in the table, in ASCII.
QString titleOf(CountColumn column);
/// The name in JSON and TSV.
const char *machineNameOf(CountColumn column);

/// For the table: whole numbers, standard pages with two decimals, times as h:mm:ss or m:ss.
QByteArray tableText(CountColumn column, const FileCounts &counts, const FurtherRules &rules);
/// For programs: the same without grouping, times in seconds.
QByteArray machineText(CountColumn column, const FileCounts &counts, const FurtherRules &rules);
