// SPDX-License-Identifier: MIT
// CommandWords are the words after "quillbay COMMAND": the options that the command's page of the manual
// lists, and operands; with them the messages for wrong usage, for all commands.
// Thread: main; a value.
#pragma once

#include "manual/ManualPage.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QCoreApplication>
#include <QString>

#include <optional>

/// The exit status after wrong usage.
inline constexpr int wrongUsageStatus = 2;

/// The texts of the commands in the user's language: CommandText::tr().
class CommandText {
    Q_DECLARE_TR_FUNCTIONS(command)
};

struct CommandWords {
    QByteArrayList switches; ///< without dashes, as "clipboard"; "help" also for -h
    QByteArrayList values; ///< the argument of each switch; empty for those that take none
    QByteArrayList operands; ///< in their order, including "-"

    [[nodiscard]] bool wantsHelp() const { return switches.contains("help"); }
    /// Of the first such switch; absent if it was not given.
    [[nodiscard]] std::optional<QByteArray> valueOf(const QByteArray &name) const;
    /// Of all such switches.
    [[nodiscard]] QByteArrayList valuesOf(const QByteArray &name) const;

    /// Absent after an unknown switch or a missing argument, which is reported on standard error.
    static std::optional<CommandWords> parse(const ManualPage &page, int wordCount, char **words);
};

/// Reports wrong usage on standard error and points to the help. command: null for quillbay itself. Returns
/// wrongUsageStatus.
int reportWrongUsage(const char *command, const QString &message);

/// Prints the message behind "quillbay: " on standard error, behind what has been printed to standard output.
void reportError(const QString &message);
