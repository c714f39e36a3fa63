// SPDX-License-Identifier: MIT
#include "command/CountArguments.h"

#include "command/CountSelection.h"
#include "command/FileNames.h"

#include <QStringList>

#include <initializer_list>

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
    if (words.switches.contains("also") && words.switches.contains("columns"))
        return CommandText::tr("--also and --columns cannot be combined; name all counts in --columns");
    if (words.switches.contains("include") && !words.switches.contains("recursive"))
        return CommandText::tr("--include needs --recursive");
    if (words.valueOf("files-from") == "-" && words.operands.contains("-"))
        return CommandText::tr("standard input cannot be both a document and the list of files");
    return {};
}

template <typename Value>
struct Choice {
    const char *name;
    Value value;
};

/// Sets the value of an option that takes one of some words. The message for another word; empty if all is
/// right.
template <typename Value>
QString choose(
    const CommandWords &words, const char *option, std::initializer_list<Choice<Value>> choices, Value &value)
{
    const std::optional<QByteArray> given = words.valueOf(option);
    if (!given)
        return {};
    QStringList names;
    for (const Choice<Value> &choice : choices) {
        if (*given == choice.name) {
            value = choice.value;
            return {};
        }
        names.append(QLatin1StringView(choice.name));
    }
    return CommandText::tr("--%1 knows no '%2'; use one of %3")
        .arg(QLatin1StringView(option), QString::fromUtf8(printableName(*given)),
            names.join(QStringLiteral(", ")));
}

/// The error is a message.
Result<WordRules, QString> wordRulesOf(const CommandWords &words)
{
    WordRules rules;
    QString wrong = choose<WordRules>(words, "count-as",
        {{"quillbay", {}}, {"libreoffice", WordRules::ofLibreOffice()},
            {"word-processor", WordRules::ofWordProcessors()}},
        rules);
    using Hyphenated = WordRules::Hyphenated;
    if (wrong.isEmpty())
        wrong = choose<Hyphenated>(words, "hyphenated",
            {{"one", Hyphenated::One}, {"several", Hyphenated::Several}}, rules.hyphenated);
    using Urls = WordRules::Urls;
    if (wrong.isEmpty())
        wrong = choose<Urls>(words, "urls", {{"one", Urls::One}, {"none", Urls::None}}, rules.urls);
    if (!wrong.isEmpty())
        return wrong;
    if (const std::optional<QByteArray> separators = words.valueOf("separators"))
        rules.separators = QString::fromLocal8Bit(*separators);
    if (words.switches.contains("service") && !(rules == WordRules()))
        return CommandText::tr("--service counts words by Quillbay's own rules; leave out the other rules");
    return rules;
}

/// Stores the result of reading an option's value. The message, if it was wrong.
template <typename Value, typename Target>
QString store(const Result<Value, QString> &read, Target &target)
{
    if (!read)
        return read.error();
    target = read.value();
    return {};
}

/// The message for the first value that is wrong; empty if all are right.
QString readValues(const CommandWords &words, CountArguments &arguments)
{
    QString wrong = store(wordRulesOf(words), arguments.wordRules);
    const auto read = [&](const char *option, const auto &parse, auto &target) {
        const std::optional<QByteArray> value = words.valueOf(option);
        if (value && wrong.isEmpty())
            wrong = store(parse(*value), target);
    };
    const bool isInService = arguments.wantsService;
    read(
        "also", [&](const QByteArray &names) { return furtherListOf(names, isInService); }, arguments.also);
    read(
        "columns", [&](const QByteArray &names) { return columnListOf(names, isInService); },
        arguments.columns);
    read("sort", sortKeyOf, arguments.sortKey);
    read("goal", goalOf, arguments.goal);
    return wrong;
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
        .readAs = ReadAs::fromWords(words),
        .wantsService = words.switches.contains("service"),
        .also = std::nullopt,
        .wordRules = {},
        .columns = std::nullopt,
        .sortKey = std::nullopt,
        .goal = std::nullopt,
        .isRecursive = words.switches.contains("recursive"),
        .globs = words.valuesOf("include"),
        .listName = words.valueOf("files-from"),
        .fileNames = words.operands};
    if (const QString wrong = readValues(words, arguments); !wrong.isEmpty()) {
        reportWrongUsage("count", wrong);
        return std::nullopt;
    }
    if (!arguments.listName && arguments.fileNames.isEmpty() && !arguments.wantsRules)
        arguments.fileNames.append(arguments.isRecursive ? "." : "-");
    return arguments;
}
