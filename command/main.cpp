// SPDX-License-Identifier: MIT
// The quillbay command: the counts in a terminal, and the ways to its windows.
#include "command/CommandWords.h"
#include "command/CountArguments.h"
#include "command/CountCommand.h"
#include "command/FileNames.h"
#include "command/SelectionCommand.h"
#include "command/TextCommand.h"
#include "command/WatchCommand.h"
#include "platform/system/Processes.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

constexpr char helpText[] = R"(Usage: quillbay COMMAND …

Counts text for people who write.

Commands:
  count      the counts of files or of standard input
  selection  the counts of the selected text of any application, in a window
  text       the counts of one file or of a pipe, in a window
  watch      the counts of files after every save, in windows

Options:
  -h, --help  show this and leave
  --version   show the version and leave

'quillbay COMMAND --help' tells more about a command.
)";

int runCountCommand(int wordCount, char **words)
{
    const std::optional<CountArguments> wanted = CountArguments::fromWords(wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp)
        return printed(CountArguments::helpText());
    return CountCommand(*wanted).run();
}

struct Command {
    std::string_view name;
    int (*run)(int wordCount, char **words); ///< words: those behind the name
};

constexpr Command commands[] = {
    {"count", runCountCommand},
    {"selection", runSelectionCommand},
    {"text", runTextCommand},
    {"watch", runWatchCommand},
};

} // namespace

int main(int argumentCount, char **arguments)
{
    keepMemoryPrivate();
    const std::string_view name = argumentCount > 1 ? arguments[1] : "";
    if (name == "--help" || name == "-h")
        return printed(helpText);
    if (name == "--version")
        return printed("quillbay " QUILLBAY_VERSION "\n");
    for (const Command &command : commands) {
        if (command.name == name) {
            const QCoreApplication application(argumentCount, arguments);
            const int status = command.run(argumentCount - 2, arguments + 2);
            // At once: Qt's thread for the bus may still take a message while an ordinary end clears away
            // what it needs for that.
            std::fflush(nullptr);
            std::_Exit(status);
        }
    }
    if (name.empty())
        std::fputs("quillbay: no command given\n", stderr);
    else
        std::fprintf(stderr, "quillbay: no command '%s'\n", printableName(arguments[1]).constData());
    std::fputs("Try 'quillbay --help' for more.\n", stderr);
    return wrongUsageStatus;
}
