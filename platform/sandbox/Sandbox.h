// SPDX-License-Identifier: MIT
// Sandbox is what a process may do, gathered sentence by sentence and put in force at once. Where the kernel
// lacks a part, the others hold alone, and the report says so.
// Thread: main, before there is another: a part of it binds only the threads that come later.
#pragma once

#include "platform/sandbox/Landlock.h"
#include "platform/sandbox/SystemCallFilter.h"

#include <QByteArrayList>
#include <QString>

/// What a sandbox is made of.
struct SandboxReport {
    bool hasNoNewPrivileges = false;
    int landlockVersion = 0; ///< 0 where the kernel has no Landlock
    bool hasSystemCallFilter = false;

    bool operator==(const SandboxReport &) const = default;
};

/// In English, on one line: "no new privileges, Landlock 7, a system call filter".
QString descriptionOf(const SandboxReport &report);

class Sandbox {
public:
    // The process's own habits; in force at once.
    /// It is killed when the thread that started it ends.
    void endWithParent();
    /// Its memory is in no core file, and no process of the user's may look into it.
    void keepMemoryPrivate();
    /// Its files, the log included where that is one, grow no further.
    void growNoFile();

    // What enter() puts in force.
    /// Folders with all that lies below them, files, symbolic links to either; of all other files none may be
    /// opened.
    void mayRead(const QByteArrayList &paths);
    void mayNotChangeFiles();
    void mayNotStartPrograms();
    void mayNotConnect();
    void mayNotTouchOtherProcesses();
    void mayNotLiftItsLimits();
    void mayNotAskForPrivilegedThings();

    [[nodiscard]] SandboxReport enter();

private:
    Landlock m_landlock;
    SystemCallFilter m_filter;
};
