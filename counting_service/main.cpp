// SPDX-License-Identifier: MIT
// The counting service: the broker that the session bus starts, and the workers that the broker starts.
#include "counting_service/broker/CountingService.h"
#include "counting_service/worker/CountingWorker.h"
#include "platform/sandbox/FontSources.h"
#include "platform/sandbox/Sandbox.h"
#include "platform/system/Processes.h"
#include "platform/system/TerminationSignals.h"

#include <QCoreApplication>

#include <charconv>
#include <cstdio>
#include <optional>
#include <string_view>

namespace {

constexpr int wrongUsage = 2;
constexpr char workerArgument[] = "--worker"; // private: workers are started by the broker alone

constexpr char helpText[] = R"(Usage: quillbay-counting-service [--idle-time=MILLISECONDS]

Counts documents for other programs. The session bus starts it when somebody asks for
Brisklane.QBYServiceProviderXPC; it leaves when nobody has asked for a while.

Options:
  --idle-time=MILLISECONDS  how long it stays without a request (60000)
  -h, --help                show this and leave
  --version                 show the version and leave
)";

int printed(const char *text)
{
    std::fputs(text, stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}

std::optional<std::chrono::milliseconds> idleTimeFrom(std::string_view word)
{
    constexpr std::string_view option = "--idle-time=";
    constexpr int longest = 24 * 60 * 60 * 1000;
    if (!word.starts_with(option))
        return std::nullopt;
    word.remove_prefix(option.size());
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size() || number < 0 || number > longest)
        return std::nullopt;
    return std::chrono::milliseconds(number);
}

int work()
{
    // What it costs in memory and processor time is limited by the broker, from outside and anew for every
    // document.
    const SandboxReport sandbox = enterDocumentSandbox(FontSources::current().readable);
    return CountingWorker().run(sandbox);
}

int serve(int argumentCount, char **arguments, std::chrono::milliseconds idleTime)
{
    // Before there is another thread, which would take the signals otherwise.
    TerminationSignals::block();
    const QCoreApplication application(argumentCount, arguments);
    CountingService service({.path = "/proc/self/exe", .arguments = {workerArgument}}, idleTime);
    const TerminationSignals signals([&service] { service.leave(); });
    return service.start() ? QCoreApplication::exec() : 1;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    keepMemoryPrivate();
    const std::string_view word = argumentCount > 1 ? arguments[1] : "";
    if (word == workerArgument)
        return work();
    if (word == "--help" || word == "-h")
        return printed(helpText);
    if (word == "--version")
        return printed("quillbay-counting-service " QUILLBAY_VERSION "\n");
    const std::optional<std::chrono::milliseconds> idleTime =
        word.empty() ? CountingService::usualIdleTime : idleTimeFrom(word);
    if (idleTime && argumentCount <= 2)
        return serve(argumentCount, arguments, *idleTime);
    std::fputs("quillbay-counting-service: wrong arguments\n"
               "Try 'quillbay-counting-service --help' for more.\n",
        stderr);
    return wrongUsage;
}
