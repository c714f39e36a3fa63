// SPDX-License-Identifier: MIT
// ChildLaunch starts a program of the project as a child, with nothing of this process's open in it but what
// it is given.
// Thread: any.
#pragma once

#include "platform/system/OwnedDescriptor.h"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

#include <spawn.h>
#include <sys/types.h>

/// What is open in the child, told in this order.
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
    pid_t process; ///< to be waited for by the caller
    OwnedDescriptor processFile; ///< readable once the process has ended
};

/// words: as the program gets them, its own name first. It obeys every signal, whatever this process blocks
/// and ignores. Absent where the system cannot start it; errno tells why.
std::optional<LaunchedChild> launchChild(
    const QByteArray &path, QByteArrayList words, const ChildFiles &files);
