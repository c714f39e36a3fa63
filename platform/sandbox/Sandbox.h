// SPDX-License-Identifier: MIT
// Sandbox collects restrictions of this process and enforces them together. If the kernel lacks a part, the
// others are enforced without it, and the report says so.
// Thread: main, before there is another: parts of it apply only to threads that start later.
#pragma once

#include "platform/sandbox/Landlock.h"
#include "platform/sandbox/SystemCallFilter.h"

#include <QByteArrayList>
#include <QString>

/// The enforced parts of a sandbox.
struct SandboxReport {
    bool hasNoNewPrivileges = false;
    int landlockVersion = 0; ///< 0 if the kernel has no Landlock
    bool hasSystemCallFilter = false;

    bool operator==(const SandboxReport &) const = default;
};

/// In English, on one line: "no new privileges, Landlock 7, a system call filter".
QString sandboxDescription(const SandboxReport &report);

class Sandbox {
public:
    // Take effect at once.

    /// Kills the process when the thread that started it exits.
    void exitWithParent();
    /// Keeps the memory out of core files, and away from other processes of the user.
    void keepMemoryPrivate();
    /// No file may grow, including a file that receives the log.
    void forbidGrowingFiles();

    // Take effect in enter().

    /// Folders with everything below them, files, symbolic links to either. No other file may be opened.
    void allowReading(const QByteArrayList &paths);
    void forbidChangingFiles();
    void forbidStartingPrograms();
    void forbidConnecting();
    void forbidTouchingOtherProcesses();
    void forbidRaisingLimits();
    void forbidPrivilegedCalls();

    [[nodiscard]] SandboxReport enter();

private:
    Landlock m_landlock;
    SystemCallFilter m_filter;
};

/// Enforces the policy of the processes that touch documents, for good: they read fonts, and pass on their
/// results through the descriptors that they were started with. fonts: the folders and files that fonts are
/// read from. The caller must limit memory and processor time before; they cannot be limited from inside any
/// more.
SandboxReport enterDocumentSandbox(const QByteArrayList &fonts);
