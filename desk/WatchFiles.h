// SPDX-License-Identifier: MIT
// Starts watching from the desktop: the files that a file manager hands over, or those that the user chooses.
// The command "quillbay watch" does the rest, and reports what cannot be watched.
// Thread: main.
#pragma once

#include <QByteArrayList>

/// For an application menu, which hands over no file. Empty if the user chooses none. Needs a QApplication.
QByteArrayList chooseFilesToWatch();

/// Runs "quillbay watch" beside this process.
void startWatchCommand(const QByteArrayList &fileNames);

/// Replaces this process by "quillbay watch"; returns only if it cannot be started, after reporting that.
void becomeWatchCommand(const QByteArrayList &fileNames);
