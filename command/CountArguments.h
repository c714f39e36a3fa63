// SPDX-License-Identifier: MIT
// CountArguments are the options and files of "quillbay count".
// Thread: main; a value.
#pragma once

#include "command/CommandWords.h"
#include "command/CountColumn.h"
#include "command/NamedDocument.h"
#include "text_statistics/WordRules.h"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>
#include <vector>

enum class CountFormat { Table, Json, Tsv };

/// The column by which rows are sorted, the largest count first; absent: by the name of the file.
struct SortKey {
    std::optional<CountColumn> column;
};

/// A number that all files together should reach.
struct CountGoal {
    quint64 count = 0;
    Statistic statistic = Statistic::Words;
};

struct CountArguments {
    CountFormat format = CountFormat::Table;
    bool wantsRules = false; ///< print the rules of the counts instead of the counts
    ReadAs readAs;
    bool wantsService = false; ///< count in the counting service instead of in this process
    std::optional<std::vector<FurtherStatistic>> also; ///< instead of those that the preferences show
    WordRules wordRules;
    std::optional<CountColumns> columns; ///< instead of the eight statistics and the further counts
    std::optional<SortKey> sortKey; ///< absent: in the order of the names
    std::optional<CountGoal> goal;
    bool isRecursive = false; ///< folders stand for the files below them
    QByteArrayList globs; ///< the names of files to take from folders; all if empty
    std::optional<QByteArray> listName; ///< the file that lists names; "-" for standard input
    QByteArrayList fileNames; ///< "-" for standard input

    /// Absent after wrong usage, which is reported on standard error.
    static std::optional<CountArguments> fromWords(const CommandWords &words);
};
