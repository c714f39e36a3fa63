// SPDX-License-Identifier: MIT
// Starting a program that nobody waits for.
// Thread: any.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// Why a program could not be started.
struct LaunchError {
    QString launchPath;
    QString cause; ///< the system's own words
};

/// In English, on one line.
QString messageText(const LaunchError &error);

/// Starts the program with these arguments, through no shell, and lets it go: it is no child of this process
/// when it ends, so it leaves no zombie behind. Returns when it runs or cannot be started. launchPath:
/// absolute.
std::optional<LaunchError> launchDetached(const QString &launchPath, const QStringList &arguments);
