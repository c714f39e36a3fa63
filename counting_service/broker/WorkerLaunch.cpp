// SPDX-License-Identifier: MIT
#include "counting_service/broker/WorkerLaunch.h"

#include "counting_service/worker/CountingWorker.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

namespace {

// What is open in the worker: nothing to read, the log, the connection.
class FileActions {
public:
    explicit FileActions(int socket)
    {
        ::posix_spawn_file_actions_init(&m_actions);
        ::posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_adddup2(&m_actions, STDERR_FILENO, STDOUT_FILENO);
        ::posix_spawn_file_actions_adddup2(&m_actions, socket, CountingWorker::socket);
        ::posix_spawn_file_actions_addclosefrom_np(&m_actions, CountingWorker::socket + 1);
    }
    FileActions(const FileActions &) = delete;
    FileActions &operator=(const FileActions &) = delete;
    ~FileActions() { ::posix_spawn_file_actions_destroy(&m_actions); }

    [[nodiscard]] const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

// The broker blocks and ignores signals that the worker must obey.
class Attributes {
public:
    Attributes()
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
    Attributes(const Attributes &) = delete;
    Attributes &operator=(const Attributes &) = delete;
    ~Attributes() { ::posix_spawnattr_destroy(&m_attributes); }

    [[nodiscard]] const posix_spawnattr_t *get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes{};
};

} // namespace

std::optional<LaunchedWorker> launchWorker(const QByteArray &path, const QByteArrayList &arguments)
{
    auto sockets = connectedSockets();
    if (!sockets)
        return std::nullopt;
    QByteArray name = program_invocation_name;
    QByteArrayList copies = arguments;
    std::vector<char *> words{name.data()};
    for (QByteArray &argument : copies)
        words.push_back(argument.data());
    words.push_back(nullptr);
    pid_t process = 0;
    errno = ::posix_spawn(&process, path.constData(), FileActions(sockets->second.get()).get(),
        Attributes().get(), words.data(), environ);
    if (errno != 0)
        return std::nullopt;
    // The header of pidfd_open() cannot be used from C++ everywhere.
    OwnedDescriptor processFile(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    if (!processFile) {
        const int number = errno;
        ::kill(process, SIGKILL);
        ::waitpid(process, nullptr, 0);
        errno = number;
        return std::nullopt;
    }
    return LaunchedWorker{process, std::move(processFile), std::move(sockets->first)};
}
