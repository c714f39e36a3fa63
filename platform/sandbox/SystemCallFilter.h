// SPDX-License-Identifier: MIT
// SystemCallFilter makes the kernel answer "not permitted" to chosen system calls of the process. It is a
// list of what is refused and lets all else through: a list of what is allowed breaks with the next C
// library. Which calls those are is the caller's choice. Thread: main.  Owner: Sandbox.
#pragma once

#include <initializer_list>

class SystemCallFilter {
public:
    using Names = std::initializer_list<const char *>;

    SystemCallFilter();
    SystemCallFilter(const SystemCallFilter &) = delete;
    SystemCallFilter &operator=(const SystemCallFilter &) = delete;
    ~SystemCallFilter();

    /// Names that this machine or its library does not know are left out.
    void refuse(Names names);

    /// clone() makes threads and nothing else; clone3(), whose flags no filter can see, says that it does not
    /// exist, so that the C library turns to clone().
    void refuseNewProcesses();
    /// Files open for reading only, and are not made.
    void refuseOpeningToWrite();
    /// Signals reach this process and no other.
    void refuseSignalsToOthers();
    /// Resource limits may be asked for, not set.
    void refuseNewLimits();
    /// Nothing is typed into a terminal on the user's behalf.
    void refuseTyping();

    /// From now on, for all threads. False where the kernel has no such filters; needs PR_SET_NO_NEW_PRIVS.
    [[nodiscard]] bool load();

private:
    void *m_context; ///< null where the library cannot work
};
