// SPDX-License-Identifier: MIT
// CommandWords are the words behind "quillbay COMMAND" of a command that has switches and operands only.
// Thread: any; a value.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

/// Exit status of a command that was called wrongly.
inline constexpr int wrongUsageStatus = 2;

struct CommandWords {
    QByteArrayList switches; ///< without dashes, as "clipboard"; "help" for -h too
    QByteArrayList operands; ///< "-" too, in their order

    [[nodiscard]] bool wantsHelp() const { return switches.contains("help"); }

    /// known: the switches of the command besides --help. Others are told on standard error and give nothing.
    static std::optional<CommandWords> parse(
        const char *command, const QByteArrayList &known, int wordCount, char **words);
};

/// Prints to standard error what getopt_long(), told to be silent, has found wrong with a word: it prints
/// words as they are, and they may hold what controls a terminal. result: its result, ':' where an argument
/// is missing.
void reportWrongOption(int result, char *const *words);

/// Tells on standard error what is wrong, unless message is null, and where to find help; gives
/// wrongUsageStatus.
int tellWrongUsage(const char *command, const char *message);

/// Prints to standard output and gives the exit status: 1 where that cannot be written.
int printed(const char *text);
