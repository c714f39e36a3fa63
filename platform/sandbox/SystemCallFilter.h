// SPDX-License-Identifier: MIT
// SystemCallFilter makes the kernel answer "not permitted" to system calls that the caller chooses. It lists
// what is refused, because a list of what is allowed would break with the next C library.
// Thread: main.  Owner: Sandbox.
#pragma once

#include <initializer_list>

class SystemCallFilter {
public:
    using Names = std::initializer_list<const char *>;

    SystemCallFilter();
    SystemCallFilter(const SystemCallFilter &) = delete;
    SystemCallFilter &operator=(const SystemCallFilter &) = delete;
    ~SystemCallFilter();

    /// Ignores names that this machine or libseccomp does not know.
    void refuse(Names names);

    /// clone() may only make threads. clone3(), whose flags a filter cannot see, reports that it does not
    /// exist, so that the C library uses clone().
    void refuseNewProcesses();
    /// Files may be opened for reading only, and not created.
    void refuseOpeningToWrite();
    /// Signals may be sent to this process only.
    void refuseSignalsToOthers();
    /// Resource limits may be read, not set.
    void refuseNewLimits();
    /// Nothing may be typed into a terminal.
    void refuseTyping();

    /// Applies to all threads from now on. False if the kernel has no such filters. Needs
    /// PR_SET_NO_NEW_PRIVS.
    [[nodiscard]] bool load();

private:
    void *m_context; ///< null if libseccomp fails
};
