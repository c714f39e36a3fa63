// SPDX-License-Identifier: MIT
#include "command/CountArguments.h"

#include "command/CommandWords.h"
#include "manual/ManualPages.h"

namespace {

/// Wrong combinations, with their message; empty if all is right.
QString wrongCombinationIn(const CommandWords &words)
{
    if (words.switches.contains("json") && words.switches.contains("tsv"))
        return CommandText::tr("--json and --tsv cannot be combined");
    if (words.switches.count("files-from") > 1)
        return CommandText::tr("--files-from can be given only once");
    if (words.switches.contains("service") && words.switches.contains("explain-rules"))
        return CommandText::tr("--service and --explain-rules cannot be combined");
    if (words.switches.contains("tsv") && words.switches.contains("explain-rules"))
        return CommandText::tr("--explain-rules prints a table or, with --json, an object; leave out --tsv");
    if (words.valueOf("files-from") == "-" && words.operands.contains("-"))
        return CommandText::tr("standard input cannot be both a document and the list of files");
    return {};
}

CountFormat formatOf(const CommandWords &words)
{
    if (words.switches.contains("json"))
        return CountFormat::Json;
    return words.switches.contains("tsv") ? CountFormat::Tsv : CountFormat::Table;
}

} // namespace

std::optional<CountArguments> CountArguments::fromWords(int wordCount, char **words)
{
    const std::optional<CommandWords> given = CommandWords::parse(countPage(), wordCount, words);
    if (!given)
        return std::nullopt;
    if (const QString misuse = wrongCombinationIn(*given); !misuse.isEmpty()) {
        reportWrongUsage("count", misuse);
        return std::nullopt;
    }
    CountArguments arguments{.format = formatOf(*given),
        .wantsHelp = given->wantsHelp(),
        .wantsRules = given->switches.contains("explain-rules"),
        .readAs = given->switches.contains("as-text") ? ReadAs::Text : ReadAs::ItsKind,
        .wantsService = given->switches.contains("service"),
        .listName = given->valueOf("files-from"),
        .fileNames = given->operands};
    if (!arguments.listName && arguments.fileNames.isEmpty() && !arguments.wantsRules)
        arguments.fileNames.append("-");
    return arguments;
}
