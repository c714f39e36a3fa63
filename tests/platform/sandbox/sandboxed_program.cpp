// SPDX-License-Identifier: MIT
// A program in its sandbox that tries what a document could make it try. Arguments: "worker", "thread",
// "reader" or "free", for the sandbox of a counting worker, a thread that helps a worker, the sandbox of a
// reader, or none; then attempts, each as NAME or NAME=ARGUMENT. Prints what the sandbox is made of, and for
// each attempt a line: "done", or the name of the error.
#include "counting_service/worker/CountingWorker.h"
#include "platform/sandbox/FontSources.h"
#include "platform/sandbox/Sandbox.h"
#include "platform/system/ThreadTeam.h"
#include "tests/platform/sandbox/Attempts.h"
#include "text_statistics/WordCounterModel.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <span>
#include <string>

namespace {

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

// Helps a worker: starts where the threads of a worker do.
std::unique_ptr<ThreadTeam> team;

SandboxReport enter(const std::string &kind)
{
    if (kind == "reader")
        return enterDocumentSandbox();
    if (kind != "worker" && kind != "thread")
        return {};
    CountingWorker worker;
    return enterDocumentSandbox(FontSources::current().readable, [&](FontAccess access) {
        worker.loadFonts(access);
        if (kind == "thread")
            team = std::make_unique<ThreadTeam>(1);
    });
}

void makeAttempts(std::span<char *const> attempts)
{
    for (const char *const word : attempts) {
        const std::string all = word;
        const size_t end = std::min(all.find('='), all.size());
        const std::string name = all.substr(0, end);
        const std::string argument = all.substr(std::min(end + 1, all.size()));
        if (name == "count")
            printLines();
        else if (name == "unlisted-calls")
            std::printf("%s\n", unlistedCalls().c_str());
        else
            std::printf("%s\n", attempt(name, argument.c_str()) >= 0 ? "done" : strerrorname_np(errno));
    }
}

} // namespace

int main(int argumentCount, char **arguments)
{
    std::printf("%s\n", sandboxDescription(enter(arguments[1])).toUtf8().constData());
    const auto attempts = std::span<char *const>(arguments, static_cast<size_t>(argumentCount)).subspan(2);
    if (team) {
        team->start([attempts](int) { makeAttempts(attempts); });
        team.reset(); // waits
    } else {
        makeAttempts(attempts);
    }
    std::fflush(stdout);
    return 0;
}
