// SPDX-License-Identifier: MIT
// What Quillbay adds to the application: it speaks, through the system's speech command.
// Thread: main.
#pragma once

#include <QString>

#include <optional>

class Desktop;

namespace QBYExtension {

/// The system's speech command: it speaks its one argument.
inline QString speechLaunchPath()
{
    return QStringLiteral("/usr/bin/say");
}

// Both return at once; the command is neither waited for nor followed, so that phrases may overlap. False
// where nothing is spoken. A command that cannot be started is presented to the user on the desktop, once for
// each cause.

/// Speaks "COUNT words", the count in words of the language that the user had at the first call; "words" for
/// one too. A count of 0 is never spoken.
bool sayWordCountOutloud(quint64 wordCount, Desktop &desktop, const QString &launchPath = speechLaunchPath());
/// Absent: nothing to speak.
bool sayStringOutloud(
    const std::optional<QString> &string, Desktop &desktop, const QString &launchPath = speechLaunchPath());

} // namespace QBYExtension
