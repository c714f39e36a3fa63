// SPDX-License-Identifier: MIT
#include "tests/platform/sandbox/Attempts.h"

#include "platform/sandbox/AllowedCalls.h"

#include <fcntl.h>
#include <linux/io_uring.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <map>
#include <set>
#include <system_error>
#include <thread>

namespace {

using Attempt = long (*)(const char *argument);

long openAs(const char *path, int flags)
{
    // Without the C library, which adds flags of its own.
    const long descriptor = ::syscall(SYS_openat, AT_FDCWD, path, flags | O_CLOEXEC, 0600);
    if (descriptor >= 0)
        ::close(static_cast<int>(descriptor));
    return descriptor;
}

long endChild(long process)
{
    if (process == 0)
        ::_exit(0);
    return process;
}

long cloneWith(unsigned long flags)
{
    return endChild(::syscall(SYS_clone, flags | SIGCHLD, nullptr, nullptr, nullptr, nullptr));
}

long clone3(const char *)
{
    // As the C library does, with the flags in a structure that no filter sees.
    struct {
        unsigned long long flags, pidfd, childTid, parentTid, exitSignal, stack, stackSize, tls;
    } arguments{};
    arguments.exitSignal = SIGCHLD;
    return endChild(::syscall(SYS_clone3, &arguments, sizeof arguments));
}

long startThread(const char *)
{
    try {
        std::thread([] {}).join();
        return 0;
    } catch (const std::system_error &error) {
        errno = error.code().value();
        return -1;
    }
}

long execute(const char *path)
{
    const std::array<char *, 2> words{const_cast<char *>(path), nullptr};
    return ::execv(path, words.data());
}

long connectTo(const char *path)
{
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path, sizeof address.sun_path - 1);
    return socket < 0 ? -1 : ::connect(socket, reinterpret_cast<sockaddr *>(&address), sizeof address);
}

long map(size_t length, int protection)
{
    const void *const bytes =
        ::mmap(nullptr, length, protection, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return bytes == MAP_FAILED ? -1 : 0;
}

long makeExecutable(const char *)
{
    const auto page = static_cast<size_t>(::sysconf(_SC_PAGESIZE));
    void *const bytes = ::mmap(nullptr, page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return bytes == MAP_FAILED ? -1 : ::mprotect(bytes, page, PROT_READ | PROT_EXEC);
}

long raiseLimit(__rlimit_resource resource)
{
    const rlimit more{RLIM_INFINITY, RLIM_INFINITY};
    return ::syscall(SYS_prlimit64, 0, resource, &more, nullptr);
}

long readFromErrors(const char *)
{
    char byte = 0;
    return ::read(STDERR_FILENO, &byte, 1);
}

long setAffinity(const char *)
{
    cpu_set_t processors;
    std::memset(&processors, 0xFF, sizeof processors);
    return ::syscall(SYS_sched_setaffinity, ::getppid(), sizeof processors, &processors);
}

long schedule(const char *)
{
    const sched_param normal{};
    return ::syscall(SYS_sched_setscheduler, ::getppid(), SCHED_OTHER, &normal);
}

long startRing(const char *)
{
    io_uring_params parameters{};
    return ::syscall(SYS_io_uring_setup, 1, &parameters);
}

// Calls that are newer than libseccomp. Their numbers are the same on all architectures.
constexpr long setxattrat = 463;
constexpr long removexattrat = 466;
constexpr long fileSetattr = 469;

const std::map<std::string, Attempt> attempts{
    // Files.
    {"read", [](const char *path) { return openAs(path, O_RDONLY); }},
    {"list", [](const char *path) { return openAs(path, O_RDONLY | O_DIRECTORY); }},
    {"write", [](const char *path) { return openAs(path, O_WRONLY); }},
    {"append", [](const char *path) { return openAs(path, O_RDWR | O_APPEND); }},
    {"mode-3", [](const char *path) { return openAs(path, O_ACCMODE); }},
    {"path", [](const char *path) { return openAs(path, O_PATH); }},
    {"create", [](const char *path) { return openAs(path, O_RDONLY | O_CREAT); }},
    {"temporary", [](const char *path) { return openAs(path, O_RDWR | O_TMPFILE); }},
    {"truncate", [](const char *path) -> long { return ::truncate(path, 0); }},
    {"rename", [](const char *path) -> long { return ::rename(path, path); }},
    {"unlink", [](const char *path) -> long { return ::unlink(path); }},
    {"mkdir", [](const char *path) -> long { return ::mkdir(path, 0700); }},
    {"symlink", [](const char *path) -> long { return ::symlink("/etc", path); }},
    {"chmod", [](const char *path) -> long { return ::chmod(path, 0600); }},
    {"stat",
        [](const char *path) -> long {
            struct stat s { };
            return ::stat(path, &s);
        }},
    {"access", [](const char *path) -> long { return ::access(path, R_OK); }},
    {"setxattrat",
        [](const char *path) { return ::syscall(setxattrat, AT_FDCWD, path, 0, "user.a", nullptr, 0); }},
    {"removexattrat", [](const char *path) { return ::syscall(removexattrat, AT_FDCWD, path, 0, "user.a"); }},
    {"file-setattr", [](const char *path) { return ::syscall(fileSetattr, AT_FDCWD, path, nullptr, 0, 0); }},
    {"memory-file", [](const char *) -> long { return ::memfd_create("more", MFD_CLOEXEC); }},
    // Standard error, which may be a log or a terminal.
    {"truncate-errors", [](const char *) -> long { return ::ftruncate(STDERR_FILENO, 0); }},
    {"chmod-errors", [](const char *) -> long { return ::fchmod(STDERR_FILENO, 0600); }},
    {"write-errors", [](const char *) -> long { return ::write(STDERR_FILENO, "a line\n", 7); }},
    {"read-errors", readFromErrors},
    {"type", [](const char *) -> long { return ::ioctl(STDERR_FILENO, TIOCSTI, "x"); }},
    // Connections.
    {"socket", [](const char *family) -> long { return ::socket(std::stoi(family), SOCK_DGRAM, 0); }},
    {"connect", connectTo},
    {"pair",
        [](const char *) -> long {
            std::array<int, 2> ends{};
            return ::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data());
        }},
    {"shared-memory", [](const char *) { return ::syscall(SYS_shmget, 0, 4096, 0600); }},
    {"message-queue", [](const char *) { return ::syscall(SYS_msgget, 0, 0600); }},
    // Programs, processes and threads.
    {"exec", execute},
    {"fork", [](const char *) { return cloneWith(0); }},
    {"vfork", [](const char *) { return cloneWith(CLONE_VM | CLONE_VFORK); }},
    {"clone3", clone3},
    {"thread", startThread},
    {"user-namespace", [](const char *) -> long { return ::unshare(CLONE_NEWUSER); }},
    {"child-in-user-namespace", [](const char *) { return cloneWith(CLONE_NEWUSER); }},
    // Other processes.
    {"kill", [](const char *) -> long { return ::kill(::getppid(), 0); }},
    {"kill-thread", [](const char *) { return ::syscall(SYS_tgkill, ::getppid(), ::getppid(), 0); }},
    {"kill-all", [](const char *) -> long { return ::kill(-1, 0); }},
    {"process-file", [](const char *) { return ::syscall(SYS_pidfd_open, ::getppid(), 0); }},
    {"trace", [](const char *) { return ::syscall(SYS_ptrace, PTRACE_PEEKDATA, ::getppid(), 0, 0); }},
    {"read-memory",
        [](const char *) -> long { return ::syscall(SYS_process_vm_readv, ::getppid(), 0, 0, 0, 0, 0); }},
    {"priority",
        [](const char *) -> long { return ::setpriority(PRIO_PROCESS, static_cast<id_t>(::getppid()), 0); }},
    {"scheduler", schedule},
    {"affinity", setAffinity},
    {"disk-priority", [](const char *) { return ::syscall(SYS_ioprio_set, 1, ::getppid(), 0); }},
    {"limits-of-other",
        [](const char *) {
            rlimit old{};
            return ::syscall(SYS_prlimit64, ::getppid(), RLIMIT_CPU, nullptr, &old);
        }},
    {"owner-of-signals", [](const char *) -> long { return ::fcntl(STDIN_FILENO, F_SETOWN, ::getppid()); }},
    {"kind-of-signals", [](const char *) -> long { return ::fcntl(STDIN_FILENO, F_SETSIG, SIGKILL); }},
    {"signals", [](const char *) -> long { return ::fcntl(STDIN_FILENO, F_SETFL, O_ASYNC); }},
    // The kernel.
    {"io-uring", startRing},
    {"bpf", [](const char *) { return ::syscall(SYS_bpf, 0, nullptr, 0); }},
    {"keys", [](const char *) { return ::syscall(SYS_keyctl, 0, 0, 0); }},
    {"performance", [](const char *) { return ::syscall(SYS_perf_event_open, nullptr, 0, -1, -1, 0); }},
    {"page-faults", [](const char *) { return ::syscall(SYS_userfaultfd, 0); }},
    {"dumpable", [](const char *) -> long { return ::prctl(PR_SET_DUMPABLE, 1); }},
    // Memory.
    {"executable", [](const char *) { return map(4096, PROT_READ | PROT_WRITE | PROT_EXEC); }},
    {"make-executable", makeExecutable},
    {"more-memory", [](const char *) { return map(size_t{1} << 40, PROT_READ | PROT_WRITE); }},
    {"raise-memory", [](const char *) { return raiseLimit(RLIMIT_AS); }},
    {"raise-time", [](const char *) { return raiseLimit(RLIMIT_CPU); }},
    {"raise-file-size", [](const char *) { return raiseLimit(RLIMIT_FSIZE); }},
};

} // namespace

long attempt(const std::string &name, const char *argument)
{
    errno = 0;
    return attempts.at(name)(argument);
}

std::string unlistedCalls()
{
    std::set<long> listed;
    for (const AllowedCall &call : allowedCalls(FileAccess::Reading))
        listed.insert(seccomp_syscall_resolve_name(call.name));
#ifdef __x86_64__
    // uretprobe and uprobe: the kernel asks no filter about them, and kills whoever is not being probed.
    listed.insert({335, 336});
#endif
    constexpr long beyondAll = 1024;
    std::string numbers;
    for (long number = 0; number < beyondAll; ++number) {
        errno = 0;
        if (!listed.contains(number) && (::syscall(number, 0, 0, 0, 0, 0, 0) != -1 || errno != ENOSYS))
            numbers += std::to_string(number) + ' ';
    }
#ifdef __x86_64__
    // The same calls by their numbers of the x32 architecture.
    constexpr long x32 = 0x40000000;
    for (long number = x32; number < x32 + beyondAll; ++number) {
        errno = 0;
        if (!listed.contains(number - x32) && (::syscall(number, 0, 0, 0, 0, 0, 0) != -1 || errno != ENOSYS))
            numbers += std::to_string(number) + ' ';
    }
#endif
    return numbers;
}
