// SPDX-License-Identifier: MIT
// CountArguments are the options and files of "quillbay count".
// Thread: main; a value.
#pragma once

#include "command/CommandWords.h"
#include "command/NamedDocument.h"
#include "text_statistics/FurtherStats.h"
#include "text_statistics/WordRules.h"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>
#include <vector>

enum class CountFormat { Table, Json, Tsv };

struct CountArguments {
    CountFormat format = CountFormat::Table;
    bool wantsRules = false; ///< print the rules of the counts instead of the counts
    ReadAs readAs;
    bool wantsService = false; ///< count in the counting service instead of in this process
    std::optional<std::vector<FurtherStatistic>> also; ///< instead of those that the preferences show
    WordRules wordRules;
    std::optional<QByteArray> listName; ///< the file that lists names; "-" for standard input
    QByteArrayList fileNames; ///< "-" for standard input

    /// Absent after wrong usage, which is reported on standard error.
    static std::optional<CountArguments> fromWords(const CommandWords &words);
};
