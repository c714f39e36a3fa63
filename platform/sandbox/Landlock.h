// SPDX-License-Identifier: MIT
// Landlock takes away the rights of the process to files, TCP and other processes, except for reading allowed
// paths; the caller chooses the paths. Applies to the calling thread and the threads that it starts later.
// Thread: main, before there is another.  Owner: Sandbox.
#pragma once

#include "platform/system/OwnedDescriptor.h"

#include <QByteArray>

class Landlock {
public:
    /// The version of the kernel's interface, 1 or more; 0 if the kernel has none or it is switched off.
    static int kernelVersion();

    Landlock();
    Landlock(const Landlock &) = delete;
    Landlock &operator=(const Landlock &) = delete;

    /// A folder with everything below it, or a file; follows symbolic links. Ignores a path that does not
    /// exist.
    void allowReading(const QByteArray &path);

    /// Refuses everything else from now on. Returns the version in force, 0 for failure. Needs
    /// PR_SET_NO_NEW_PRIVS.
    [[nodiscard]] int enforce();

private:
    int m_version;
    OwnedDescriptor m_ruleset; ///< none without Landlock
};
