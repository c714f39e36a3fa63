// SPDX-License-Identifier: MIT
#include "platform/system/Processes.h"

#include "platform/system/SystemError.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <utility>
#include <vector>

namespace {

// This process may block and ignore signals that the child must obey.
class SpawnAttributes {
public:
    SpawnAttributes()
    {
        sigset_t none;
        sigset_t all;
        ::sigemptyset(&none);
        ::sigfillset(&all);
        ::posix_spawnattr_init(&m_attributes);
        ::posix_spawnattr_setsigmask(&m_attributes, &none);
        ::posix_spawnattr_setsigdefault(&m_attributes, &all);
        ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnAttributes(const SpawnAttributes &) = delete;
    SpawnAttributes &operator=(const SpawnAttributes &) = delete;
    ~SpawnAttributes() { ::posix_spawnattr_destroy(&m_attributes); }

    [[nodiscard]] const posix_spawnattr_t *get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes{};
};

/// The words as posix_spawn() takes them; valid as long as the list is not changed.
std::vector<char *> argumentVector(QByteArrayList &words)
{
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    return arguments;
}

} // namespace

ChildFiles::ChildFiles()
{
    ::posix_spawn_file_actions_init(&m_actions);
}

ChildFiles::~ChildFiles()
{
    ::posix_spawn_file_actions_destroy(&m_actions);
}

ChildFiles &ChildFiles::open(int number, const char *path, int flags)
{
    ::posix_spawn_file_actions_addopen(&m_actions, number, path, flags, 0);
    return *this;
}

ChildFiles &ChildFiles::duplicate(int descriptor, int number)
{
    ::posix_spawn_file_actions_adddup2(&m_actions, descriptor, number);
    return *this;
}

ChildFiles &ChildFiles::closeFrom(int number)
{
    ::posix_spawn_file_actions_addclosefrom_np(&m_actions, number);
    return *this;
}

std::optional<LaunchedChild> launchChild(
    const QByteArray &path, QByteArrayList arguments, const ChildFiles &files)
{
    pid_t process = 0;
    errno = ::posix_spawn(&process, path.constData(), files.get(), SpawnAttributes().get(),
        argumentVector(arguments).data(), environ);
    if (errno != 0)
        return std::nullopt;
    // C++ cannot include the header of pidfd_open() everywhere.
    OwnedDescriptor processFile(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    if (!processFile) {
        const int number = errno;
        ::kill(process, SIGKILL);
        reapChild(process);
        errno = number;
        return std::nullopt;
    }
    return LaunchedChild{process, std::move(processFile)};
}

std::optional<int> reapChild(pid_t process)
{
    int status = 0;
    while (::waitpid(process, &status, 0) < 0) {
        if (errno != EINTR)
            return std::nullopt;
    }
    return status;
}

bool waitUntilReadable(int descriptor, std::chrono::milliseconds timeout)
{
    using SteadyClock = std::chrono::steady_clock;
    const SteadyClock::time_point deadline = SteadyClock::now() + timeout;
    pollfd request{descriptor, POLLIN, 0};
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - SteadyClock::now());
        if (left.count() <= 0)
            return false;
        const int ready = ::poll(&request, 1, static_cast<int>(std::min<qint64>(left.count(), INT_MAX)));
        if (ready > 0)
            return true;
        if (ready < 0 && errno != EINTR)
            return false;
    }
}

QString messageText(const LaunchError &error)
{
    return QCoreApplication::translate("platform/system", "%1 cannot be started: %2")
        .arg(error.launchPath, translatedSystemError(error.systemError));
}

std::optional<LaunchError> launchDetached(const QString &launchPath, const QStringList &arguments)
{
    QByteArrayList words{QFile::encodeName(launchPath)};
    for (const QString &argument : arguments)
        words.append(QFile::encodeName(argument));
    const std::vector<char *> vector = argumentVector(words);
    ChildFiles files;
    files.open(STDIN_FILENO, "/dev/null", O_RDONLY)
        .open(STDOUT_FILENO, "/dev/null", O_WRONLY)
        .closeFrom(STDERR_FILENO + 1);
    const SpawnAttributes attributes;

    // The program is started by a child that exits at once, so that init inherits and reaps it. Everything is
    // prepared before the fork: another thread may hold the allocator's lock.
    const pid_t middle = ::fork();
    if (middle < 0)
        return LaunchError{launchPath, errno};
    if (middle == 0) {
        ::setsid();
        pid_t process = 0;
        ::_exit(
            ::posix_spawn(&process, vector.front(), files.get(), attributes.get(), vector.data(), environ));
    }
    const std::optional<int> status = reapChild(middle);
    // The exit status is the errno of the launch.
    const int number = status && WIFEXITED(*status) ? WEXITSTATUS(*status) : ECHILD;
    return number == 0 ? std::nullopt : std::optional(LaunchError{launchPath, number});
}

void keepMemoryPrivate()
{
    ::prctl(PR_SET_DUMPABLE, 0);
}
