// SPDX-License-Identifier: MIT
#include "platform/sandbox/Sandbox.h"

#include "platform/system/Processes.h"

#include <QStringList>

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>

QString sandboxDescription(const SandboxReport &report)
{
    const QStringList parts{
        report.hasNoNewPrivileges ? QStringLiteral("no new privileges")
                                  : QStringLiteral("new privileges not ruled out"),
        report.landlockVersion > 0 ? QStringLiteral("Landlock %1").arg(report.landlockVersion)
                                   : QStringLiteral("no Landlock in this kernel"),
        report.hasSystemCallFilter ? QStringLiteral("a system call filter")
                                   : QStringLiteral("no system call filter in this kernel"),
    };
    return parts.join(QStringLiteral(", "));
}

void Sandbox::exitWithParent()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

void Sandbox::keepMemoryPrivate()
{
    ::keepMemoryPrivate();
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
}

void Sandbox::forbidGrowingFiles()
{
    // Otherwise a log line to a file would kill the process, instead of being lost.
    ::signal(SIGXFSZ, SIG_IGN);
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_FSIZE, &none);
}

void Sandbox::allowReading(const QByteArrayList &paths)
{
    for (const QByteArray &path : paths)
        m_landlock.allowReading(path);
}

void Sandbox::forbidChangingFiles()
{
    m_filter.refuseOpeningToWrite();
    m_filter.refuse({"truncate", "rename", "renameat", "renameat2", "link", "linkat", "symlink", "symlinkat",
        "unlink", "unlinkat", "mkdir", "mkdirat", "rmdir", "mknod", "mknodat"});
    // Landlock does not cover these.
    m_filter.refuse({"chmod", "fchmod", "fchmodat", "fchmodat2", "chown", "lchown", "fchown", "fchownat",
        "setxattr", "lsetxattr", "fsetxattr", "removexattr", "lremovexattr", "fremovexattr", "utime",
        "utimes", "futimesat", "utimensat"});
}

void Sandbox::forbidStartingPrograms()
{
    m_filter.refuse({"execve", "execveat"});
    m_filter.refuseNewProcesses();
}

void Sandbox::forbidConnecting()
{
    // Landlock covers TCP and abstract sockets; without new sockets there are no others either.
    m_filter.refuse({"socket", "socketpair", "connect", "bind", "listen", "accept", "accept4", "socketcall"});
    // System V and POSIX message passing, which needs no sockets.
    m_filter.refuse({"msgget", "msgsnd", "msgrcv", "msgctl", "semget", "semop", "semtimedop", "semctl",
        "shmget", "shmat", "shmctl", "ipc", "mq_open", "mq_unlink"});
}

void Sandbox::forbidTouchingOtherProcesses()
{
    m_filter.refuseSignalsToOthers();
    m_filter.refuse({"ptrace", "process_vm_readv", "process_vm_writev", "process_madvise", "process_mrelease",
        "pidfd_open", "pidfd_getfd", "kcmp", "move_pages", "migrate_pages"});
    m_filter.refuseTyping();
}

void Sandbox::forbidRaisingLimits()
{
    m_filter.refuseNewLimits();
}

void Sandbox::forbidPrivilegedCalls()
{
    m_filter.refuse({"mount", "umount", "umount2", "pivot_root", "chroot", "move_mount", "open_tree",
        "fsopen", "fsconfig", "fsmount", "fspick", "mount_setattr", "unshare", "setns"});
    m_filter.refuse({"setuid", "setgid", "setreuid", "setregid", "setresuid", "setresgid", "setfsuid",
        "setfsgid", "setgroups", "capset"});
    m_filter.refuse({"bpf", "perf_event_open", "io_uring_setup", "io_uring_enter", "io_uring_register",
        "userfaultfd", "keyctl", "add_key", "request_key", "memfd_secret", "name_to_handle_at",
        "open_by_handle_at", "fanotify_init", "lookup_dcookie", "syslog", "acct", "quotactl", "quotactl_fd"});
    m_filter.refuse({"init_module", "finit_module", "delete_module", "kexec_load", "kexec_file_load",
        "reboot", "swapon", "swapoff", "settimeofday", "clock_settime", "adjtimex", "clock_adjtime",
        "sethostname", "setdomainname", "iopl", "ioperm", "modify_ldt", "vhangup"});
}

SandboxReport Sandbox::enter()
{
    SandboxReport report;
    // The other two need it.
    report.hasNoNewPrivileges = ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    report.landlockVersion = m_landlock.enforce();
    report.hasSystemCallFilter = m_filter.load();
    return report;
}

SandboxReport enterDocumentSandbox(const QByteArrayList &fonts)
{
    Sandbox sandbox;
    sandbox.exitWithParent();
    sandbox.keepMemoryPrivate();
    sandbox.forbidGrowingFiles();

    sandbox.allowReading(fonts);
    sandbox.allowReading({"/usr/share/icu", "/usr/share/locale", "/usr/lib/locale"});
    sandbox.allowReading({"/sys/devices/system/cpu"}); // the number of processors

    sandbox.forbidChangingFiles();
    sandbox.forbidStartingPrograms();
    sandbox.forbidConnecting();
    sandbox.forbidTouchingOtherProcesses();
    sandbox.forbidRaisingLimits();
    sandbox.forbidPrivilegedCalls();
    return sandbox.enter();
}
