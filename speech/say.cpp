// SPDX-License-Identifier: MIT
// say PHRASE: speaks its one argument through the user's speech dispatcher, or through espeak-ng. It exits
// when the dispatcher has accepted the phrase, or when espeak-ng has spoken it. It links no library, so that
// it starts at once.
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// The dispatcher accepts a phrase within milliseconds, or within a second or two if it must start first.
constexpr std::chrono::seconds timeout{10};
constexpr std::chrono::milliseconds step{5};

/// Whether the process exits with status 0 before the timeout; after it, the process is killed.
bool succeeds(pid_t process)
{
    int status = 0;
    for (auto waited = std::chrono::milliseconds(0); waited < timeout; waited += step) {
        const pid_t ended = waitpid(process, &status, WNOHANG);
        if (ended == process)
            return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        if (ended < 0 && errno != EINTR)
            return false;
        std::this_thread::sleep_for(step);
    }
    kill(process, SIGKILL);
    waitpid(process, &status, 0);
    return false;
}

/// Whether the speech dispatcher has accepted the phrase. Does not wait until all is spoken: on a machine
/// without sound that would take forever.
bool speakByDispatcher(char *phrase)
{
    std::array<char, 8> program{"spd-say"};
    std::array<char, 3> endOfOptions{"--"};
    std::array<char *, 4> arguments{program.data(), endOfOptions.data(), phrase, nullptr};
    posix_spawn_file_actions_t actions;
    if (posix_spawn_file_actions_init(&actions) != 0)
        return false;
    // Its errors do not matter as long as espeak-ng speaks.
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int failure = posix_spawnp(&process, program.data(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return failure == 0 && succeeds(process);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 2) {
        std::fputs("usage: say PHRASE\n", stderr);
        return 2;
    }
    if (speakByDispatcher(arguments[1]))
        return 0;
    execlp("espeak-ng", "espeak-ng", "--", arguments[1], static_cast<char *>(nullptr));
    std::fprintf(stderr,
        "say: cannot speak: spd-say failed and espeak-ng cannot be started (%s); install the package "
        "espeak-ng or speech-dispatcher\n",
        ::strerrordesc_np(errno)); // always English, unlike strerror()
    return 1;
}
