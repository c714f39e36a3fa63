// SPDX-License-Identifier: MIT
// The quillbay command: counts in a terminal, and commands that open Quillbay's windows.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "platform/system/Processes.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

constexpr char helpText[] = R"(Usage: quillbay COMMAND …

Counts text for people who write.

Commands:
  count        print the counts of files or of standard input
  explain      print what counts in files, what does not, and why
  extract      print the text of files, as it is counted
  preferences  print and set the rules of the counts
  selection    show the counts of the text selected in any application
  text         show the counts of one file or of standard input
  watch        show the counts of files, and update them at every save

Options:
  -h, --help  print this help and exit
  --version   print the version and exit

Run 'quillbay COMMAND --help' for the options of a command.
)";

struct Command {
    std::string_view name;
    int (*run)(int wordCount, char **words); ///< words: those after the name
};

constexpr Command commands[] = {
    {"count", runCountCommand},
    {"explain", runExplainCommand},
    {"extract", runExtractCommand},
    {"preferences", runPreferencesCommand},
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
        return printText(helpText);
    if (name == "--version")
        return printText("quillbay " QUILLBAY_VERSION "\n");
    for (const Command &command : commands) {
        if (command.name == name) {
            const QCoreApplication application(argumentCount, arguments);
            const int status = command.run(argumentCount - 2, arguments + 2);
            // Not exit(): static destructors would race with Qt's thread for the bus.
            std::fflush(nullptr);
            std::_Exit(status);
        }
    }
    if (name.empty())
        std::fputs("quillbay: no command given\n", stderr);
    else
        std::fprintf(stderr, "quillbay: unknown command '%s'\n", printableName(arguments[1]).constData());
    std::fputs("Try 'quillbay --help' for more.\n", stderr);
    return wrongUsageStatus;
}
