// SPDX-License-Identifier: MIT
// The counting service: the broker, started by the session bus, and the workers, started by the broker.
#include "counting_service/broker/CountingService.h"
#include "counting_service/worker/CountingWorker.h"
#include "manual/HelpText.h"
#include "manual/ManualPages.h"
#include "platform/sandbox/FontSources.h"
#include "platform/sandbox/Sandbox.h"
#include "platform/system/Processes.h"
#include "platform/system/StandardOutput.h"
#include "platform/system/TerminationSignals.h"

#include <QCoreApplication>

#include <charconv>
#include <cstdio>
#include <optional>
#include <span>
#include <string_view>

namespace {

constexpr int wrongUsage = 2;
constexpr char workerArgument[] = "--worker"; // internal: only the broker starts workers

std::optional<std::chrono::milliseconds> parseIdleTime(std::string_view word)
{
    constexpr int maxIdleTime = 24 * 60 * 60 * 1000;
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size() || number < 0 || number > maxIdleTime)
        return std::nullopt;
    return std::chrono::milliseconds(number);
}

/// Of "--idle-time=NUMBER" or "--idle-time NUMBER", or the default; absent after wrong usage.
std::optional<std::chrono::milliseconds> idleTimeFrom(std::span<char *const> words)
{
    constexpr std::string_view option = "--idle-time";
    if (words.empty())
        return CountingService::defaultIdleTime;
    const std::string_view word = words[0];
    if (words.size() == 2 && word == option)
        return parseIdleTime(words[1]);
    const bool isOneWord =
        words.size() == 1 && word.starts_with(option) && word.substr(option.size()).starts_with('=');
    return isOneWord ? parseIdleTime(word.substr(option.size() + 1)) : std::nullopt;
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
        return printHelp(countingServicePage());
    if (word == "--version" || word == "-V")
        return printText("quillbay-counting-service " QUILLBAY_VERSION "\n");
    const std::span<char *const> words(arguments, static_cast<size_t>(argumentCount));
    if (const auto idleTime = idleTimeFrom(words.subspan(1)))
        return runBroker(argumentCount, arguments, *idleTime);
    std::fputs("quillbay-counting-service: invalid arguments\n"
               "Try 'quillbay-counting-service --help' for more.\n",
        stderr);
    return wrongUsage;
}
