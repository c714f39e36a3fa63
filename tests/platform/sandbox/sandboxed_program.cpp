// SPDX-License-Identifier: MIT
// A program in its sandbox that tries what a document could make it try. Arguments: "counting", "pdf" or
// "free", for a counting worker, the reader of PDF files or no sandbox; then words, each followed by what it
// needs. Prints what the sandbox is made of, and for each word what came of it: "done", or the name of the
// error.
#include "pdf_reader/Confinement.h"
#include "platform/sandbox/FontSources.h"
#include "platform/sandbox/Sandbox.h"
#include "text_statistics/WordCounterModel.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <thread>

namespace {

using Attempt = long (*)(const char *argument);

long openAs(const char *path, int flags)
{
    const int descriptor = ::open(path, flags | O_CLOEXEC, 0600);
    if (descriptor >= 0)
        ::close(descriptor);
    return descriptor;
}

long made(long process)
{
    if (process == 0)
        ::_exit(0);
    return process;
}

long threads(const char *)
{
    int sum = 0;
    std::thread([&sum] { ++sum; }).join();
    return sum == 1 ? 0 : -1;
}

long fork3(const char *)
{
    // As the C library does, with the flags in a structure that no filter sees.
    struct {
        unsigned long long flags, pidfd, childTid, parentTid, exitSignal, stack, stackSize, tls;
    } arguments{};
    arguments.exitSignal = SIGCHLD;
    return made(::syscall(SYS_clone3, &arguments, sizeof arguments));
}

long liftLimit(const char *)
{
    const rlimit some{1000, 1000};
    return ::setrlimit(RLIMIT_CPU, &some);
}

const std::map<std::string, Attempt> attempts{
    {"read", [](const char *path) { return openAs(path, O_RDONLY); }},
    {"write", [](const char *path) { return openAs(path, O_WRONLY); }},
    {"append", [](const char *path) { return openAs(path, O_RDWR | O_APPEND); }},
    {"create", [](const char *path) { return openAs(path, O_RDONLY | O_CREAT); }},
    {"truncate", [](const char *path) -> long { return ::truncate(path, 0); }},
    {"rename", [](const char *path) -> long { return ::rename(path, (std::string(path) + "-2").c_str()); }},
    {"unlink", [](const char *path) -> long { return ::unlink(path); }},
    {"mkdir", [](const char *path) -> long { return ::mkdir(path, 0700); }},
    {"chmod", [](const char *path) -> long { return ::chmod(path, 0777); }},
    {"list", [](const char *path) { return openAs(path, O_RDONLY | O_DIRECTORY); }},
    {"tcp", [](const char *) -> long { return ::socket(AF_INET, SOCK_STREAM, 0); }},
    {"unix", [](const char *) -> long { return ::socket(AF_UNIX, SOCK_STREAM, 0); }},
    {"pair",
        [](const char *) -> long {
            std::array<int, 2> ends{};
            return ::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data());
        }},
    {"fork", [](const char *) -> long { return made(::fork()); }},
    {"vfork", [](const char *) -> long { return made(::syscall(SYS_vfork)); }},
    {"clone3", fork3},
    {"exec",
        [](const char *path) -> long {
            const std::array<char *, 2> words{const_cast<char *>(path), nullptr};
            return ::execv(path, words.data());
        }},
    {"thread", threads},
    {"kill-parent", [](const char *) -> long { return ::kill(::getppid(), 0); }},
    {"kill-self", [](const char *) -> long { return ::kill(::getpid(), 0); }},
    {"trace-parent",
        [](const char *) -> long { return ::ptrace(PTRACE_ATTACH, ::getppid(), nullptr, nullptr); }},
    {"unshare", [](const char *) -> long { return ::unshare(CLONE_NEWUSER); }},
    {"io-uring", [](const char *) -> long { return ::syscall(SYS_io_uring_setup, 1, nullptr); }},
    {"bpf", [](const char *) -> long { return ::syscall(SYS_bpf, 0, nullptr, 0); }},
    {"keys", [](const char *) -> long { return ::syscall(SYS_keyctl, 0, 0, 0); }},
    {"lift-limit", liftLimit},
};

// The lines of a text in fonts of three scripts, on a page of Letter with margins of an inch.
void printLines()
{
    WordCounterModel model([] {
        CountingRules rules;
        rules.text.localeIdentifier = [] { return QStringLiteral("en_US"); };
        rules.page = {
            .paperName = std::nullopt, .paperSize = {612, 792}, .leftMargin = 72, .rightMargin = 72};
        return rules;
    });
    model.setAttributedStringToCount(
        AttributedString(QStringLiteral("Some words, 言葉, слова. ").repeated(100)));
    std::printf("%llu\n", static_cast<unsigned long long>(model.numberOfLines()));
}

SandboxReport enter(const std::string &kind)
{
    if (kind == "counting")
        return enterDocumentSandbox(FontSources::current().readable);
    constexpr std::chrono::seconds time(60);
    if (kind == "pdf")
        return confine({.processorTime = time, .realTime = time, .memory = 100'000'000, .length = 1});
    return {};
}

} // namespace

int main(int argumentCount, char **arguments)
{
    std::printf("%s\n", sandboxDescription(enter(arguments[1])).toUtf8().constData());
    for (int i = 2; i < argumentCount; ++i) {
        const auto [word, argument] = [&] {
            const std::string all = arguments[i];
            const size_t end = all.find('=');
            return std::make_pair(all.substr(0, end), end == std::string::npos ? "" : all.substr(end + 1));
        }();
        if (word == "count") {
            printLines();
            continue;
        }
        errno = 0;
        const bool isDone = attempts.at(word)(argument.c_str()) >= 0;
        std::printf("%s\n", isDone ? "done" : strerrorname_np(errno));
    }
    std::fflush(stdout);
    return 0;
}
