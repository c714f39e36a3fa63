// SPDX-License-Identifier: MIT
// The quillbay command: the counts in a terminal.
#include "command/CountArguments.h"
#include "command/CountCommand.h"

#include <QCoreApplication>

#include <cstdio>
#include <string_view>

namespace {

constexpr int wrongUsage = 2;

constexpr char helpText[] = R"(Usage: quillbay COMMAND …

Counts text for people who write.

Commands:
  count      the counts of files or of standard input

Options:
  -h, --help  show this and leave
  --version   show the version and leave

'quillbay count --help' tells more about that command.
)";

int printed(const char *text)
{
    std::fputs(text, stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}

int count(int argumentCount, char **arguments)
{
    const std::optional<CountArguments> wanted = CountArguments::fromWords(argumentCount - 2, arguments + 2);
    if (!wanted)
        return wrongUsage;
    if (wanted->wantsHelp)
        return printed(CountArguments::helpText());
    const QCoreApplication application(argumentCount, arguments);
    return CountCommand(*wanted).run();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const std::string_view command = argumentCount > 1 ? arguments[1] : "";
    if (command == "--help" || command == "-h")
        return printed(helpText);
    if (command == "--version")
        return printed("quillbay " QUILLBAY_VERSION "\n");
    if (command == "count")
        return count(argumentCount, arguments);
    if (command.empty())
        std::fputs("quillbay: no command given\n", stderr);
    else
        std::fprintf(stderr, "quillbay: no command '%s'\n", arguments[1]);
    std::fputs("Try 'quillbay --help' for more.\n", stderr);
    return wrongUsage;
}
