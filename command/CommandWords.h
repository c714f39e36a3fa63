// SPDX-License-Identifier: MIT
// CommandWords are the words after "quillbay COMMAND", for commands that have only switches and operands;
// with them the messages for wrong usage, for all commands.
// Thread: main; a value.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

/// The exit status after wrong usage.
inline constexpr int wrongUsageStatus = 2;

struct CommandWords {
    QByteArrayList switches; ///< without dashes, as "clipboard"; "help" also for -h
    QByteArrayList operands; ///< in their order, including "-"

    [[nodiscard]] bool wantsHelp() const { return switches.contains("help"); }

    /// known: the switches of the command besides --help. Absent after an unknown switch, which is reported
    /// on standard error.
    static std::optional<CommandWords> parse(
        const char *command, const QByteArrayList &known, int wordCount, char **words);
};

/// Reports an error of getopt_long() on standard error. getopt_long() must not do so itself (opterr is 0): it
/// prints words as they are, even with control characters for the terminal. result: its result, ':' if an
/// argument is missing.
void reportWrongOption(int result, char *const *words);

/// Reports wrong usage on standard error and points to the help. message: null if it has been reported
/// already. Returns wrongUsageStatus.
int reportWrongUsage(const char *command, const char *message);

/// Writes to standard output, whose errors show when it is flushed.
void print(const QByteArray &bytes);

/// Prints to standard output. Returns the exit status: 1 if standard output cannot be written.
int printText(const char *text);
