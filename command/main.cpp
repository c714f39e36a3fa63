// SPDX-License-Identifier: MIT
// The quillbay command: counts in a terminal, and commands that open Quillbay's windows.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "manual/HelpText.h"
#include "manual/ManualPages.h"
#include "platform/system/Processes.h"
#include "platform/system/StandardOutput.h"
#include "translations/Translations.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

struct Command {
    const ManualPage &(*page)();
    int (*run)(const CommandWords &words); ///< returns the exit status
};

constexpr Command commands[] = {
    {countPage, runCountCommand},
    {doctorPage, runDoctorCommand},
    {documentsPage, runDocumentsCommand},
    {explainPage, runExplainCommand},
    {extractPage, runExtractCommand},
    {goalPage, runGoalCommand},
    {historyPage, runHistoryCommand},
    {preferencesPage, runPreferencesCommand},
    {selectionPage, runSelectionCommand},
    {statusPage, runStatusCommand},
    {textPage, runTextCommand},
    {watchPage, runWatchCommand},
};

QString unknownCommand(const QByteArray &typed)
{
    return CommandText::tr("unknown command '%1'").arg(QString::fromUtf8(printableName(typed)));
}

/// quillbay help [COMMAND]. Returns the exit status.
int runHelp(int wordCount, char **words)
{
    if (wordCount > 1)
        return reportWrongUsage(nullptr, CommandText::tr("one command at a time"));
    if (wordCount == 0)
        return printHelp(quillbayPage());
    if (const ManualPage *const page = pageOfCommand(words[0]))
        return printHelp(*page);
    return reportWrongUsage(nullptr, unknownCommand(words[0]));
}

/// name: the first word. Returns the exit status.
int runNamed(std::string_view name, int wordCount, char **words)
{
    if (name == "--help" || name == "-h")
        return printHelp(quillbayPage());
    if (name == "--version" || name == "-V")
        return printText("quillbay " QUILLBAY_VERSION "\n");
    if (name == "help")
        return runHelp(wordCount, words);
    for (const Command &command : commands) {
        const ManualPage &page = command.page();
        if (page.command != name)
            continue;
        const std::optional<CommandWords> given = CommandWords::parse(page, wordCount, words);
        if (!given)
            return wrongUsageStatus;
        return given->wantsHelp() ? printHelp(page) : command.run(*given);
    }
    if (name.empty())
        return reportWrongUsage(nullptr, CommandText::tr("no command given"));
    const QByteArray typed(name.data(), static_cast<qsizetype>(name.size()));
    return reportWrongUsage(nullptr, unknownCommand(typed));
}

} // namespace

int main(int argumentCount, char **arguments)
{
    keepMemoryPrivate();
    const std::string_view name = argumentCount > 1 ? arguments[1] : "";
    const QCoreApplication application(argumentCount, arguments);
    installTranslations();
    const int named = std::min(argumentCount, 2);
    const int status = runNamed(name, argumentCount - named, arguments + named);
    // Not exit(): static destructors would race with Qt's thread for the bus.
    std::fflush(nullptr);
    std::_Exit(status);
}
