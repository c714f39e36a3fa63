// SPDX-License-Identifier: MIT
// Landlock takes the process's right to files, TCP and its neighbours away, but for reading what was allowed
// before; which paths those are is the caller's choice. Binds the calling thread and the threads that it
// makes later. Thread: main, before there is another.  Owner: Sandbox.
#pragma once

#include <QByteArray>

class Landlock {
public:
    /// The version of the kernel's interface, 1 or more; 0 where the kernel has none or keeps it switched
    /// off.
    static int kernelVersion();

    Landlock();
    Landlock(const Landlock &) = delete;
    Landlock &operator=(const Landlock &) = delete;
    ~Landlock();

    /// A folder with all that lies below it, or a file; a symbolic link stands for what it leads to. A path
    /// with nothing behind it is left out.
    void allowReading(const QByteArray &path);

    /// From now on: everything else is refused. Returns the version in force, 0 where nothing is. Needs
    /// PR_SET_NO_NEW_PRIVS.
    [[nodiscard]] int enforce();

private:
    int m_version;
    int m_ruleset; ///< a descriptor; -1 where there is none
};
