// SPDX-License-Identifier: MIT
// CountArguments is what the user asked of "quillbay count".
// Thread: any; a value.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

enum class CountForm { Table, Json, Tsv };

struct CountArguments {
    CountForm form = CountForm::Table;
    bool wantsHelp = false;
    bool wantsRules = false; ///< what the counts rest on, instead of the counts
    bool wantsService = false; ///< counting in the counting service instead of in this process
    std::optional<QByteArray> listName; ///< of a file with names, "-" for standard input
    QByteArrayList fileNames; ///< "-" for standard input

    /// Understands the words behind "quillbay count". Wrong usage is told on standard error and gives
    /// nothing.
    static std::optional<CountArguments> fromWords(int wordCount, char **words);

    static const char *helpText();
};
