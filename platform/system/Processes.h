// SPDX-License-Identifier: MIT
// Processes starts programs and protects the memory of this one; what the programs do is left to their
// callers.
// Thread: any.
#pragma once

#include "platform/system/OwnedDescriptor.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

#include <spawn.h>
#include <sys/types.h>

/// The open descriptors of a child. The actions take effect in the order of the calls.
class ChildFiles {
public:
    ChildFiles();
    ChildFiles(const ChildFiles &) = delete;
    ChildFiles &operator=(const ChildFiles &) = delete;
    ~ChildFiles();

    /// flags: as for open(2).
    ChildFiles &open(int number, const char *path, int flags);
    ChildFiles &duplicate(int descriptor, int number);
    /// Closes that number and all above it.
    ChildFiles &closeFrom(int number);

    [[nodiscard]] const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

struct LaunchedChild {
    pid_t process; ///< the caller must reap it
    OwnedDescriptor processFile; ///< a pidfd: readable once the process has exited
};

/// arguments: the program's own name first. The child blocks and ignores no signal, whatever this process
/// does. Absent if the program cannot be started; errno has the reason.
std::optional<LaunchedChild> launchChild(
    const QByteArray &path, QByteArrayList arguments, const ChildFiles &files);

/// Waits until the process exits and reaps it. Returns the status of waitpid(2), absent if the process is not
/// a child of this one.
std::optional<int> reapChild(pid_t process);

/// Whether the descriptor becomes readable, or its other end is closed, before the timeout.
bool waitUntilReadable(int descriptor, std::chrono::milliseconds timeout);

/// Why a program could not be started.
struct LaunchError {
    QString launchPath;
    int systemError; ///< errno
};

/// In English, on one line.
QString messageText(const LaunchError &error);

/// Starts the program without a shell, in a session of its own, and does not follow it: it is not a child of
/// this process and leaves no zombie. It reads nothing, and its output is discarded except for standard
/// error. Returns once the program runs or cannot be started. launchPath: absolute.
std::optional<LaunchError> launchDetached(const QString &launchPath, const QStringList &arguments);

/// From now on a crash leaves no core file, and no other process of the user may attach to this one or read
/// its memory, which holds the user's texts. Call it first in main(): exec resets it, so every program sets
/// its own.
void keepMemoryPrivate();
