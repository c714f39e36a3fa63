// SPDX-License-Identifier: MIT
#include "platform/system/ChildLaunch.h"

#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <utility>
#include <vector>

namespace {

// This process may block and ignore signals that the child must obey.
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
    const QByteArray &path, QByteArrayList words, const ChildFiles &files)
{
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = 0;
    errno =
        ::posix_spawn(&process, path.constData(), files.get(), Attributes().get(), arguments.data(), environ);
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
    return LaunchedChild{process, std::move(processFile)};
}
