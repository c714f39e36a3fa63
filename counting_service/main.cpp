// SPDX-License-Identifier: MIT
// The counting service: the broker, started by the session bus, and the workers, started by the broker.
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
constexpr char workerArgument[] = "--worker"; // internal: only the broker starts workers

constexpr char helpText[] = R"(Usage: quillbay-counting-service [--idle-time=MILLISECONDS]

Counts documents for other programs. The session bus starts it for the first request to
Brisklane.QBYServiceProviderXPC; it exits when it has been idle for a while.

Options:
  --idle-time=MILLISECONDS  exit after being idle for this long (default: 60000)
  -h, --help                print this help and exit
  --version                 print the version and exit
)";

int printText(const char *text)
{
    std::fputs(text, stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}

std::optional<std::chrono::milliseconds> idleTimeFrom(std::string_view word)
{
    constexpr std::string_view option = "--idle-time=";
    constexpr int maxIdleTime = 24 * 60 * 60 * 1000;
    if (!word.starts_with(option))
        return std::nullopt;
    word.remove_prefix(option.size());
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size() || number < 0 || number > maxIdleTime)
        return std::nullopt;
    return std::chrono::milliseconds(number);
}

int runWorker()
{
    // The broker limits the memory and processor time, separately for every document.
    CountingWorker worker;
    const SandboxReport sandbox = enterDocumentSandbox(
        FontSources::current().readable, [&worker](FontAccess access) { worker.loadFonts(access); });
    return worker.run(sandbox);
}

int runBroker(int argumentCount, char **arguments, std::chrono::milliseconds idleTime)
{
    // Before the first thread starts, which would receive the signals otherwise.
    TerminationSignals::block();
    const QCoreApplication application(argumentCount, arguments);
    CountingService service({.path = "/proc/self/exe", .arguments = {workerArgument}}, idleTime);
    const TerminationSignals signals([&service] { service.stop(); });
    return service.start() ? QCoreApplication::exec() : 1;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    keepMemoryPrivate();
    const std::string_view word = argumentCount > 1 ? arguments[1] : "";
    if (word == workerArgument)
        return runWorker();
    if (word == "--help" || word == "-h")
        return printText(helpText);
    if (word == "--version")
        return printText("quillbay-counting-service " QUILLBAY_VERSION "\n");
    const std::optional<std::chrono::milliseconds> idleTime =
        word.empty() ? CountingService::defaultIdleTime : idleTimeFrom(word);
    if (idleTime && argumentCount <= 2)
        return runBroker(argumentCount, arguments, *idleTime);
    std::fputs("quillbay-counting-service: invalid arguments\n"
               "Try 'quillbay-counting-service --help' for more.\n",
        stderr);
    return wrongUsage;
}
