// SPDX-License-Identifier: MIT
// Sandbox confines a process that reads documents, for good: it keeps the descriptors that it was started
// with, and passes on its results through them. Limits of memory and processor time are left to the caller,
// who sets them before or from outside: they cannot be raised from inside any more.
// Thread: main, before there is another.
#pragma once

#include <QByteArrayList>
#include <QString>

#include <functional>

/// The enforced parts of a sandbox.
struct SandboxReport {
    bool hasNoNewPrivileges = false;
    int landlockVersion = 0; ///< 0 if the kernel has no Landlock
    bool hasSystemCallFilter = false;

    /// Whether a document may be read. Landlock may be missing: the filter of system calls keeps files,
    /// connections and processes out alone.
    [[nodiscard]] bool isSufficient() const { return hasNoNewPrivileges && hasSystemCallFilter; }

    bool operator==(const SandboxReport &) const = default;
};

/// In English, on one line: "no new privileges, Landlock 7, a system call filter".
QString sandboxDescription(const SandboxReport &report);

/// The sandbox of a process that opens no file. Memory files for its results must exist before: no file can
/// grow inside.
[[nodiscard]] SandboxReport enterDocumentSandbox();

enum class FontAccess {
    WhenNeeded, ///< a font can be opened at any time
    Once, ///< this is the last time that a font can be opened
};

/// The sandbox of a process that also reads fonts. fonts: the folders and files that fonts are read from, and
/// the configuration of the fonts; nothing else may be opened. loadFonts: called in a part of the sandbox,
/// where the fonts can be looked up; opens them all where it is told so, which is the case without Landlock.
/// It may start threads, which are confined, too, if all of them are running when it returns.
[[nodiscard]] SandboxReport enterDocumentSandbox(
    const QByteArrayList &fonts, const std::function<void(FontAccess)> &loadFonts);
