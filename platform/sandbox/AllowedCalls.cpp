// SPDX-License-Identifier: MIT
#include "platform/sandbox/AllowedCalls.h"

#include "platform/system/Sanitizers.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// Arguments of the type int: the kernel ignores the upper half of the register.
constexpr quint64 wholeInt = 0xFFFFFFFF;

AllowedCall callWith(const char *name, unsigned argument, int value)
{
    return {name, argument, wholeInt, static_cast<quint32>(value)};
}

AllowedCall callWithout(const char *name, unsigned argument, quint64 bits)
{
    return {name, argument, bits & wholeInt, 0};
}

AllowedCall mapping()
{
#ifdef __s390x__
    return {"mmap"}; // takes its arguments from memory, where a filter does not see them
#elif defined(__i386__)
    return callWithout("mmap2", 2, PROT_EXEC); // "mmap" takes them from memory here, too, and is not needed
#else
    return callWithout("mmap", 2, PROT_EXEC);
#endif
}

} // namespace

// What is not here is refused: other files, sockets, processes and threads, signals to others, limits,
// priorities, memory that can be executed. Names with a number or an underscore are those of 32-bit machines.
std::vector<AllowedCall> allowedCalls(FileAccess files)
{
    std::vector<AllowedCall> calls{
        // The heap. Documents are mapped memory files, and large blocks are mapped and moved.
        {"brk"},
        mapping(),
        callWithout("mmap2", 2, PROT_EXEC),
        callWithout("mprotect", 2, PROT_EXEC),
        {"mremap"},
        {"munmap"},
        callWith("madvise", 2, MADV_DONTNEED),
        callWith("madvise", 2, MADV_FREE), // the allocator of Qt Pdf

        // Requests and documents come as packets, and results go back as packets or bytes.
        {"recvmsg"},
        {"sendmsg"},
        {"read"},
        {"write"},
        {"writev"}, // messages of the C library before it aborts
        {"close"},

        // A received memory file: its seals, its length, and a descriptor of our own.
        callWith("fcntl", 1, F_GET_SEALS),
        callWith("fcntl", 1, F_DUPFD_CLOEXEC),
        callWith("fcntl64", 1, F_GET_SEALS),
        callWith("fcntl64", 1, F_DUPFD_CLOEXEC),
        {"lseek"},
        {"_llseek"},

        // Initializing something once wakes up those who wait for it, though nobody does.
        {"futex"},
        {"futex_time64"},

        // Seeds of hash tables.
        {"getrandom"},

        // Clocks, where the kernel cannot answer in the memory of the process.
        {"clock_gettime"},
        {"clock_gettime64"},
        {"gettimeofday"},
        {"time"},

        // The size of the machine's memory, by which the C library chooses a way of sorting.
        {"sysinfo"},

        // abort(): the signal goes to this process only.
        {"getpid"},
        {"gettid"},
        {"rt_sigaction"},
        {"rt_sigprocmask"},
        callWith("tgkill", 0, ::getpid()),

        // Going on after a signal, or after a debugger has stopped the process.
        {"rt_sigreturn"},
        {"sigreturn"},
        {"restart_syscall"},

        {"exit"},
        {"exit_group"},
    };
    // Sanitizers look for the stack before an exception, have threads that wait, and find out through a pipe
    // whether memory can be read.
    if (isSanitized)
        calls.insert(calls.end(),
            {{"sigaltstack"}, {"nanosleep"}, {"clock_nanosleep"}, {"sched_yield"}, {"pipe"}, {"pipe2"}});
    if (files == FileAccess::Reading) {
        // Fonts are opened when a text needs them. The other access modes, O_PATH, O_CREAT, O_TRUNC and all
        // flags of the future stay out.
        constexpr int allowedFlags = O_CLOEXEC | O_LARGEFILE;
        calls.push_back(callWithout("openat", 2, ~quint64{allowedFlags}));
    }
    return calls;
}
