// SPDX-License-Identifier: MIT
#include "platform/sandbox/Sandbox.h"

#include "platform/sandbox/ConfinedSanitizer.h"
#include "platform/sandbox/Landlock.h"
#include "platform/sandbox/SystemCallFilter.h"
#include "platform/system/Processes.h"

#include <QStringList>

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

void forbidCoreFiles()
{
    keepMemoryPrivate();
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
}

// Standard error may be a terminal, which is open for reading too: whoever reads from it takes what the user
// types there. Other programs may share its place in a file. A socket cannot be opened again.
void openErrorsForWritingOnly()
{
    // A pipe that nobody reads would block.
    OwnedDescriptor errors(::open("/proc/self/fd/2", O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!errors && ::isatty(STDERR_FILENO) != 0)
        errors = OwnedDescriptor(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    if (!errors)
        return;
    ::fcntl(errors.get(), F_SETFL, O_APPEND);
    ::dup2(errors.get(), STDERR_FILENO);
}

// Otherwise a line in a log that is a file would kill the process, instead of being lost.
void forbidGrowingFiles()
{
    ::signal(SIGXFSZ, SIG_IGN);
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_FSIZE, &none);
}

/// Returns what is in force so far.
SandboxReport restrictFiles(const QByteArrayList &readable)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    forbidCoreFiles();
    openErrorsForWritingOnly();
    prepareSanitizerForConfinement();
    forbidGrowingFiles();

    SandboxReport report;
    // The other two need it.
    report.hasNoNewPrivileges = ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    Landlock landlock;
    for (const QByteArray &path : readable)
        landlock.allowReading(path);
    report.landlockVersion = landlock.enforce();
    return report;
}

} // namespace

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

SandboxReport enterDocumentSandbox()
{
    SandboxReport report = restrictFiles({});
    report.hasSystemCallFilter = restrictSystemCalls(allowedCalls(FileAccess::None));
    return report;
}

SandboxReport enterDocumentSandbox(
    const QByteArrayList &fonts, const std::function<void(FontAccess)> &loadFonts)
{
    SandboxReport report = restrictFiles(fonts);
    const bool hasLandlock = report.landlockVersion > 0;
    loadFonts(hasLandlock ? FontAccess::WhenNeeded : FontAccess::Once);
    report.hasSystemCallFilter =
        restrictSystemCalls(allowedCalls(hasLandlock ? FileAccess::Reading : FileAccess::None));
    return report;
}
