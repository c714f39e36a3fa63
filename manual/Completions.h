// SPDX-License-Identifier: MIT
// The files from which shells complete a program's commands, options and operands, from the pages of the
// manual.
// Thread: any.
#pragma once

#include "manual/ManualPage.h"

#include <QByteArray>
#include <QByteArrayList>

#include <vector>

/// A program with its commands, if it has some.
struct CompletedProgram {
    const ManualPage &page;
    std::vector<const ManualPage *> commands;
};

/// The programs that users type: those of section 1, but for say, whose argument is a phrase.
std::vector<CompletedProgram> completedPrograms();

QByteArray bashCompletion(const CompletedProgram &program);
QByteArray zshCompletion(const CompletedProgram &program);
QByteArray fishCompletion(const CompletedProgram &program);

// What the three have in common.

/// The name of a shell function: "_quillbay_desk".
QByteArray functionName(const ManualPage &page);
/// The first clause of a text, in English: shells show it beside the word.
QByteArray firstClause(const char *text);
/// In single quotes for a shell. quote: how the shell writes a single quote in them.
QByteArray quotedForShell(const QByteArray &text, const QByteArray &quote);
QByteArrayList termNames(const ManualPage &page);
/// Terms by the values that may follow them: "on off" and the names of all switches.
std::vector<std::pair<QByteArray, QByteArrayList>> termsByValues(const ManualPage &page);
