// SPDX-License-Identifier: MIT
// What Quillbay adds to the application: speaking aloud, through the system's speech command.
// Thread: main.
#pragma once

#include <QString>

#include <optional>

class Desktop;

namespace QBYExtension {

/// The speech command, which speaks its only argument.
inline QString speechLaunchPath()
{
    return QStringLiteral("/usr/bin/say");
}

/// "COUNT words", with the count spelled out in the user's language as of the first call, and "words" even
/// for 1.
QString wordCountPhrase(quint64 wordCount);

// Both start the command and return without waiting for it, so phrases may overlap. They return false if
// nothing is spoken. If the command cannot be started, they report the error to the user on the desktop, once
// for each cause.

/// Speaks the phrase of a word count. Never speaks a count of 0.
bool sayWordCountOutloud(quint64 wordCount, Desktop &desktop, const QString &launchPath = speechLaunchPath());
/// An absent string is not spoken.
bool sayStringOutloud(
    const std::optional<QString> &string, Desktop &desktop, const QString &launchPath = speechLaunchPath());

} // namespace QBYExtension
