// SPDX-License-Identifier: MIT
#include "command/CountArguments.h"

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

std::optional<CountArguments> CountArguments::fromWords(const CommandWords &words)
{
    if (const QString misuse = wrongCombinationIn(words); !misuse.isEmpty()) {
        reportWrongUsage("count", misuse);
        return std::nullopt;
    }
    CountArguments arguments{.format = formatOf(words),
        .wantsRules = words.switches.contains("explain-rules"),
        .readAs = words.switches.contains("as-text") ? ReadAs::Text : ReadAs::ItsKind,
        .wantsService = words.switches.contains("service"),
        .listName = words.valueOf("files-from"),
        .fileNames = words.operands};
    if (!arguments.listName && arguments.fileNames.isEmpty() && !arguments.wantsRules)
        arguments.fileNames.append("-");
    return arguments;
}
