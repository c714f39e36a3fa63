// SPDX-License-Identifier: MIT
// SettingsProgram runs a program that reads and changes settings of a desktop, such as gsettings.
// Thread: any.
#pragma once

#include "platform/system/Result.h"

#include <QString>
#include <QStringList>

/// What the program printed on standard output. The error is what it printed on standard error, or why it did
/// not run. Waits for it for three seconds at most.
Result<QByteArray, QString> runSettingsProgram(const QString &program, const QStringList &words);

/// One command line of the words, quoted where a shell needs it.
QString commandLineOf(const QStringList &words);

/// Whether the command line starts the words, with the path of the program or, as users write it, without.
bool isCommandLineOf(const QString &commandLine, const QStringList &words);
